-- The shared state and the shared routines.

local function begin(options)
  store.create(options)
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Serves = 4 })
  start()
end

case("every scalar can be read and set by its name", function()
  begin()
  local values = {
    gScale = 1.25, gSqlText = "a", gSelectedTitle = "b", gTitleBeforeEdit = "c", gListIndex = 42, gKeepDetailOnActivate = true,
    gDetailChanged = true, gIngredientsChanged = true, gMethodChanged = true, gCommentsChanged = true, gHealthChanged = true,
    gOtherChanged = true, gIngredientLast = 3, gConvertCupSpoon = "1", gWorkQuantity = 1.5, gWorkUnit = "d", gSavedUnit = "e",
    gRowQuantity = "f", gRowUnit = "g", gQuantityText = "h", gPartFraction = "i", gBracketOpen = 1, gBracketClose = 2,
    gBracketAmount = "j", gBracketUnit = "k", gEnergy = 418.68, gProtein = 1.1, gCholesterol = 1.2, gCarbohydrates = 1.3, gSodium = 1.4,
    gFibre = 1.5, gCalcium = 1.6, gFat = 1.7, gIron = 1.8, gSource = "l", gSourceEntered = "m", gCategoryTable = "n",
    gCategoryCaller = "o", gImageRecipeId = 7, gExportFile = "p", gExportDir = "q", gExportSuffix = "r", gImportFile = "s",
    gImportIngredients = "t", gStartDir = "u",
  }
  for name, value in pairs(values) do
    GLOBAL[name] = value
    equal(GLOBAL[name], value, name)
  end
  for name, value in pairs(values) do equal(GLOBAL[name], value, name) end
end)

case("another name, or a value of another type, is an error of the script", function()
  begin()
  check(not pcall(function() return GLOBAL.gNothing end))
  check(not pcall(function() GLOBAL.gNothing = 1 end))
  check(not pcall(function() GLOBAL.gListIndex = "one" end))
  check(not pcall(function() GLOBAL.gDetailChanged = 1 end))
  check(not pcall(function() GLOBAL.gListIndex = 1.5 end))
end)

case("rows are lists of six texts, and set the highest index too", function()
  begin()
  local rows = { { "1", "cup", "flour", "sifted", "1", "cup" }, { "", "", "salt", "", "", "" } }
  GLOBAL.rows(rows)
  equal(GLOBAL.rows(), rows)
  equal(GLOBAL.gIngredientLast, 1)
  GLOBAL.rows({})
  equal(GLOBAL.rows(), {})
  equal(GLOBAL.gIngredientLast, -1)
  check(not pcall(GLOBAL.rows, { { "1" } }))
  check(not pcall(GLOBAL.rows, { "1" }))
end)

case("routines that need no run", function()
  equal(GLOBAL.funEscapeQuote("O'Brien"), "O''Brien")
  equal(GLOBAL.funFractionToDecimal("1 1/2"), "1.5")
  equal({ GLOBAL.subCleanTitle("ANN'S pie") }, { "Ann's Pie", "ANN''S pie" })
  equal(GLOBAL.Val("24 and 57"), 24)
  equal(GLOBAL.IsNumeric("1,000"), true)
  equal(GLOBAL.IsNumeric("1/2"), false)
  equal(GLOBAL.Format(1234, "#,###,##0"), "1,234")
  equal(GLOBAL.Format(12.125, "###.##"), "12.13")
  equal(GLOBAL.Format("0.25", ".##"), ".25")
  equal(GLOBAL.Format("abc", ".##"), "abc")
  equal(GLOBAL.Str(0.5), " .5")
  equal(GLOBAL.Str(-1), "-1")
end)

case("routines that go by the options of the run", function()
  begin()
  equal(GLOBAL.funPartFraction(0.3), "1/2")
  equal(GLOBAL.funPartDecimal(0.3), "0.5")
  equal(GLOBAL.subFormatQuantity(2.25), " 2 1/4")
  equal(GLOBAL.gWorkQuantity, 2.25)
  equal(GLOBAL.gQuantityText, " 2 1/4")
  GLOBAL.rows({ { "", "", "apples", "", "2", "" } })
  GLOBAL.subShowIngredients("s", false)
  equal(frmDetail.lstIngredient:List(0), "2 apples")
end)

case("a quantity is a number or a text, and comes back as it went where nothing was calculated", function()
  begin()
  equal({ GLOBAL.subConvertToBase("kg", 2, 250, 4, "m", "s") }, { "mg", 2000000 })
  equal({ GLOBAL.subConvertToBase("kg", "2", 250, 4, "m", "s") }, { "mg", 2000000 })
  equal({ GLOBAL.subConvertToBase("bag", 2, 250, 4, "m", "s") }, { "bag", 2 })
  equal({ GLOBAL.subConvertToBase("bag", "2", 250, 4, "m", "s") }, { "bag", "2" })
  equal({ GLOBAL.subConvertSystem("mg", 2000000) }, { "mg", 2000000 })
  equal({ GLOBAL.subConvertSystem("mg", "2000000") }, { "mg", 2000000 })
  equal({ GLOBAL.subClimbLadder("mg", 2000000, "m") }, { "kg", 2 })
  equal({ GLOBAL.subClimbLadder("mg", "2000000", "m") }, { "kg", 2 })
end)
