-- The filters of the main window: the two pages, the signs, the marks for what is out of sight, the numeric check, clearing, the meal box.

local numbers = { "PrepareTime", "CookTime", "Energy", "Protein", "Carbohydrates", "Fibre", "Fat", "Cholesterol", "Sodium", "Calcium", "Iron" }
local signs = { "Prepare", "Cook", "Energy", "Protein", "Carbohydrates", "Fibre", "Fat", "Cholesterol", "Sodium", "Calcium", "Iron" }
local combos = { "cmbNationality", "cmbCourse", "cmbCooking", "cmbEase" }
local shutByMeal = { "txtTitle", "txtIngredient", "cmbNationality", "cmbCourse", "cmbCooking", "cmbEase", "lstHealth", "lstOther", "lblFilters" }

local firstPage = { "lblTitle", "txtTitle", "lblIngredient", "txtIngredient", "lblNationality", "cmbNationality", "lblCourse", "cmbCourse",
  "lblCooking", "cmbCooking", "lblEase", "cmbEase", "lblHealth", "lstHealth", "lblOther", "lstOther", "chkMeal" }
local continuedPage = { "lblSource", "txtSource", "lblTimeTo", "lblNutrition", "lblComments", "txtComments", "lblMethod", "txtMethod" }
for place, name in ipairs(numbers) do
  for _, control in ipairs({ "lbl" .. name, "lbl" .. signs[place] .. "Sign", "txt" .. name }) do continuedPage[#continuedPage + 1] = control end
end

local notNumeric = { text = "Value entered must be numeric.", caption = "Error", style = 16, answer = "OK" }

local function cookbook(system)
  store.create(system)
  for id, description in ipairs({ "Low fat", "Low salt", "Vegetarian" }) do
    store.add("Health", { HealthId = id, Description = description })
    store.add("Other", { OtherId = id, Description = description })
  end
  store.add("Nationality", { NationalityId = 1, Description = "British" })
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew", Meal = true })
end

local function open(system)
  cookbook(system)
  start()
end

-- The page on show, by every control of both.
local function checkPage(continued)
  for _, name in ipairs(firstPage) do equal(frmBrowse[name].Visible, not continued, name) end
  for _, name in ipairs(continuedPage) do equal(frmBrowse[name].Visible, continued, name) end
end

local function switchPage()
  frmBrowse.lblFilters:Click()
end

case("the captions of the filters", function()
  open()
  local captions = { lblFilters = "Filters", lblTitle = "Title containing:", lblIngredient = "Ingredients containing:", lblNationality = "Nationality/Origin",
    lblCourse = "Course", lblCooking = "Cooking involved", lblEase = "Ease", lblHealth = "Health", lblOther = "Other Categories",
    chkMeal = "Only show recipes included in meal", lblSource = "Source containing:", lblTimeTo = "Time (in minutes) to", lblPrepareTime = "Prepare:",
    lblCookTime = "Cook:", lblNutrition = "Nutrition", lblProtein = "Protein (g):", lblCarbohydrates = "Carbohydrates (g):", lblFibre = "Fibre (g):",
    lblFat = "Fat (g):", lblCholesterol = "Cholesterol (mg):", lblSodium = "Sodium(mg):", lblCalcium = "Calcium (mg):", lblIron = "Iron (mg):",
    lblComments = "Comments containing:", lblMethod = "Method containing:" }
  for name, caption in pairs(captions) do equal(frmBrowse[name].Caption, caption, name) end
  for place in ipairs(numbers) do equal(frmBrowse["lbl" .. signs[place] .. "Sign"].Caption, "<=") end
end)

case("the boxes take as many characters as they say", function()
  open()
  for _, name in ipairs({ "txtTitle", "txtIngredient" }) do equal(frmBrowse[name].MaxLength, 0, name) end
  for _, name in ipairs({ "txtSource", "txtComments", "txtMethod" }) do equal(frmBrowse[name].MaxLength, 50, name) end
  for _, name in ipairs(numbers) do equal(frmBrowse["txt" .. name].MaxLength, 5, name) end
  frmBrowse.txtTitle:Type(string.rep("x", 400))
  equal(#frmBrowse.txtTitle.Text, 400)
  for _, name in ipairs(combos) do
    frmBrowse[name]:Type(string.rep("\u{E9}", 40))
    equal(frmBrowse[name].Text, string.rep("\u{E9}", 30), name)
  end
  switchPage()
  frmBrowse.txtIron:Type("1234567")
  equal(frmBrowse.txtIron.Text, "12345")
  frmBrowse.txtSource:Type(string.rep("\u{E9}", 60))
  equal(frmBrowse.txtSource.Text, string.rep("\u{E9}", 50))
end)

case("a click on the heading goes to the continued page and back", function()
  open()
  checkPage(false)
  equal(frmBrowse.lblFilters.Width, 750)
  switchPage()
  checkPage(true)
  equal(frmBrowse.lblFilters.Caption, "Filters (continued)")
  equal(frmBrowse.lblFilters.Width, 1900)
  equal(focus(), "frmBrowse.txtSource")
  switchPage()
  checkPage(false)
  equal(frmBrowse.lblFilters.Caption, "Filters")
  equal(frmBrowse.lblFilters.Width, 820)
  equal(focus(), "frmBrowse.txtTitle")
  equal(boxes(), {})
end)

case("the widths of the heading are enlarged with the window", function()
  cookbook()
  screen(800, 600)
  start()
  equal(frmBrowse.lblFilters.Width, 937.5)
  switchPage()
  equal(frmBrowse.lblFilters.Width, 2375)
  switchPage()
  equal(frmBrowse.lblFilters.Width, 1025)
  switchPage()
  frmBrowse.mnuClear:Click()
  equal(frmBrowse.lblFilters.Width, 1025)
end)

case("each box of the continued page marks the heading of the first one", function()
  open()
  local boxNames = { "txtSource", "txtComments", "txtMethod" }
  for _, name in ipairs(numbers) do boxNames[#boxNames + 1] = "txt" .. name end
  equal(#boxNames, 14)
  for _, name in ipairs(boxNames) do
    switchPage()
    frmBrowse[name]:Type("1")
    equal(frmBrowse.lblFilters.Caption, "Filters (continued)", name)
    switchPage()
    equal(frmBrowse.lblFilters.Caption, "Filters~", name)
    equal(frmBrowse.lblFilters.Width, 820, name)
    switchPage()
    equal(frmBrowse.lblFilters.Caption, "Filters (continued)", name)
    frmBrowse[name]:Type("")
    switchPage()
    equal(frmBrowse.lblFilters.Caption, "Filters", name)
  end
end)

case("one blank in the comments is a value", function()
  open()
  switchPage()
  frmBrowse.txtComments:Type(" ")
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters~")
end)

case("the mark on the heading is set on the way back only, and values of the first page give none", function()
  open()
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.lstHealth:Toggle(0)
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters (continued)")
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters")
  frmBrowse.txtIron.Text = "5"
  equal(frmBrowse.lblFilters.Caption, "Filters")
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.lblFilters.Caption, "Filters")
end)

case("a flipped sign marks nothing and stays until the filters are cleared", function()
  open()
  switchPage()
  frmBrowse.lblIronSign:Click()
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters")
  equal(frmBrowse.lblIronSign.Caption, ">=")
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.lblIronSign.Caption, ">=")
  frmBrowse.mnuClear:Click()
  equal(frmBrowse.lblIronSign.Caption, "<=")
end)

case("each of the eleven signs flips, and what is no sign becomes one", function()
  open()
  switchPage()
  for _, stem in ipairs(signs) do
    local sign = frmBrowse["lbl" .. stem .. "Sign"]
    sign:Click()
    equal(sign.Caption, ">=", stem)
    sign:Click()
    equal(sign.Caption, "<=", stem)
    sign.Caption = "="
    sign:Click()
    equal(sign.Caption, "<=", stem)
  end
end)

case("the energy label follows the option at each switch, also at one that is refused", function()
  open({ Kilojoules = true })
  switchPage()
  equal(frmBrowse.lblEnergy.Caption, "Energy (kilojoules):")
  store.system({ Kilojoules = false })
  frmBrowse.txtIron:Type("x")
  switchPage()
  equal(boxes(), { notNumeric })
  equal(frmBrowse.lblEnergy.Caption, "Energy (calories):")
  store.system({ Kilojoules = true })
  frmBrowse.txtIron:Type("")
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters")
  equal(frmBrowse.lblEnergy.Caption, "Energy (kilojoules):")
end)

case("the lists mark their labels while a row is selected", function()
  open()
  for _, part in ipairs({ { "lstHealth", "lblHealth", "Health" }, { "lstOther", "lblOther", "Other Categories" } }) do
    local list, label, caption = frmBrowse[part[1]], frmBrowse[part[2]], part[3]
    list:Toggle(2)
    equal(label.Caption, caption .. "~")
    list:Toggle(0)
    equal(label.Caption, caption .. "~")
    list:Toggle(2)
    equal(label.Caption, caption .. "~")
    list:Toggle(0)
    equal(label.Caption, caption)
  end
end)

case("the mark of one list leaves the other's", function()
  open()
  frmBrowse.lstOther:Toggle(1)
  equal(frmBrowse.lblHealth.Caption, "Health")
  equal(frmBrowse.lblOther.Caption, "Other Categories~")
end)

case("letters in two boxes: the first one is reported and gets the focus", function()
  open()
  switchPage()
  frmBrowse.txtIron:Type("abc")
  frmBrowse.txtPrepareTime:Type("soon")
  switchPage()
  equal(boxes(), { notNumeric })
  equal(focus(), "frmBrowse.txtPrepareTime")
  equal(frmBrowse.txtPrepareTime.Text, "soon")
  equal(frmBrowse.txtIron.Text, "abc")
  checkPage(true)
  equal(frmBrowse.lblFilters.Caption, "Filters (continued)")
  equal(frmBrowse.lblFilters.Width, 1900)
end)

case("the boxes are checked in their order", function()
  open()
  switchPage()
  for _, name in ipairs(numbers) do frmBrowse["txt" .. name]:Type("x") end
  for _, name in ipairs(numbers) do
    switchPage()
    equal(boxes(), { notNumeric }, name)
    equal(focus(), "frmBrowse.txt" .. name)
    frmBrowse["txt" .. name]:Type("1")
  end
  switchPage()
  equal(boxes(), {})
  equal(frmBrowse.lblFilters.Caption, "Filters~")
end)

case("what counts as a number", function()
  open({ Kilojoules = true })
  switchPage()
  for _, name in ipairs({ "txtPrepareTime", "txtEnergy", "txtIron" }) do
    for _, text in ipairs({ "0", "30", "-5", "+5", ".5", "5.", "-.5", "1e3", "1E+3", "1e-3", " 5 ", "007", "1e38", "1e-99", "1e-400", "0e999", "-0" }) do
      frmBrowse[name].Text = text
      frmBrowse.mnuFilter:Click()
      contains(GLOBAL.gSqlText, "(Recipe." .. string.sub(name, 4) .. " <= ")
      switchPage()
      equal(boxes(), {}, name .. " takes " .. text)
      equal(frmBrowse.lblFilters.Caption, "Filters~", name .. " takes " .. text)
      switchPage()
    end
    for _, text in ipairs({ " ", "-", "+", ".", "e", "abc", "1,000", "$5", "(5)", "5-", "- 5", "1d2", "&H1F", "1 0", "1.2.3", "--5", "1e", "1e400", "1e39",
      "5x", "1/2", "50%", "\u{661}", "\u{FF11}", "'", "\u{1F355}" }) do
      frmBrowse[name].Text = text
      switchPage()
      equal(boxes(), { notNumeric }, name .. " refuses " .. text)
      equal(focus(), "frmBrowse." .. name)
      equal(frmBrowse[name].Text, text)
    end
    frmBrowse[name].Text = ""
  end
end)

case("source, comments and method take any text", function()
  open()
  switchPage()
  for _, name in ipairs({ "txtSource", "txtComments", "txtMethod" }) do frmBrowse[name]:Type("it's [odd]") end
  switchPage()
  equal(boxes(), {})
  equal(frmBrowse.lblFilters.Caption, "Filters~")
end)

case("a build with a wrong number changes nothing", function()
  open()
  frmBrowse.lstTitles:Pick(1)
  GLOBAL.gSqlText = "as it was"
  switchPage()
  frmBrowse.txtFat:Type("lean")
  frmBrowse.mnuFilter:Click()
  equal(boxes(), { notNumeric })
  equal(focus(), "frmBrowse.txtFat")
  equal(frmBrowse.lstTitles.ListCount, 2)
  equal(frmBrowse.lstTitles.ListIndex, 1)
  equal(frmBrowse.fmeList.Caption, "2 recipe(s) displayed")
  equal(frmBrowse.MousePointer, 0)
  equal(GLOBAL.gSqlText, "as it was")
  checkPage(true)
end)

case("a wrong number that code left behind on the hidden page is a focus that can't be given", function()
  open()
  frmBrowse.txtFat.Text = "lean"
  equal(fails(function() frmBrowse.mnuFilter:Click() end), { number = 5, text = "Invalid procedure call or argument" })
  equal(boxes()[1], notNumeric)
end)

local function fillEverything()
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.txtIngredient:Type("flour")
  for _, name in ipairs(combos) do frmBrowse[name]:Type("British") end
  frmBrowse.lstHealth:Toggle(2)
  frmBrowse.lstOther:Toggle(0)
  frmBrowse.lstHealth.TopIndex = 1
  frmBrowse.lstOther.TopIndex = 2
  switchPage()
  for _, name in ipairs({ "txtSource", "txtComments", "txtMethod" }) do frmBrowse[name]:Type("x") end
  for place, name in ipairs(numbers) do
    frmBrowse["txt" .. name]:Type("7")
    frmBrowse["lbl" .. signs[place] .. "Sign"]:Click()
  end
end

local function checkCleared()
  checkPage(false)
  equal(frmBrowse.lblFilters.Caption, "Filters")
  equal(frmBrowse.lblFilters.Width, 820)
  for _, name in ipairs({ "txtTitle", "txtIngredient", "txtSource", "txtComments", "txtMethod" }) do equal(frmBrowse[name].Text, "", name) end
  for _, name in ipairs(combos) do equal(frmBrowse[name].Text, "", name) end
  for place, name in ipairs(numbers) do
    equal(frmBrowse["txt" .. name].Text, "", name)
    equal(frmBrowse["lbl" .. signs[place] .. "Sign"].Caption, "<=", name)
  end
  for _, name in ipairs({ "lstHealth", "lstOther" }) do
    equal(frmBrowse[name].SelCount, 0, name)
    equal(frmBrowse[name].TopIndex, 0, name)
  end
  equal(frmBrowse.lblHealth.Caption, "Health")
  equal(frmBrowse.lblOther.Caption, "Other Categories")
end

case("clear empties both pages, goes to the first, and lists nothing", function()
  open()
  fillEverything()
  frmBrowse.mnuClear:Click()
  checkCleared()
  equal(focus(), "frmBrowse.txtTitle")
  equal(frmBrowse.lstTitles.ListCount, 2)
  equal(frmBrowse.fmeList.Caption, "2 recipe(s) displayed")
  equal(GLOBAL.gSqlText, "")
  equal(boxes(), {})
end)

case("the Clear button does what the entry does, also with wrong numbers", function()
  open()
  fillEverything()
  frmBrowse.txtIron:Type("x")
  frmBrowse.tbBrowse:Press("Clear")
  checkCleared()
  equal(focus(), "frmBrowse.txtTitle")
  equal(boxes(), {})
end)

case("clear with empty lists", function()
  store.create()
  start()
  frmBrowse.mnuClear:Click()
  equal(frmBrowse.lstHealth.TopIndex, 0)
  equal(frmBrowse.lblHealth.Caption, "Health")
  check(running())
end)

case("filters survive a build and a visit to the detail window", function()
  open()
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.lstHealth:Toggle(1)
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.txtTitle.Text, "pie")
  frmBrowse.mnuAdd:Click()
  frmBrowse:Activate()
  equal(frmBrowse.txtTitle.Text, "pie")
  equal(frmBrowse.lstHealth:Selected(1), true)
  equal(frmBrowse.lblHealth.Caption, "Health~")
end)

case("the meal box clears and shuts the other filters", function()
  open()
  fillEverything()
  switchPage()
  equal(frmBrowse.lblFilters.Caption, "Filters~")
  frmBrowse.chkMeal:Click()
  equal(frmBrowse.chkMeal.Value, true)
  checkCleared()
  for _, name in ipairs(shutByMeal) do equal(frmBrowse[name].Enabled, false, name) end
  for _, name in ipairs({ "lblTitle", "lblHealth", "lblNationality", "txtSource", "txtIron", "chkMeal", "lstTitles" }) do
    equal(frmBrowse[name].Enabled, true, name)
  end
  equal(focus(), "frmBrowse.chkMeal")
  equal(frmBrowse.lstTitles.ListCount, 2)
  check(not pcall(switchPage), "the heading takes no click")
  checkPage(false)
end)

case("the meal box cleared again opens the filters, empty", function()
  open()
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.chkMeal:Click()
  frmBrowse.chkMeal:Click()
  equal(frmBrowse.chkMeal.Value, false)
  for _, name in ipairs(shutByMeal) do equal(frmBrowse[name].Enabled, true, name) end
  equal(frmBrowse.txtTitle.Text, "")
  equal(focus(), "frmBrowse.txtTitle")
end)

case("clear with the meal box ticked clears the tick and opens the filters", function()
  for _, press in ipairs({ function() frmBrowse.mnuClear:Click() end, function() frmBrowse.tbBrowse:Press("Clear") end }) do
    open()
    frmBrowse.chkMeal:Click()
    press()
    equal(frmBrowse.chkMeal.Value, false)
    for _, name in ipairs(shutByMeal) do equal(frmBrowse[name].Enabled, true, name) end
    equal(focus(), "frmBrowse.txtTitle")
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

-- A cookbook that is long enough for a build to let events in.
local function longList(event)
  store.create()
  for id = 1, 150 do store.add("Recipe", { RecipeId = id, Title = string.format("Dish %03d", id) }) end
  store.add("Health", { HealthId = 1, Description = "Low fat" })
  start()
  local turns = 0
  yields(function()
    turns = turns + 1
    event()
  end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(turns, 1)
  equal(frmBrowse.lstTitles.ListCount, 150)
end

case("the pages don't switch while a list is built", function()
  longList(function()
    switchPage()
    checkPage(false)
    equal(frmBrowse.lblFilters.Width, 750)
    equal(frmBrowse.lblEnergy.Caption, "Energy:")
  end)
  checkPage(false)
end)

case("clear does nothing while a list is built", function()
  longList(function()
    frmBrowse.txtTitle.Text = "kept"
    frmBrowse.mnuClear:Click()
    frmBrowse.tbBrowse:Press("Clear")
  end)
  equal(frmBrowse.txtTitle.Text, "kept")
end)

case("the meal box takes its tick while a list is built, and does no more", function()
  longList(function()
    frmBrowse.txtTitle.Text = "kept"
    frmBrowse.chkMeal:Click()
    equal(frmBrowse.chkMeal.Value, true)
    equal(frmBrowse.txtTitle.Enabled, true)
  end)
  equal(frmBrowse.txtTitle.Text, "kept")
  equal(frmBrowse.txtTitle.Enabled, true)
  frmBrowse.txtTitle.Text = ""
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.lstTitles.ListCount, 0)
end)

case("signs flip and lists are marked while a list is built", function()
  longList(function()
    frmBrowse.lstHealth:Toggle(0)
    equal(frmBrowse.lblHealth.Caption, "Health~")
  end)
end)

case("a sign that flips during a build is for the next one", function()
  store.create()
  for id = 1, 150 do store.add("Recipe", { RecipeId = id, Title = string.format("Dish %03d", id), Iron = 5 }) end
  start()
  switchPage()
  frmBrowse.txtIron:Type("6")
  yields(function() frmBrowse.lblIronSign:Click() end)
  frmBrowse.mnuFilter:Click()
  yields()
  equal(frmBrowse.lstTitles.ListCount, 150)
  equal(frmBrowse.lblIronSign.Caption, ">=")
  frmBrowse.mnuFilter:Click()
  equal(frmBrowse.lstTitles.ListCount, 0)
end)
