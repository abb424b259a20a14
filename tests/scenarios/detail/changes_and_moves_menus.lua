-- The menus, the tool bar and the keys of the detail window.

local function three(row)
  store.create()
  for id, title in ipairs({ "Apple Pie", "Beef Stew", "Carrot Cake" }) do store.add("Recipe", { RecipeId = id, Title = title }) end
  start()
  frmBrowse.lstTitles:DblClick(row or 0)
end

local buttons = {
  { "Clear", "Clear recipe details" }, { "Find", "Find recipe" }, { "Add", "Add recipe" }, { "Update", "Update recipe" },
  { "Delete", "Delete recipe" }, { "Print", "Print recipe or shopping list" }, { "First", "Go to first recipe" },
  { "Previous", "Go to previous recipe" }, { "Next", "Go to next recipe" }, { "Last", "Go to last recipe" },
  { "Settings", "Number of settings to cater for" }, { "Nutrition", "Show nutrition details" }, { "Meal", "Include recipe in meal" },
  { "Oven", "Oven conversion chart" }, { "Exit", "Exit Recipe Detail" }, { "Help", "Help" },
}

local captions = {
  mnuFile = "&File", mnuPrinterSetup = "Printer &Setup", mnuPrint = "&Print", mnuSep1 = "-", mnuExit = "E&xit               Esc",
  mnuEdit = "&Edit", mnuClear = "&Clear", mnuFind = "&Find", mnuSep2 = "-", mnuAdd = "&Add", mnuUpdate = "&Update", mnuDelete = "&Delete",
  mnuNavigate = "&Navigate", mnuFirst = "&First", mnuPrevious = "&Previous", mnuNext = "&Next", mnuLast = "&Last",
  mnuSettings = "&Settings", mnuNutrition = "Nu&trition", mnuCategories = "Cate&gories", mnuCategoriesNationality = "&Nationality",
  mnuCategoriesCoarse = "&Course", mnuCategoriesCooking = "Coo&king", mnuCategoriesEase = "&Ease", mnuCategoriesHealth = "&Health",
  mnuCategoriesOther = "&Other", mnuMeal = "&Meal", mnuOven = "&Oven", mnuSource = "Sour&ce", mnuImages = "&Images",
  mnuHelp = "&Help", mnuContents = "&Contents", mnuSearch = "&Search", mnuAbout = "&About",
}

case("every entry has its caption", function()
  three()
  for entry, caption in pairs(captions) do equal(frmDetail[entry].Caption, caption, entry) end
end)

case("the tool bar has three spacers and sixteen buttons, in order", function()
  three()
  local keys = frmDetail.tbDetail:Buttons()
  equal(#keys, 19)
  for place = 1, 3 do equal(keys[place], "") end
  for place, button in ipairs(buttons) do
    equal(keys[place + 3], button[1])
    equal(frmDetail.tbDetail:Button(button[1]).ToolTip, button[2])
  end
end)

case("buttons do what their entries do", function()
  three(1)
  local bar = frmDetail.tbDetail
  bar:Press("Next")
  equal(frmDetail.txtTitle.Text, "Carrot Cake")
  bar:Press("Previous")
  equal(frmDetail.txtTitle.Text, "Beef Stew")
  bar:Press("Clear")
  equal(frmDetail.txtTitle.Text, "")
  frmDetail.txtTitle:Type("Duck")
  bar:Press("Add")
  equal(store.row("Recipe", "RecipeId", 4).Title, "Duck")
  frmDetail.txtComments:Type("x")
  bar:Press("Update")
  equal(store.row("Recipe", "RecipeId", 4).Comment, "x")
  answer("Yes")
  bar:Press("Delete")
  equal(store.row("Recipe", "RecipeId", 4), nil)
  frmDetail.txtTitle:Type("carrot")
  bar:Press("Find")
  equal(frmDetail.txtTitle.Text, "Carrot Cake")
  bar:Press("First")
  equal(frmDetail.txtTitle.Text, "Apple Pie")
  bar:Press("Last")
  equal(frmDetail.txtTitle.Text, "Carrot Cake")
  bar:Press("Meal")
  equal(store.row("Recipe", "RecipeId", 3).Meal, true)
  bar:Press("Exit")
  check(not frmDetail.Visible)
  check(running())
end)

case("buttons open the dialogs of their entries", function()
  three()
  local seen = {}
  for _, name in ipairs({ "frmSettings", "frmNutrition", "frmOven" }) do
    for _ = 1, 2 do modal(name, function() seen[#seen + 1] = name end) end
  end
  frmDetail.tbDetail:Press("Settings")
  frmDetail.mnuSettings:Click()
  frmDetail.tbDetail:Press("Nutrition")
  frmDetail.mnuNutrition:Click()
  frmDetail.tbDetail:Press("Oven")
  frmDetail.mnuOven:Click()
  equal(seen, { "frmSettings", "frmSettings", "frmNutrition", "frmNutrition", "frmOven", "frmOven" })
end)

case("help is that of the window or the contents, and a search asks for no page", function()
  three()
  frmDetail.tbDetail:Press("Help")
  equal(helps(), { 400 })
  frmDetail.mnuContents:Click()
  equal(helps(), { 0 })
  frmDetail.mnuSearch:Click()
  equal(helps(), {})
  check(running())
end)

case("the printer is set up", function()
  three()
  frmDetail.mnuPrinterSetup:Click()
  equal(setups(), 1)
end)

case("after the about box the recipe is loaded again, after the oven chart it is not", function()
  three()
  frmDetail.txtServes:Type("9")
  modal("frmOven", function() frmOven.cmdCancel:Click() end)
  frmDetail.mnuOven:Click()
  equal(frmDetail.txtServes.Text, "9")
  modal("frmAbout", function() frmAbout.cmdOK:Click() end)
  frmDetail.mnuAbout:Click()
  equal(frmDetail.txtServes.Text, "")
  equal(boxes(), {})
end)

case("the page keys step also from the boxes of many lines", function()
  three()
  frmDetail.txtMethod:Focus()
  frmDetail:Key(34)
  equal(frmDetail.txtTitle.Text, "Beef Stew")
  equal(focus(), "frmDetail.txtTitle")
  frmDetail.txtComments:Focus()
  frmDetail:Key(33)
  equal(frmDetail.txtTitle.Text, "Apple Pie")
end)

case("Page Up on the first title loads it again and stays", function()
  three()
  frmDetail.txtServes:Type("9")
  answer("Yes")
  frmDetail:Key(33)
  equal(boxes()[1].text, "Any changes made will be lost. Proceed with request?")
  equal(frmDetail.txtTitle.Text, "Apple Pie")
  equal(frmDetail.txtServes.Text, "")
  equal(frmBrowse.lstTitles.ListIndex, 0)
  equal(GLOBAL.gListIndex, 1)
end)

case("a move to a title that has vanished leaves the form, with the row selected", function()
  three()
  store.remove("Recipe", "RecipeId", 2)
  frmDetail.mnuNext:Click()
  equal(frmDetail.txtTitle.Text, "Apple Pie")
  equal(GLOBAL.gSelectedTitle, "Beef Stew")
  equal(frmBrowse.lstTitles.ListIndex, 1)
end)

case("a find behind the answer Yes keeps what was typed out of the store", function()
  three()
  frmDetail.txtComments:Type("new")
  frmDetail.txtTitle:Type("beef")
  answer("Yes")
  frmDetail.mnuFind:Click()
  equal(boxes()[1].text, "Any changes made will be lost. Proceed with request?")
  equal(frmDetail.txtTitle.Text, "Beef Stew")
  equal(frmDetail.txtComments.Text, "")
  equal(GLOBAL.gDetailChanged, false)
  equal(store.row("Recipe", "RecipeId", 1).Comment, nil)
end)

case("a cleared form keeps what the serves label says, and the marks of memos", function()
  three()
  frmDetail.lblServes:Click()
  frmDetail.txtComments:Type("x")
  GLOBAL.gIngredientsChanged = true
  answer("Yes")
  frmDetail.mnuClear:Click()
  boxes()
  equal(frmDetail.lblServes.Caption, "Makes")
  equal(GLOBAL.gCommentsChanged, true)
  equal(GLOBAL.gIngredientsChanged, true)
  equal(GLOBAL.gDetailChanged, false)
  frmBrowse:Activate()
  frmDetail:Activate()
  equal(GLOBAL.gCommentsChanged, true)
  equal(GLOBAL.gIngredientsChanged, true)
end)
