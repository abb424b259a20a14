-- Properties of forms and controls.

local function begin()
  store.create()
  store.add("Nationality", { NationalityId = 1, Description = "French" })
  store.add("Nationality", { NationalityId = 2, Description = "Thai" })
  store.add("Health", { HealthId = 1, Description = "Low fat" })
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  start()
end

case("a form's own properties", function()
  begin()
  equal(frmBrowse.Caption, "Pantrigo")
  frmBrowse.Caption = "Cookbook"
  equal(frmBrowse.Caption, "Cookbook")
  frmBrowse.MousePointer = 11
  equal(frmBrowse.MousePointer, 11)
  for _, name in ipairs({ "Left", "Top", "Width", "Height" }) do
    frmBrowse[name] = 1234.5
    equal(frmBrowse[name], 1234.5, name)
  end
end)

case("what all controls have", function()
  begin()
  local box = frmBrowse.txtTitle
  equal(box.Enabled, true)
  equal(box.Visible, true)
  for _, name in ipairs({ "Left", "Top", "Width", "Height" }) do
    box[name] = 120
    equal(box[name], 120, name)
  end
  box.MousePointer = 11
  equal(box.MousePointer, 11)
  box.Enabled = false
  equal(box.Enabled, false)
  box.Visible = false
  equal(box.Visible, false)
  equal(frmBrowse.tbBrowse.Visible, true)
  equal(frmBrowse.mnuFile.Enabled, true)
end)

case("captions of labels, frames, buttons, menu entries and check boxes", function()
  begin()
  for _, name in ipairs({ "lblTitle", "fmeList", "mnuFile", "chkMeal" }) do
    frmBrowse[name].Caption = "&Other"
    equal(frmBrowse[name].Caption, "&Other", name)
  end
  modal("frmAbout", function() equal(frmAbout.cmdOK.Caption, "&OK") end)
  frmBrowse.mnuAbout:Click()
end)

case("text boxes", function()
  begin()
  local box = frmDetail.txtTitle
  equal(box.MaxLength, 80)
  box.MaxLength = 5
  box.Text = "longer than five"
  equal(box.Text, "longer than five", "a text set by code is not cut")
  box.ForeColor = 6
  equal(box.ForeColor, 6)
  frmDetail.txtServes.Text = 4
  equal(frmDetail.txtServes.Text, "4")
end)

case("setting a property raises the events that code raises", function()
  begin()
  equal(GLOBAL.gDetailChanged, false)
  frmDetail.txtServes.Text = "9"
  equal(GLOBAL.gDetailChanged, true)
end)

case("combo boxes", function()
  begin()
  local combo = frmBrowse.cmbNationality
  equal(combo.ListCount, 2)
  equal(combo:List(0), "French")
  equal(combo:List(2), "")
  equal(combo:List(-1), "")
  equal(combo.ListIndex, -1)
  combo.Text = "Danish"
  equal(combo.Text, "Danish")
  combo.ListIndex = 1
  equal(combo.Text, "Thai")
end)

case("list boxes", function()
  begin()
  local list = frmBrowse.lstTitles
  equal(list.ListCount, 2)
  equal(list:List(1), "Beef Stew")
  equal(list:List(2), "")
  equal(list.ListIndex, -1)
  equal(list.SelCount, 0)
  list.ListIndex = 1
  equal(list.SelCount, 1)
  equal(list:Selected(1), true)
  equal(list:Selected("Apple Pie"), false)
  list.Row = 0
  equal(list.Row, 0)
  equal(list.ListIndex, 1)
  list.TopIndex = 1
  equal(list.TopIndex, 1)
  list.Sorted = 1
  equal(list.Sorted, 1)
end)

case("colours of rows", function()
  begin()
  equal(frmBrowse.lstTitles:Colours(0), { ForeColor = 1, SelForeColor = 15, SelBackColor = 1 })
  equal(frmBrowse.lstTitles:Colours("Beef Stew").ForeColor, 1)
  equal(frmBrowse.lstTitles:Colours(7), { ForeColor = 1, SelForeColor = 15, SelBackColor = 1 })
end)

case("check boxes", function()
  begin()
  local box = frmBrowse.chkMeal
  equal(box.Value, false)
  box.Value = true
  equal(box.Value, true)
end)

case("an image without a picture", function()
  begin()
  equal(frmDetail.imgPhoto.Picture, "")
end)

case("tool bars", function()
  begin()
  local keys = frmBrowse.tbBrowse:Buttons()
  equal(keys[1], "")
  equal(keys[4], "Options")
  equal(keys[#keys], "Help")
  equal(frmBrowse.tbBrowse:Button("Exit"), { Enabled = true, Visible = true, Value = 0, ToolTip = "Exit Pantrigo" })
  check(not pcall(function() frmBrowse.tbBrowse:Button("Nothing") end))
end)

case("what isn't there, or can't be set, is an error of the script", function()
  begin()
  for _, use in ipairs({
    function() return frmBrowse.txtNothing end, function() frmBrowse.Nothing = 1 end, function() return frmBrowse.txtTitle.Caption end,
    function() frmBrowse.txtTitle.Nothing = 1 end, function() frmBrowse.Loaded = false end, function() frmBrowse.lstTitles.ListCount = 3 end,
    function() frmBrowse.txtTitle.Enabled = "yes" end, function() frmBrowse.txtTitle.Left = "far" end,
    function() frmBrowse.txtTitle.Text = {} end, function() return frmBrowse.txtTitle:List(0) end,
    function() return frmBrowse.txtTitle:Buttons() end, function() return frmBrowse.txtTitle:Selected(0) end,
  }) do
    check(not pcall(use))
  end
  check(running())
end)

case("only what is loaded can be read", function()
  begin()
  local read, message = pcall(function() return frmOven.Label1.Caption end)
  check(not read)
  contains(message, "frmOven isn't loaded")
  check(not pcall(function() return frmOven.Caption end))
  check(not pcall(function() frmOven.Caption = "x" end))
end)

case("showing and hiding by Visible is done as code does it", function()
  begin()
  frmDetail.Visible = true
  check(frmDetail.Visible)
  equal(focus(), "frmDetail.txtTitle")
  frmDetail.Visible = false
  check(not frmDetail.Visible)
  check(frmDetail.Loaded)
  equal(focus(), "frmBrowse.txtTitle")
end)

case("names show in messages", function()
  begin()
  equal(tostring(frmBrowse), "frmBrowse")
  equal(tostring(frmBrowse.txtTitle), "frmBrowse.txtTitle")
end)
