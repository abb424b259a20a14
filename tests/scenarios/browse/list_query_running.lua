-- A build while it runs: progress, Stop, what is shut out, and what goes on underneath.

local function title(number)
  return string.format("Dish %04d", number)
end

-- A cookbook whose recipes all match every one of the ways of listing.
local function cookbook(count)
  store.create({ ShowRecipes = false })
  store.add("Ease", { EaseId = 1, Description = "Easy" })
  store.add("Health", { HealthId = 1, Description = "Low fat" })
  for id = 1, count do
    store.add("Recipe", { RecipeId = id, Title = title(id), Ease = 1, Meal = true })
    store.add("RecipeHealth", { RecipeId = id, HealthId = 1 })
  end
  start()
end

local ways = {
  { "title walk", function() end },
  { "query", function() frmBrowse.txtTitle.Text = "dish" end },
  { "walk by a category", function() frmBrowse.cmbEase.Text = "easy" end },
  { "walk by links", function() frmBrowse.lstHealth:Toggle(0) end },
  { "walk of the meal", function() frmBrowse.chkMeal:Click() end },
}

-- Runs a case once for each way of listing.
local function eachWay(name, count, body)
  for _, way in ipairs(ways) do
    case(name .. ": " .. way[1], function()
      cookbook(count)
      way[2]()
      body(way[1])
    end)
  end
end

eachWay("every hundred rows the caption counts and events come in", 250, function()
  local captions = {}
  yields(function(turn)
    captions[turn] = frmBrowse.fmeList.Caption
    equal(frmBrowse.lstTitles.ListIndex, -1)
    equal(frmBrowse.lstTitles.Row, 100 * turn - 1)
    equal(frmBrowse.MousePointer, 11)
    equal(pointer(), 0)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(captions, { "100 recipe(s) displayed", "200 recipe(s) displayed" })
  equal(frmBrowse.fmeList.Caption, "250 recipe(s) displayed")
  equal(frmBrowse.lstTitles.ListCount, 250)
  equal(frmBrowse.MousePointer, 0)
end)

case("a list of a thousand counts with a separator", function()
  cookbook(1001)
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.fmeList.Caption, "1,001 recipe(s) displayed")
end)

eachWay("Stop keeps the rows that are there", 350, function()
  yields(function(turn)
    if turn == 2 then frmBrowse.tbBrowse:Press("Stop") end
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 200)
  equal(frmBrowse.fmeList.Caption, "200 recipe(s) displayed")
  equal(frmBrowse.lstTitles.ListIndex, 0)
  equal(focus(), "frmBrowse.lstTitles")
  equal(frmBrowse.MousePointer, 0)
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.lstTitles.ListCount, 350)
end)

eachWay("fewer than a hundred rows let no event in", 99, function()
  yields(function() check(false, "no turn of the event pump") end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 99)
end)

-- The end of what is walked is looked at before the count in a walk by a category, and behind it in the two others.
eachWay("exactly a hundred rows", 100, function(way)
  local turns = 0
  yields(function() turns = turns + 1 end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(turns, (way == "title walk" or way == "query") and 1 or 0)
  equal(frmBrowse.lstTitles.ListCount, 100)
end)

case("a walk whose hundredth row is its last, with rows of another key behind it, lets events in", function()
  cookbook(100)
  store.add("Recipe", { RecipeId = 200, Title = "Hard one", Ease = 2 })
  local turns = 0
  yields(function() turns = turns + 1 end)
  frmBrowse.cmbEase.Text = "Easy"
  frmBrowse.mnuFilter:Click()
  yields()
  equal(turns, 1)
  equal(frmBrowse.lstTitles.ListCount, 100)
end)

case("a Stop after the last count changes neither this build nor the next", function()
  cookbook(100)
  yields(function() frmBrowse.tbBrowse:Press("Stop") end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 100)
  local turns = 0
  yields(function() turns = turns + 1 end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(turns, 1)
  equal(frmBrowse.lstTitles.ListCount, 100)
end)

case("while a list is built every button is sunken but Stop, which has the place of Filter", function()
  cookbook(150)
  local bar = frmBrowse.tbBrowse
  yields(function()
    for _, key in ipairs(bar:Buttons()) do
      if key ~= "" then equal(bar:Button(key).Value, key == "Stop" and 0 or 1, key) end
    end
    equal({ bar:Button("Stop").Visible, bar:Button("Stop").Enabled }, { true, true })
    equal({ bar:Button("Filter").Visible, bar:Button("Filter").Enabled }, { false, false })
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  for _, key in ipairs(bar:Buttons()) do
    if key ~= "" then equal(bar:Button(key).Value, 0, key) end
  end
  equal({ bar:Button("Stop").Visible, bar:Button("Stop").Enabled }, { false, false })
  equal({ bar:Button("Filter").Visible, bar:Button("Filter").Enabled }, { true, true })
end)

case("commands do nothing while a list is built", function()
  cookbook(150)
  yields(function()
    for _, entry in ipairs({ "mnuOptions", "mnuPrintSetup", "mnuViewImportLog", "mnuListLastImported", "mnuFilter", "mnuClear", "mnuAdd", "mnuUpdate",
      "mnuDelete", "mnuFirst", "mnuPrevious", "mnuNext", "mnuLast", "mnuSettings", "mnuMeal", "mnuListListLastImported", "mnuContents", "mnuSearch", "mnuAbout" }) do
      frmBrowse[entry]:Click()
    end
    for _, key in ipairs({ "Options", "Clear", "Add", "Update", "Delete", "First", "Previous", "Next", "Last", "Settings", "Meal", "Exit", "Help" }) do
      frmBrowse.tbBrowse:Press(key)
    end
    for _, kind in ipairs({ "Nationality", "Course", "Cooking", "Ease", "Health", "Other" }) do
      frmBrowse["mnuCategories" .. kind]:Click()
      frmBrowse["lbl" .. kind]:Click()
    end
    frmBrowse.lstTitles:DblClick(3)
    frmBrowse:Key(13)
    frmBrowse:Key(46)
    check(not frmDetail.Visible)
    equal(frmBrowse.lstTitles.ListCount, 100)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 150)
  equal(boxes(), {})
  equal(helps(), {})
  equal(setups(), 0)
end)

case("exit ends the program in the middle of a build", function()
  for _, way in ipairs({ function() frmBrowse.mnuExit:Click() end, function() frmBrowse:Key(27) end, function() frmBrowse:Close() end }) do
    cookbook(150)
    local before = #store.rows("Recipe")
    yields(function() way() end)
    frmBrowse.mnuFilter:Click()
    yields()
    check(not running())
    equal(boxes(), {})
    equal(#store.rows("Recipe"), before)
    file.remove("PANTRIGO.MDB")
  end
end)

case("coming back to the window during a build opens the commands and gives back the pointer, and the build goes on", function()
  cookbook(250)
  frmBrowse.mnuAdd:Click()
  frmBrowse:Activate()
  local pointers = {}
  yields(function(turn)
    if turn == 1 then
      frmDetail:Activate()
      frmBrowse:Activate()
    end
    pointers[turn] = frmBrowse.MousePointer
    if turn < 2 then return end
    frmBrowse.mnuLast:Click()
    equal(frmBrowse.lstTitles.ListIndex, 199)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(pointers, { 0, 0 })
  equal(frmBrowse.lstTitles.ListCount, 250)
  equal(frmBrowse.tbBrowse:Button("Filter").Visible, true)
  equal(frmBrowse.MousePointer, 0)
end)

case("a build inside a build", function()
  cookbook(150)
  frmBrowse.mnuAdd:Click()
  frmBrowse:Activate()
  local turns = 0
  yields(function()
    turns = turns + 1
    if turns > 1 then return end
    frmDetail:Activate()
    frmBrowse:Activate()
    frmBrowse.mnuFilter:Click()
    equal(frmBrowse.lstTitles.ListCount, 150)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(turns, 2)
  equal(frmBrowse.lstTitles.ListCount, 200)
  equal(frmBrowse.fmeList.Caption, "200 recipe(s) displayed")
  check(running())
end)

eachWay("a recipe that was listed already may go while the list is built", 150, function()
  yields(function()
    store.remove("Recipe", "RecipeId", 50)
    store.remove("RecipeHealth", "RecipeId", 50)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 150)
  check(running())
  frmBrowse.lstTitles:Pick(49)
  equal(frmBrowse.lstTitles:List(49), title(50))
end)

eachWay("a recipe that is still to come and goes is left out", 250, function()
  yields(function(turn)
    if turn > 1 then return end
    store.remove("RecipeHealth", "RecipeId", 240)
    store.remove("Recipe", "RecipeId", 240)
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 249)
  equal(frmBrowse.lstTitles:List(239), title(241))
end)

case("in a walk the row that is next may not go", function()
  for _, way in ipairs({ function() end, function() frmBrowse.cmbEase.Text = "Easy" end }) do
    cookbook(150)
    way()
    yields(function() store.remove("Recipe", "RecipeId", 101) end)
    equal(fails(function() frmBrowse.mnuFilter:Click() end), { number = 3167, text = "Record is deleted." })
    yields()
    boxes()
    file.remove("PANTRIGO.MDB")
  end
end)

case("a recipe that is put in while the list is built comes at its place", function()
  cookbook(150)
  yields(function()
    store.add("Recipe", { RecipeId = 500, Title = "Dish 0149a" })
    store.add("Recipe", { RecipeId = 501, Title = "Apple Pie" })
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 151)
  equal(frmBrowse.lstTitles:List(149), "Dish 0149a")
end)
