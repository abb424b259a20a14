-- What a save writes into each field.

local function with(recipe, options)
  store.create(options)
  recipe.RecipeId = recipe.RecipeId or 1
  recipe.Title = recipe.Title or "Apple Pie"
  store.add("Recipe", recipe)
  start()
  frmBrowse.lstTitles:DblClick(0)
end

local function saved()
  frmDetail.mnuUpdate:Click()
  equal(boxes(), {})
  return store.rows("Recipe")[1]
end

case("an update without edits leaves what was stored", function()
  store.create()
  store.add("Nationality", { NationalityId = 3, Description = "British" })
  store.add("Health", { HealthId = 1, Description = "Vegetarian" })
  local recipe = { RecipeId = 1, Title = "Apple Pie", Meal = true, Nationality = 3, Serves = 6, Makes = false, PrepareTime = 30, CookTime = 45,
    Comment = "Good cold.", Method = "Mix.\r\nBake.", Source = "Aunt May", Ingredients = "300~mL~milk~warm~1 1/4~cup~2~~eggs~beaten~2~~",
    ConvertCupSpoon = true, Energy = 418.68, Protein = 1.5, Cholesterol = 0, Carbohydrates = 3, Sodium = 4, Fibre = 0.25, Calcium = 6, Fat = 7,
    Iron = 8 }
  store.add("Recipe", recipe)
  store.add("RecipeHealth", { RecipeId = 1, HealthId = 1 })
  start()
  frmBrowse.lstTitles:DblClick(0)
  equal(saved(), recipe)
  equal(store.rows("RecipeHealth"), { { RecipeId = 1, HealthId = 1 } })
end)

case("an emptied category box stores no category", function()
  store.create()
  for place, kind in ipairs({ "Nationality", "Course", "Cooking", "Ease" }) do
    store.add(kind, { [kind .. "Id"] = place, Description = "Some " .. kind })
  end
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Nationality = 1, Course = 2, Cooking = 3, Ease = 4 })
  start()
  frmBrowse.lstTitles:DblClick(0)
  frmDetail.cmbNationality:Type("")
  frmDetail.cmbEase:Type("")
  local row = saved()
  equal(row.Nationality, nil)
  equal(row.Course, 2)
  equal(row.Cooking, 3)
  equal(row.Ease, nil)
end)

case("an emptied number of people is stored as not given", function()
  with({ Serves = 6 })
  frmDetail.txtServes:Type("")
  equal(saved().Serves, nil)
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(frmDetail.txtServes.Text, "")
end)

case("a changed number of people scales the lines that are shown", function()
  with({ Serves = 2, Ingredients = "4~~eggs~~4~~" }, { Settings = 8, SettingsIngredients = true })
  equal(frmDetail.lstIngredient:List(0), "16 eggs")
  frmDetail.txtServes:Type("4")
  local row = saved()
  equal(frmDetail.lstIngredient:List(0), "8 eggs")
  equal(row.Serves, 4)
  equal(row.Ingredients, "4~~eggs~~4~~")
end)

case("a number of people given for the first time scales the lines that are shown", function()
  with({ Ingredients = "4~~eggs~~4~~" }, { Settings = 8, SettingsIngredients = true })
  equal(frmDetail.lstIngredient:List(0), "4 eggs")
  frmDetail.txtServes:Type("2")
  equal(saved().Serves, 2)
  equal(frmDetail.lstIngredient:List(0), "16 eggs")
end)

case("a number of people that stays unknown leaves the lines alone", function()
  with({ Ingredients = "4~~eggs~~4~~" })
  GLOBAL.rows({ { "5", "", "eggs", "", "5", "" } })
  equal(saved().Serves, nil)
  equal(frmDetail.lstIngredient:List(0), "4 eggs")
end)

case("a recipe that comes to make items is scaled no longer, and one that serves again is", function()
  with({ Serves = 2, Ingredients = "4~~eggs~~4~~" }, { Settings = 8, SettingsIngredients = true })
  frmDetail.lblServes:Click()
  equal(saved().Makes, true)
  equal(frmDetail.lstIngredient:List(0), "4 eggs")
  frmDetail.lblServes:Click()
  equal(saved().Makes, false)
  equal(frmDetail.lstIngredient:List(0), "16 eggs")
end)

case("without a change of the people the lines are left alone", function()
  with({ Serves = 2, Ingredients = "4~~eggs~~4~~" }, { Settings = 8, SettingsIngredients = true })
  GLOBAL.rows({ { "5", "", "eggs", "", "5", "" } })
  equal(saved().Serves, 2)
  equal(frmDetail.lstIngredient:List(0), "16 eggs")
end)

case("a time is the leading number of the text, and nothing is 0", function()
  for text, minutes in pairs({ ["1e3"] = 1000, ["1,5"] = 1, ["-4"] = -4, ["99999"] = 99999, [" 12 "] = 12, ["5-"] = 5, ["7.5"] = 7.5, [""] = 0,
    ["&H1F"] = 31 }) do
    with({ PrepareTime = 3, CookTime = 3 })
    frmDetail.txtPrepareTime:Type(text)
    frmDetail.txtCookTime:Type(text)
    local row = saved()
    equal(row.PrepareTime, minutes, text)
    equal(row.CookTime, minutes, text)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("the number of people goes by the whole text", function()
  for text, people in pairs({ ["1e3"] = 1000, ["1,5"] = 15, ["-4"] = -4, ["999"] = 999, ["(5)"] = -5, ["5-"] = -5, ["2.5"] = 2.5, ["007"] = 7 }) do
    with({ Serves = 6 })
    frmDetail.txtServes:Type(text)
    equal(saved().Serves, people, text)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("comments and method are written only when they were changed", function()
  with({ Comment = "old", Method = "old" })
  store.set("Recipe", "RecipeId", 1, { Comment = "meanwhile", Method = "meanwhile" })
  GLOBAL.gCommentsChanged = false
  GLOBAL.gMethodChanged = false
  local row = saved()
  equal(row.Comment, "meanwhile")
  equal(row.Method, "meanwhile")
  frmDetail.txtComments:Type("new")
  row = saved()
  equal(row.Comment, "new")
  equal(row.Method, "meanwhile")
  frmDetail.txtMethod:Type("")
  equal(saved().Method, "")
  equal(GLOBAL.gMethodChanged, false)
end)

case("a method of one megabyte is stored whole", function()
  local method = string.rep("Stir well and wait. ", 50000)
  with({})
  frmDetail.txtMethod.Text = method
  equal(#method, 1000000)
  check(saved().Method == method)
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  check(frmDetail.txtMethod.Text == method)
end)

case("whether cups are converted goes by the mark: anything but 0 is yes", function()
  with({ ConvertCupSpoon = true })
  GLOBAL.gConvertCupSpoon = "0"
  equal(saved().ConvertCupSpoon, false)
  GLOBAL.gConvertCupSpoon = "1"
  equal(saved().ConvertCupSpoon, true)
  GLOBAL.gConvertCupSpoon = ""
  equal(saved().ConvertCupSpoon, true)
end)

case("energy in kilojoules is stored as it stands", function()
  with({ Energy = 100 })
  equal(saved().Energy, 100)
end)

case("energy in calories is multiplied at every save", function()
  with({ Energy = 100 }, { Kilojoules = false })
  equal(saved().Energy, 418.68)
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(GLOBAL.gEnergy, 418.68)
  equal(saved().Energy, 1752.9294)
end)

case("100 calories are 418.68 kilojoules", function()
  with({}, { Kilojoules = false })
  GLOBAL.gEnergy = 100
  equal(saved().Energy, 418.68)
end)

case("the other nutrition values and the source are written at every save", function()
  with({ Protein = 1, Iron = 2, Source = "Aunt May" })
  local fields = { "Protein", "Cholesterol", "Carbohydrates", "Sodium", "Fibre", "Calcium", "Fat", "Iron" }
  for place, field in ipairs(fields) do GLOBAL["g" .. field] = place + 0.5 end
  GLOBAL.gSource = ""
  local row = saved()
  for place, field in ipairs(fields) do equal(row[field], place + 0.5, field) end
  equal(row.Source, "")
end)

case("the meal mark is not touched by a save", function()
  with({ Meal = true })
  frmDetail.txtComments:Type("x")
  equal(saved().Meal, true)
end)

case("the links of both lists are written anew, and only when they were changed", function()
  store.create()
  for id, description in ipairs({ "Low fat", "Low salt", "Vegetarian" }) do
    store.add("Health", { HealthId = id, Description = description })
    store.add("Other", { OtherId = id, Description = description })
  end
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  store.add("RecipeHealth", { RecipeId = 1, HealthId = 1 })
  store.add("RecipeHealth", { RecipeId = 2, HealthId = 1 })
  store.add("RecipeHealth", { RecipeId = 1, HealthId = 77 })
  store.add("RecipeOther", { RecipeId = 1, OtherId = 77 })
  start()
  frmBrowse.lstTitles:DblClick(0)
  saved()
  equal(#store.rows("RecipeHealth"), 3)
  frmDetail.lstHealth:Toggle(0)
  frmDetail.lstHealth:Toggle(1)
  frmDetail.lstHealth:Toggle(2)
  saved()
  equal(store.rows("RecipeHealth"), { { RecipeId = 2, HealthId = 1 }, { RecipeId = 1, HealthId = 2 }, { RecipeId = 1, HealthId = 3 } })
  equal(store.rows("RecipeOther"), { { RecipeId = 1, OtherId = 77 } })
  equal(GLOBAL.gHealthChanged, false)
  equal(GLOBAL.gSqlText, " Delete FROM RecipeHealth WHERE RecipeHealth!RecipeId = 1")
  frmDetail.lstOther:Toggle(2)
  saved()
  equal(store.rows("RecipeOther"), { { RecipeId = 1, OtherId = 3 } })
  equal(GLOBAL.gSqlText, " Delete FROM RecipeOther WHERE RecipeOther!RecipeId = 1")
end)

case("a list from which all was taken leaves no links", function()
  store.create()
  store.add("Other", { OtherId = 4, Description = "Party" })
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  store.add("RecipeOther", { RecipeId = 1, OtherId = 4 })
  start()
  frmBrowse.lstTitles:DblClick(0)
  frmDetail.lstOther:Toggle(0)
  saved()
  equal(store.rows("RecipeOther"), {})
end)
