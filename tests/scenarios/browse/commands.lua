-- The commands of the main window: what opens, what a busy window shuts out, and how the program ends.

local function three()
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Meal = true })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  store.add("Recipe", { RecipeId = 3, Title = "Carrot Cake" })
  start()
end

local titles = function() return frmBrowse.lstTitles end
local selectRecipe = { { text = "Please select a recipe to perform this function.", caption = "Error", style = 16, answer = "OK" } }

-- Start.

case("the window is scaled to its screen and placed a third of the way down", function()
  store.create()
  start()
  equal(GLOBAL.gScale, 1)
  equal(frmBrowse.Caption, "Pantrigo")
  equal(frmBrowse.lstTitles.Height, 5550)
  equal(frmBrowse.Left, (9600 - frmBrowse.Width) / 2)
  equal(frmBrowse.Top, (7200 - frmBrowse.Height) / 3)
  stop()
  screen(800, 600)
  start()
  equal(GLOBAL.gScale, 1.25)
  equal(frmBrowse.lstTitles.Height, 5550 * 1.25)
  equal(frmBrowse.fmeFilters.Width, 4080 * 1.25)
  equal(frmBrowse.txtIron.Left, 2880 * 1.25)
  equal(frmBrowse.Left, (12000 - frmBrowse.Width) / 2)
  equal(frmBrowse.Top, (9000 - frmBrowse.Height) / 3)
end)

case("the tool bar has its buttons in order, with their tips, and spacers by the screen", function()
  three()
  local bar = frmBrowse.tbBrowse
  equal(bar:Buttons(), { "", "", "", "Options", "Clear", "Filter", "Stop", "Add", "Update", "Delete", "Print", "First", "Previous", "Next",
    "Last", "Settings", "Meal", "Exit", "Help" })
  local tips = { Options = "Set system options", Clear = "Clear filters", Filter = "Filter recipes", Stop = "Stop filter/list process",
    Add = "Add recipe", Update = "Update recipe", Delete = "Delete recipe", Print = "Print recipe or shopping list",
    First = "Go to first recipe", Previous = "Go to previous recipe", Next = "Go to next recipe", Last = "Go to last recipe",
    Settings = "Number of settings to cater for", Meal = "Include recipe in meal", Exit = "Exit Pantrigo", Help = "Help" }
  for key, tip in pairs(tips) do equal(bar:Button(key).ToolTip, tip, key) end
  check(not bar:Button("Stop").Visible)
  check(not bar:Button("Stop").Enabled)
  check(bar:Button("Filter").Visible)
end)

case("every menu entry has its caption", function()
  three()
  local captions = { mnuFile = "&File", mnuOptions = "&Options", mnuSep1 = "-", mnuPrintSetup = "Printer &Setup", mnuPrint = "&Print",
    mnuSep4 = "-", mnuImport = "&Import", mnuMasterCook = "Master&Cook (TM) Format", mnuMealMaster = "&Meal Master (TM) Format",
    mnuPantrigo = "&Pantrigo Format", mnuViewImportLog = "&View / Print Import Log", mnuListLastImported = "&List Last Imported Recipes",
    mnuSep2 = "-", mnuExit = "E&xit               Esc", mnuEdit = "&Edit", mnuClear = "&Clear", mnuFilter = "&Filter", mnuSep3 = "-",
    mnuAdd = "&Add", mnuUpdate = "&Update", mnuDelete = "&Delete", mnuNavigate = "&Navigate", mnuFirst = "&First",
    mnuPrevious = "&Previous", mnuNext = "&Next", mnuLast = "&Last", mnuSettings = "&Settings", mnuCategories = "&Categories",
    mnuCategoriesNationality = "&Nationality", mnuCategoriesCourse = "&Course", mnuCategoriesCooking = "Coo&king",
    mnuCategoriesEase = "&Ease", mnuCategoriesHealth = "&Health", mnuCategoriesOther = "&Other", mnuMeal = "&Meal", mnuList = "&List",
    mnuListAdd = "&Add / Update", mnuListNationality = "&Nationality", mnuListCourse = "&Course", mnuListCooking = "Coo&king",
    mnuListEase = "&Ease", mnuListHealth = "&Health", mnuListOther = "&Other", mnuListDelete = "&Delete",
    mnuListDeleteHealth = "&Health", mnuListDeleteOther = "&Other", mnuListDeleteRecipes = "&Recipes", mnuListExport = "&Export",
    mnuListMeal = "&Include/Exclude From Meal", mnuListListLastImported = "&Last Imported Recipes", mnuListPrint = "&Print",
    mnuListPrintAll = "&All Recipe Details", mnuListPrintIngredientsMethod = "&Ingredients/Method Only",
    mnuListRemove = "&Remove Recipe From List", mnuHelp = "&Help", mnuContents = "&Contents", mnuSearch = "&Search", mnuAbout = "&About" }
  for entry, caption in pairs(captions) do equal(frmBrowse[entry].Caption, caption, entry) end
end)

-- Dialogs.

case("options and settings open their dialogs, from the menu and from the tool bar", function()
  three()
  local seen = 0
  for _, open in ipairs({ function() frmBrowse.mnuOptions:Click() end, function() frmBrowse.tbBrowse:Press("Options") end }) do
    modal("frmOptions", function() seen = seen + 1 end)
    open()
  end
  for _, open in ipairs({ function() frmBrowse.mnuSettings:Click() end, function() frmBrowse.tbBrowse:Press("Settings") end }) do
    modal("frmSettings", function()
      equal(frmSettings.Caption, "Settings")
      seen = seen + 1
    end)
    open()
  end
  equal(seen, 4)
  check(not frmOptions.Loaded)
  check(not frmSettings.Loaded)
end)

case("each category kind opens its dialog, from the menu and from the filter's label", function()
  three()
  local kinds = { "Nationality", "Course", "Cooking", "Ease", "Health", "Other" }
  for _, kind in ipairs(kinds) do
    for _, control in ipairs({ "mnuCategories" .. kind, "lbl" .. kind }) do
      GLOBAL.gCategoryCaller = "someone"
      GLOBAL.gCategoryTable = "something"
      modal("frmCategory", function()
        equal(GLOBAL.gCategoryCaller, "frmBrowse", control)
        equal(GLOBAL.gCategoryTable, kind, control)
      end)
      frmBrowse[control]:Click()
    end
  end
end)

case("the labels of the filters open the categories also while only the meal is shown", function()
  three()
  frmBrowse.chkMeal:Click()
  check(not frmBrowse.cmbCourse.Enabled)
  modal("frmCategory", function() equal(GLOBAL.gCategoryTable, "Course") end)
  frmBrowse.lblCourse:Click()
end)

case("the printer's set-up is shown", function()
  three()
  frmBrowse.mnuPrintSetup:Click()
  equal(setups(), 1)
end)

case("the help is shown by contents and by the window's page", function()
  three()
  frmBrowse.mnuContents:Click()
  equal(helps(), { 0 })
  frmBrowse.tbBrowse:Press("Help")
  equal(helps(), { 300 })
  frmBrowse.mnuSearch:Click()
  equal(helps(), {})
  check(running())
end)

-- Opening recipes.

case("every way of opening a recipe clears the mark that would keep the old one on show", function()
  three()
  for _, open in ipairs({
    function() titles():DblClick(1) end,
    function()
      titles():Pick(1)
      frmBrowse:Key(13)
    end,
    function() frmBrowse.mnuUpdate:Click() end,
    function() frmBrowse.tbBrowse:Press("Update") end,
  }) do
    frmBrowse.mnuAdd:Click()
    equal(frmDetail.txtTitle.Text, "")
    frmBrowse:Activate()
    GLOBAL.gKeepDetailOnActivate = true
    open()
    equal(GLOBAL.gKeepDetailOnActivate, false)
    equal(frmDetail.txtTitle.Text, "Beef Stew")
    frmDetail.Visible = false
  end
end)

case("a dialog of the main window keeps an open recipe as it stands", function()
  three()
  titles():DblClick(1)
  frmDetail.txtServes:Type("7")
  frmBrowse:Activate()
  modal("frmSettings", function() frmSettings.cmdCancel:Click() end)
  frmBrowse.mnuSettings:Click()
  equal(GLOBAL.gKeepDetailOnActivate, true)
  frmDetail:Activate()
  equal(GLOBAL.gKeepDetailOnActivate, false)
  equal(frmDetail.txtServes.Text, "7")
end)

-- Commands without a selection.

case("commands on a recipe ask for one when none is selected", function()
  three()
  for _, entry in ipairs({ "mnuUpdate", "mnuDelete", "mnuMeal" }) do
    frmBrowse[entry]:Click()
    equal(boxes(), selectRecipe, entry)
    equal(frmBrowse.MousePointer, 0, entry)
  end
  for _, key in ipairs({ "Update", "Delete", "Meal" }) do
    frmBrowse.tbBrowse:Press(key)
    equal(boxes(), selectRecipe, key)
  end
  titles():Focus()
  frmBrowse:Key(46)
  equal(boxes(), selectRecipe)
  check(not frmDetail.Visible)
end)

-- Deleting.

case("a picture is deleted whatever the case of its name, and only the first one", function()
  three()
  file.bmp("1.bmp", 2, 2, 200, 0, 0)
  file.bmp("1a.bmp", 2, 2, 200, 0, 0)
  file.bmp("11.bmp", 2, 2, 200, 0, 0)
  file.bmp("2.BMP", 2, 2, 200, 0, 0)
  titles():Pick(0)
  answer("Yes", "Yes")
  frmBrowse.mnuDelete:Click()
  frmBrowse.mnuDelete:Click()
  equal(file.list(), { "11.bmp", "1a.bmp", "PANTRIGO.MDB" })
end)

case("of two spellings of a picture the exact one goes", function()
  three()
  file.bmp("1.BMP", 2, 2, 200, 0, 0)
  file.bmp("1.bmp", 2, 2, 0, 0, 200)
  titles():Pick(0)
  answer("Yes")
  frmBrowse.mnuDelete:Click()
  check(not file.exists("1.BMP"))
  check(file.exists("1.bmp"))
end)

case("a recipe without a picture is deleted all the same", function()
  three()
  titles():Pick(1)
  answer("Yes")
  frmBrowse.tbBrowse:Press("Delete")
  equal(store.row("Recipe", "RecipeId", 2), nil)
  equal(boxes()[1].text, "Are you sure you want to delete this recipe?")
end)

case("after a delete the list has the focus, and the next row its colours", function()
  three()
  store.set("Recipe", "RecipeId", 3, { Meal = true })
  titles():Pick(1)
  frmBrowse.txtTitle:Focus()
  answer("Yes")
  frmBrowse.mnuDelete:Click()
  equal(focus(), "frmBrowse.lstTitles")
  equal(titles():List(titles().ListIndex), "Carrot Cake")
  equal(titles():Colours(1), { ForeColor = 6, SelForeColor = 6, SelBackColor = 1 })
  equal(GLOBAL.gListIndex, 1)
  equal(frmBrowse.MousePointer, 0)
end)

case("the count after a delete has no mark of thousands", function()
  store.create()
  for i = 1, 1002 do store.add("Recipe", { RecipeId = i, Title = string.format("Recipe %04d", i) }) end
  start()
  equal(frmBrowse.fmeList.Caption, "1,002 recipe(s) displayed")
  titles():Pick(0)
  answer("Yes")
  frmBrowse.mnuDelete:Click()
  equal(frmBrowse.fmeList.Caption, "1001 recipe(s) displayed")
end)

case("deleting all, one after the other, ends with an empty list", function()
  three()
  titles():Pick(2)
  for _ = 1, 3 do
    answer("Yes")
    frmBrowse.mnuDelete:Click()
  end
  equal(titles().ListCount, 0)
  equal(titles().ListIndex, -1)
  equal(frmBrowse.fmeList.Caption, "0 recipe(s) displayed")
  equal(#store.rows("Recipe"), 0)
end)

case("a delete of a recipe that is open leaves it on show", function()
  three()
  titles():DblClick(1)
  frmBrowse:Activate()
  answer("Yes")
  frmBrowse.mnuDelete:Click()
  frmDetail:Activate()
  equal(frmDetail.txtTitle.Text, "Beef Stew")
  equal(boxes()[1].caption, "Confirmation")
  check(running())
end)

case("a delete writes its title where an open recipe reads it", function()
  three()
  titles():DblClick(0)
  frmBrowse:Activate()
  titles():Pick(2)
  answer("No")
  frmBrowse.mnuDelete:Click()
  equal(GLOBAL.gSelectedTitle, "Carrot Cake")
  frmDetail:Activate()
  equal(frmDetail.txtTitle.Text, "Carrot Cake")
end)

case("a delete of a recipe that is no longer there ends the program, after its question", function()
  three()
  titles():Pick(1)
  store.remove("Recipe", "RecipeId", 2)
  answer("Yes")
  local err = fails(function() frmBrowse.mnuDelete:Click() end)
  equal(err.number, 3021)
  equal(boxes()[1].text, "Are you sure you want to delete this recipe?")
  check(not running())
end)

case("a No leaves the program running although the recipe is no longer there", function()
  three()
  titles():Pick(1)
  store.remove("Recipe", "RecipeId", 2)
  answer("No")
  frmBrowse.mnuDelete:Click()
  check(running())
  equal(titles().ListCount, 3)
end)

case("the meal mark of a recipe that is no longer there ends the program", function()
  three()
  titles():Pick(1)
  store.remove("Recipe", "RecipeId", 2)
  local err = fails(function() frmBrowse.mnuMeal:Click() end)
  equal(err.number, 3021)
end)

-- Moves.

case("a move that moves nothing leaves focus and selection", function()
  three()
  titles():Pick(2)
  frmBrowse.txtTitle:Focus()
  frmBrowse.mnuNext:Click()
  equal(titles().ListIndex, 2)
  equal(focus(), "frmBrowse.txtTitle")
  equal(frmBrowse.MousePointer, 0)
end)

case("a move to the first row gives the list the focus also when it is there already", function()
  three()
  titles():Pick(0)
  frmBrowse.txtTitle:Focus()
  frmBrowse.mnuPrevious:Click()
  equal(titles().ListIndex, 0)
  equal(focus(), "frmBrowse.lstTitles")
end)

-- The window.

case("minimising hides the recipe, which stays hidden", function()
  three()
  titles():DblClick(1)
  frmBrowse:Activate()
  frmBrowse:Minimise()
  check(not frmDetail.Visible)
  check(frmDetail.Loaded)
  frmBrowse:Activate()
  check(not frmDetail.Visible)
  titles():DblClick(0)
  check(frmDetail.Visible)
end)

case("coming back to the window ends its hold on the commands", function()
  three()
  titles():DblClick(1)
  local turns = 0
  for i = 4, 130 do store.add("Recipe", { RecipeId = i, Title = string.format("Recipe %04d", i) }) end
  frmBrowse:Activate()
  yields(function()
    turns = turns + 1
    frmBrowse.mnuContents:Click()
    equal(helps(), {})
    frmDetail:Activate()
    frmBrowse:Activate()
    equal(frmBrowse.MousePointer, 0)
    frmBrowse.mnuContents:Click()
    equal(helps(), { 0 })
  end)
  frmBrowse.mnuFilter:Click()
  equal(turns, 1)
  equal(titles().ListCount, 130)
end)

-- While a list is being built: act is done at its first turn.
local function whileBusy(act)
  store.create({ ShowRecipes = false })
  store.add("Health", { HealthId = 1, Description = "Low Fat" })
  for i = 1, 150 do store.add("Recipe", { RecipeId = i, Title = string.format("Recipe %04d", i) }) end
  start()
  yields(act)
  frmBrowse.mnuFilter:Click()
end

case("a busy window shuts out its commands", function()
  local entries = { "mnuOptions", "mnuPrintSetup", "mnuViewImportLog", "mnuListLastImported", "mnuClear", "mnuFilter", "mnuAdd", "mnuUpdate",
    "mnuDelete", "mnuFirst", "mnuPrevious", "mnuNext", "mnuLast", "mnuSettings", "mnuCategoriesNationality", "mnuCategoriesCourse",
    "mnuCategoriesCooking", "mnuCategoriesEase", "mnuCategoriesHealth", "mnuCategoriesOther", "mnuMeal", "mnuListListLastImported",
    "mnuContents", "mnuSearch", "mnuAbout", "lblNationality", "lblCourse", "lblCooking", "lblEase", "lblHealth", "lblOther", "lblFilters" }
  local turns = 0
  whileBusy(function()
    turns = turns + 1
    frmBrowse.txtTitle:Type("x")
    for _, entry in ipairs(entries) do frmBrowse[entry]:Click() end
    equal(boxes(), {})
    equal(helps(), {})
    equal(setups(), 0)
    equal(frmBrowse.txtTitle.Text, "x")
    equal(frmBrowse.lblFilters.Caption, "Filters")
    equal(titles().ListIndex, -1)
    check(not frmDetail.Visible)
  end)
  equal(turns, 1)
  equal(titles().ListCount, 150)
end)

case("a busy window shuts out the buttons but Stop", function()
  local turns = 0
  whileBusy(function()
    turns = turns + 1
    for _, key in ipairs({ "Options", "Clear", "Add", "Update", "Delete", "First", "Previous", "Next", "Last", "Settings", "Meal", "Exit",
      "Help" }) do
      frmBrowse.tbBrowse:Press(key)
    end
    equal(boxes(), {})
    equal(helps(), {})
    check(running())
    check(not frmDetail.Visible)
    check(not frmBrowse.tbBrowse:Button("Filter").Visible)
  end)
  equal(turns, 1)
  equal(titles().ListCount, 150)
end)

case("a busy window opens and deletes nothing from its list", function()
  local turns = 0
  whileBusy(function()
    turns = turns + 1
    titles():DblClick(3)
    frmBrowse:Key(13)
    frmBrowse:Key(46)
    check(not frmDetail.Visible)
    equal(boxes(), {})
  end)
  equal(turns, 1)
  equal(#store.rows("Recipe"), 150)
end)

case("a selection is painted, signs are flipped and categories marked also while busy", function()
  whileBusy(function()
    store.set("Recipe", "RecipeId", 4, { Meal = true })
    titles():Pick(3)
    equal(titles():Colours(3), { ForeColor = 6, SelForeColor = 6, SelBackColor = 1 })
    frmBrowse.lstHealth:Toggle(0)
    equal(frmBrowse.lblHealth.Caption, "Health~")
  end)
  yields()
  frmBrowse.lstHealth:Toggle(0)
  frmBrowse.lblFilters:Click()
  local flipped = 0
  yields(function()
    flipped = flipped + 1
    frmBrowse.lblIronSign:Click()
    equal(frmBrowse.lblIronSign.Caption, ">=")
  end)
  frmBrowse.mnuFilter:Click()
  equal(flipped, 1)
end)

case("Exit in the menu works while busy", function()
  whileBusy(function() frmBrowse.mnuExit:Click() end)
  check(not running())
  equal(file.list(), { "PANTRIGO.MDB" })
  equal(#store.rows("Recipe"), 150)
end)

case("Esc and the close mark work while busy", function()
  whileBusy(function() frmBrowse:Key(27) end)
  check(not running())
  equal(file.list(), { "PANTRIGO.MDB" })
  start()
  yields(function() frmBrowse:Close() end)
  frmBrowse.mnuFilter:Click()
  check(not running())
  equal(file.list(), { "PANTRIGO.MDB" })
  equal(boxes(), {})
end)

-- The end.

case("Esc ends the program from every control, without a question and with everything stored", function()
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  for _, name in ipairs({ "txtTitle", "txtIngredient", "cmbEase", "lstOther", "chkMeal", "lstTitles" }) do
    start()
    frmBrowse[name]:Focus()
    frmBrowse:Key(27)
    check(not running(), name)
    equal(boxes(), {}, name)
    equal(file.list(), { "PANTRIGO.MDB" }, name)
  end
end)

case("Esc ends the program also with unsaved changes in the recipe", function()
  three()
  titles():DblClick(1)
  frmDetail.txtServes:Type("9")
  frmBrowse:Activate()
  frmBrowse:Key(27)
  check(not running())
  equal(boxes(), {})
  equal(store.row("Recipe", "RecipeId", 2).Serves, nil)
end)

case("Exit ends the program from the menu and from the tool bar", function()
  three()
  titles():Pick(1)
  frmBrowse.mnuMeal:Click()
  frmBrowse.mnuExit:Click()
  check(not running())
  equal(store.row("Recipe", "RecipeId", 2).Meal, true)
  start()
  frmBrowse.tbBrowse:Press("Exit")
  check(not running())
  equal(boxes(), {})
  equal(file.list(), { "PANTRIGO.MDB" })
end)

case("closing the window closes the store and ends the program", function()
  three()
  frmBrowse:Close()
  check(not running())
  equal(boxes(), {})
  equal(file.list(), { "PANTRIGO.MDB" })
  equal(#store.rows("Recipe"), 3)
end)
