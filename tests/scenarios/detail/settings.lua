-- The number of people to cater for.

local function open(system, fields)
  store.create(system)
  local row = { RecipeId = 1, Title = "Apple Pie", Serves = 4, Ingredients = "2~~eggs~~2~~" }
  for key, value in pairs(fields or {}) do row[key] = value end
  store.add("Recipe", row)
  start()
  frmBrowse.lstTitles:DblClick(0)
end

-- Types the text and presses OK; gives whether the dialog stayed open, and the boxes, and cancels it then.
local function try(text)
  local refused, said, focused
  modal("frmSettings", function()
    frmSettings.txtSettings:Type(text)
    frmSettings.cmdOK:Click()
    refused = frmSettings.Visible
    said = boxes()
    if refused then
      focused = focus()
      equal(frmSettings.txtSettings.Text, text)
      frmSettings.cmdCancel:Click()
    end
  end)
  frmDetail.mnuSettings:Click()
  if refused then equal(focused, "frmSettings.txtSettings", text) end
  return refused, said
end

local function refuses(text, message)
  local refused, said = try(text)
  equal(refused, true, text)
  equal(#said, 1, text)
  equal(said[1].text, message, text)
  equal(said[1].caption, "Error")
  equal(said[1].style, 16)
end

case("the settings dialog shows its texts", function()
  screen(800, 600)
  open({ Settings = 8 })
  modal("frmSettings", function()
    equal(frmSettings.Caption, "Settings")
    equal(frmSettings.fmeServings.Caption, "Enter number of people to cater for:")
    equal(frmSettings.lblSettings.Caption, "Settings")
    equal(frmSettings.txtSettings.Text, "8")
    equal(frmSettings.txtSettings.MaxLength, 3)
    equal(frmSettings.cmdOK.Caption, "&OK")
    equal(frmSettings.cmdCancel.Caption, "&Cancel")
    equal(frmSettings.cmdClear.Caption, "C&lear")
    equal(frmSettings.cmdHelp.Caption, "&Help")
    equal(focus(), "frmSettings.txtSettings")
    equal(frmSettings.Left, (12000 - frmSettings.Width) / 2)
    equal(frmSettings.Top, (9000 - frmSettings.Height) / 3)
    frmSettings.cmdHelp:Click()
    equal(helps(), { 380 })
    check(frmSettings.Visible)
  end)
  frmDetail.mnuSettings:Click()
  check(not frmSettings.Loaded)
end)

case("the box shows what is stored", function()
  open({ SettingsIngredients = true })
  modal("frmSettings", function() equal(frmSettings.txtSettings.Text, "") end)
  frmDetail.mnuSettings:Click()
  store.system({ Settings = 2.5 })
  modal("frmSettings", function() equal(frmSettings.txtSettings.Text, "2.5") end)
  frmDetail.tbDetail:Press("Settings")
  store.system({ Settings = 1234 })
  modal("frmSettings", function()
    equal(frmSettings.txtSettings.Text, "1234")
    frmSettings.cmdOK:Click()
  end)
  frmDetail.lblSettings:Click()
  equal(store.system().Settings, 1234)
end)

case("numbers from 1 on are stored at once", function()
  open()
  for text, number in pairs({ ["1"] = 1, ["10"] = 10, ["2.5"] = 2.5, ["1e3"] = 1000, ["1,5"] = 15, ["999"] = 999, ["8 "] = 8 }) do
    local refused, said = try(text)
    equal(refused, false, text)
    equal(said, {}, text)
    equal(store.system().Settings, number, text)
  end
end)

case("three characters are taken", function()
  open()
  modal("frmSettings", function()
    frmSettings.txtSettings:Type("99999")
    equal(frmSettings.txtSettings.Text, "999")
    frmSettings:Key(13)
    check(not frmSettings.Visible)
  end)
  frmDetail.mnuSettings:Click()
  equal(store.system().Settings, 999)
end)

case("what sorts below 1 as a text is refused", function()
  open({ Settings = 6 })
  for _, text in ipairs({ "", "0", "0.5", "-3", "-4", "+5", " 5", ".5", "(5)", "$5", "007", "&H5" }) do
    refuses(text, "Settings must be greater than 0.")
    equal(store.system().Settings, 6, text)
  end
end)

case("what is no number is refused", function()
  open({ Settings = 6 })
  for _, text in ipairs({ "abc", "9a", "!", " ", "5%", "1/2", "1 0", "1.." }) do
    refuses(text, "Value entered must be numeric.")
    equal(store.system().Settings, 6, text)
  end
end)

case("Clear empties the box, and the empty box can't be saved", function()
  open({ Settings = 6 })
  modal("frmSettings", function()
    frmSettings.cmdClear:Click()
    equal(frmSettings.txtSettings.Text, "")
    equal(store.system().Settings, 6)
    frmSettings.cmdOK:Click()
    equal(boxes()[1].text, "Settings must be greater than 0.")
    check(frmSettings.Visible)
    equal(focus(), "frmSettings.txtSettings")
    frmSettings:Key(27)
  end)
  frmDetail.mnuSettings:Click()
  equal(store.system().Settings, 6)
end)

case("Cancel, Esc and the close mark store nothing and keep the edits", function()
  open({ Settings = 6, SettingsIngredients = true })
  frmDetail.txtServes:Type("9")
  local ways = {
    function() frmSettings.cmdCancel:Click() end,
    function() frmSettings:Key(27) end,
    function() frmSettings:Close() end,
  }
  for _, leave in ipairs(ways) do
    modal("frmSettings", function()
      frmSettings.txtSettings:Type("8")
      leave()
      check(not frmSettings.Visible)
    end)
    frmDetail.mnuSettings:Click()
    check(not frmSettings.Loaded)
    equal(store.system().Settings, 6)
    equal(frmDetail.lblSettings.Caption, "(6)")
    equal(frmDetail.txtServes.Text, "9")
    equal(GLOBAL.gDetailChanged, true)
    equal(GLOBAL.gKeepDetailOnActivate, false)
  end
end)

case("OK keeps the edits, marks no change, and the label and the quantities follow", function()
  open({ Settings = 4, SettingsIngredients = true })
  equal(frmDetail.lstIngredient:List(0), "2 eggs")
  frmDetail.txtTitle:Type("Apple Cake")
  try("8")
  equal(frmDetail.lblSettings.Caption, "(8)")
  check(frmDetail.lblSettings.Visible)
  equal(frmDetail.lstIngredient:List(0), "4 eggs")
  equal(frmDetail.lstIngredient.ListCount, 1)
  equal(frmDetail.txtTitle.Text, "Apple Cake")
  equal(GLOBAL.gDetailChanged, false)
end)

case("without scaling by the options the label is empty and hidden", function()
  open({ Settings = 4, SettingsIngredients = false })
  check(frmDetail.lblSettings.Visible)
  try("8")
  equal(frmDetail.lblSettings.Caption, "")
  check(not frmDetail.lblSettings.Visible)
  equal(frmDetail.lstIngredient:List(0), "2 eggs")
  equal(store.system().Settings, 8)
end)

case("with nothing stored a cancelled dialog leaves empty brackets", function()
  open({ SettingsIngredients = true })
  equal(frmDetail.lblSettings.Caption, "")
  modal("frmSettings", function() frmSettings.cmdCancel:Click() end)
  frmDetail.mnuSettings:Click()
  equal(frmDetail.lblSettings.Caption, "()")
  check(frmDetail.lblSettings.Visible)
  equal(frmDetail.lstIngredient:List(0), "2 eggs")
end)

case("a recipe that makes items isn't scaled", function()
  open({ Settings = 4, SettingsIngredients = true }, { Makes = true })
  try("8")
  equal(frmDetail.lblSettings.Caption, "(8)")
  equal(frmDetail.lstIngredient:List(0), "2 eggs")
end)

case("without a title the lines stay as they are", function()
  open({ Settings = 4, SettingsIngredients = true })
  frmDetail.txtTitle:Type("")
  try("8")
  equal(frmDetail.lblSettings.Caption, "(8)")
  equal(frmDetail.lstIngredient:List(0), "2 eggs")
end)

case("with no recipe in the store the dialog works all the same", function()
  store.create({ SettingsIngredients = true })
  start()
  frmBrowse.mnuAdd:Click()
  frmDetail.txtTitle:Type("Apple Pie")
  try("8")
  equal(frmDetail.lblSettings.Caption, "(8)")
  equal(store.system().Settings, 8)
end)
