-- What a change of the options does: to the windows at once, to recipes when they are next shown.

local function begin(system, ingredients)
  store.create(system)
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Serves = 4, Ingredients = ingredients or "2~~eggs~~2~~" })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  start()
end

local function accept(...)
  local controls = { ... }
  modal("frmOptions", function()
    for _, name in ipairs(controls) do frmOptions[name]:Click() end
    frmOptions.cmdOK:Click()
  end)
  frmBrowse.mnuOptions:Click()
end

-- The lines of the pie, shown afresh.
local function lines()
  frmBrowse.lstTitles:DblClick(0)
  local list = {}
  for row = 0, frmDetail.lstIngredient.ListCount - 1 do list[#list + 1] = frmDetail.lstIngredient:List(row) end
  return list
end

local function browseStands(shown, scale)
  local gained = shown and 0 or 640
  local places = {
    { "fmeList", "Top", 640 - gained }, { "fmeFilters", "Top", 640 - gained }, { "fmeList", "Height", 5955 + gained },
    { "fmeFilters", "Height", 5955 + gained }, { "lstTitles", "Height", 5550 + gained }, { "chkMeal", "Top", 5535 + gained },
    { "lstOther", "Height", 810 + gained },
  }
  equal(frmBrowse.tbBrowse.Visible, shown)
  equal(frmDetail.tbDetail.Visible, shown)
  for _, place in ipairs(places) do equal(frmBrowse[place[1]][place[2]], place[3] * scale, place[1] .. "." .. place[2]) end
end

case("tool bars go and come at once, and the lists take the room", function()
  for _, width in ipairs({ 640, 800, 1024 }) do
    screen(width, width * 3 / 4)
    begin()
    browseStands(true, width / 640)
    accept("chkShowToolbars")
    browseStands(false, width / 640)
    equal(store.system().ShowToolBars, false)
    accept("chkShowToolbars")
    browseStands(true, width / 640)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("the frames of an open recipe move when it next shows one", function()
  begin()
  frmBrowse.lstTitles:DblClick(0)
  equal(frmDetail.fmeTitle.Top, 640)
  accept("chkShowToolbars")
  equal(frmDetail.tbDetail.Visible, false)
  equal(frmDetail.fmeTitle.Top, 640)
  frmDetail:Activate()
  equal(frmDetail.fmeTitle.Top, 0)
end)

case("the frames of an open recipe that is to be kept wait for the load after that", function()
  begin()
  frmBrowse.lstTitles:DblClick(0)
  accept("chkShowToolbars")
  GLOBAL.gKeepDetailOnActivate = true
  frmDetail:Activate()
  equal(frmDetail.tbDetail.Visible, false)
  equal(frmDetail.fmeTitle.Top, 640)
  frmDetail:Key(34)
  equal(frmDetail.fmeTitle.Top, 0)
end)

case("the label of the energy filter follows at once", function()
  begin()
  equal(frmBrowse.lblEnergy.Caption, "Energy:")
  accept()
  equal(frmBrowse.lblEnergy.Caption, "Energy (kilojoules):")
  accept("optCalories")
  equal(frmBrowse.lblEnergy.Caption, "Energy (calories):")
  accept("optKilojoules")
  equal(frmBrowse.lblEnergy.Caption, "Energy (kilojoules):")
end)

case("the list of the next start follows", function()
  begin()
  accept("chkShowRecipes")
  equal(frmBrowse.lstTitles.ListCount, 2)
  stop()
  start()
  equal(frmBrowse.lstTitles.ListCount, 0)
  equal(frmBrowse.fmeList.Caption, "0 recipe(s) displayed")
  accept("chkShowRecipes")
  equal(frmBrowse.lstTitles.ListCount, 0)
  stop()
  start()
  equal(frmBrowse.lstTitles.ListCount, 2)
end)

case("tool bars that are off stay off at the next start", function()
  begin()
  accept("chkShowToolbars")
  stop()
  start()
  browseStands(false, 1)
end)

case("a measurement system is named by the recipe, and its amounts follow", function()
  begin({}, "16~oz~plums~~16~oz~")
  equal(lines(), { "453 3/4 g plums" })
  equal(frmDetail.lblMeasurement.Caption, "(metric)")
  accept("optUKImperial")
  equal(lines(), { "1 lb plums" })
  equal(frmDetail.lblMeasurement.Caption, "(UK imperial)")
  accept("optUSImperial")
  equal(lines(), { "1 lb plums" })
  equal(frmDetail.lblMeasurement.Caption, "(US imperial)")
  accept("optMetric")
  equal(lines(), { "453 3/4 g plums" })
end)

case("an open recipe follows when its window is next activated", function()
  begin({}, "16~oz~plums~~16~oz~")
  frmBrowse.lstTitles:DblClick(0)
  accept("optUKImperial")
  equal(frmDetail.lblMeasurement.Caption, "(metric)")
  frmDetail:Activate()
  equal(frmDetail.lblMeasurement.Caption, "(UK imperial)")
  equal(frmDetail.lstIngredient:List(0), "1 lb plums")
end)

case("part quantities follow their step and their form", function()
  begin({}, "1.3~~eggs~~1.3~~")
  equal(lines(), { "1 1/2 eggs" })
  local shown = { optTenth = "1 3/10 eggs", optHalf = "1 1/2 eggs", optThird = "1 1/3 eggs", optQuarter = "1 1/2 eggs" }
  for option, line in pairs(shown) do
    accept(option)
    equal(lines(), { line }, option)
  end
  local decimals = { optTenth = "1.3 eggs", optHalf = "1.5 eggs", optThird = "1.33 eggs", optQuarter = "1.5 eggs" }
  for option, line in pairs(decimals) do
    accept("optDecimals", option)
    equal(lines(), { line }, option)
  end
end)

case("a centi level that is skipped is no longer shown", function()
  begin({ Centilitres = false, Centimetres = false, Centigrams = false },
    "15~mL~oil~~15~mL~15~mm~vanilla~~15~mm~15~mg~saffron~~15~mg~")
  equal(lines(), { "1 1/2 cL oil", "1 1/2 cm vanilla", "1 1/2 cg saffron" })
  accept("chkCentilitres")
  equal(lines(), { "15 mL oil", "1 1/2 cm vanilla", "1 1/2 cg saffron" })
  accept("chkCentimetres")
  equal(lines(), { "15 mL oil", "15 mm vanilla", "1 1/2 cg saffron" })
  accept("chkCentigrams")
  equal(lines(), { "15 mL oil", "15 mm vanilla", "15 mg saffron" })
  accept("chkCentilitres", "chkCentimetres", "chkCentigrams")
  equal(lines(), { "1 1/2 cL oil", "1 1/2 cm vanilla", "1 1/2 cg saffron" })
end)

case("the original units of small amounts are kept when it is asked for", function()
  begin({}, "500000~mg~flour~~1/2~kg~")
  equal(lines(), { "500 g flour" })
  accept("chkUseOriginalUOM")
  equal(lines(), { "1/2 kg flour" })
end)

case("the people catered for are shown and counted when it is asked for", function()
  begin({ Settings = 8 })
  equal(lines(), { "2 eggs" })
  equal(frmDetail.lblSettings.Caption, "")
  accept("chkSettingsIngredients")
  equal(lines(), { "4 eggs" })
  equal(frmDetail.lblSettings.Caption, "(8)")
end)

case("the size of the cup and of the spoon counts at the next showing", function()
  begin({ Tablespoon = 4 }, "60~pgx~cream~~12~tsp~")
  equal(lines(), { "3 tbsp cream" })
  modal("frmOptions", function()
    frmOptions.txtTablespoon:Type("3")
    frmOptions.cmdOK:Click()
  end)
  frmBrowse.mnuOptions:Click()
  equal(lines(), { "4 tbsp cream" })
  modal("frmOptions", function()
    frmOptions.txtCup:Type("60")
    frmOptions.cmdOK:Click()
  end)
  frmBrowse.mnuOptions:Click()
  equal(lines(), { "1 cup cream" })
end)

case("the energy of the open recipe is shown in the unit that was chosen", function()
  begin()
  store.set("Recipe", "RecipeId", 1, { Energy = 418.68 })
  accept("optCalories")
  frmBrowse.lstTitles:DblClick(0)
  modal("frmNutrition", function() equal(frmNutrition.txtEnergy.Text, "100") end)
  frmDetail.mnuNutrition:Click()
end)
