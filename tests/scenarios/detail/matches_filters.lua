-- Whether the recipe on show matches the filters of the main window: the last filter that is set decides.

local yes, no, none = -1, 0, 9

local function shown()
  store.create()
  store.add("Nationality", { NationalityId = 3, Description = "British" })
  store.add("Course", { CourseId = 5, Description = "Desserts" })
  store.add("Cooking", { CookingId = 2, Description = "Baking" })
  store.add("Ease", { EaseId = 1, Description = "Easy" })
  for id, description in ipairs({ "Low fat", "Low salt", "Vegetarian" }) do
    store.add("Health", { HealthId = id, Description = description })
    store.add("Other", { OtherId = id, Description = description })
  end
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Nationality = 3, Course = 5, Cooking = 2, Ease = 1, Serves = 6, PrepareTime = 100,
    CookTime = 45, Comment = "Good cold.", Method = "Bake.", Source = "Aunt May", Ingredients = "2~~apples~~2~~3~~Eggs~~3~~", Energy = 50,
    Protein = 50, Carbohydrates = 50, Fibre = 50, Fat = 50, Cholesterol = 50, Sodium = 50, Calcium = 50, Iron = 50 })
  store.add("RecipeHealth", { RecipeId = 1, HealthId = 2 })
  start()
  frmBrowse.lstTitles:DblClick(0)
end

local function matches()
  return GLOBAL.funMatchesFilters()
end

case("without a filter the answer is that there is none", function()
  shown()
  equal(matches(), none)
end)

case("the title contains the text, whatever its letter case", function()
  shown()
  frmBrowse.txtTitle.Text = "PPLE p"
  equal(matches(), yes)
  frmBrowse.txtTitle.Text = "pear"
  equal(matches(), no)
  frmDetail.txtTitle.Text = "r\u{F6}sti"
  frmBrowse.txtTitle.Text = "R\u{D6}"
  equal(matches(), yes)
end)

case("a line of ingredients contains the text in its exact letter case", function()
  shown()
  for text, verdict in pairs({ ["apples"] = yes, ["2 app"] = yes, ["Eggs"] = yes, ["eggs"] = no, ["milk"] = no }) do
    frmBrowse.txtIngredient.Text = text
    equal(matches(), verdict, text)
  end
end)

case("a category is the same text in its exact letter case", function()
  shown()
  for name, text in pairs({ cmbNationality = "British", cmbCourse = "Desserts", cmbCooking = "Baking", cmbEase = "Easy" }) do
    frmBrowse[name].Text = text
    equal(matches(), yes, name)
    frmBrowse[name].Text = text:lower()
    equal(matches(), no, name)
    frmBrowse[name].Text = text .. "x"
    equal(matches(), no, name)
    frmBrowse[name].Text = ""
  end
end)

case("of the list rows one that both have is enough", function()
  for _, name in ipairs({ "lstHealth", "lstOther" }) do
    shown()
    frmDetail.lstOther:Toggle(1)
    frmBrowse:Activate()
    GLOBAL.gKeepDetailOnActivate = true
    frmBrowse[name]:Toggle(0)
    equal(matches(), no, name)
    frmBrowse[name]:Toggle(1)
    equal(matches(), yes, name)
    frmBrowse[name]:Toggle(2)
    equal(matches(), yes, name)
    frmBrowse[name]:Toggle(1)
    equal(matches(), no, name)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("lists without a selected row leave the verdict before them", function()
  shown()
  frmBrowse.cmbEase.Text = "Hard"
  equal(matches(), no)
  frmBrowse.cmbEase.Text = "Easy"
  equal(matches(), yes)
end)

case("times compare as texts", function()
  shown()
  for filter, verdict in pairs({ ["60"] = yes, ["100"] = yes, ["1"] = no, ["099"] = no, ["2"] = yes }) do
    frmBrowse.txtPrepareTime.Text = filter
    equal(matches(), verdict, filter)
  end
  frmBrowse.lblPrepareSign.Caption = ">="
  for filter, verdict in pairs({ ["60"] = no, ["100"] = yes, ["1"] = yes, ["1000"] = no }) do
    frmBrowse.txtPrepareTime.Text = filter
    equal(matches(), verdict, filter)
  end
  frmBrowse.txtPrepareTime.Text = ""
  for filter, verdict in pairs({ ["45"] = yes, ["5"] = yes, ["44"] = no }) do
    frmBrowse.txtCookTime.Text = filter
    equal(matches(), verdict, filter)
  end
  frmBrowse.lblCookSign.Caption = "="
  frmBrowse.txtCookTime.Text = "44"
  equal(matches(), yes)
end)

case("a time that is not given is at most anything and at least nothing", function()
  shown()
  frmDetail.txtPrepareTime.Text = ""
  frmBrowse.txtPrepareTime.Text = "0"
  equal(matches(), yes)
  frmBrowse.lblPrepareSign.Caption = ">="
  equal(matches(), no)
end)

case("nutrition values compare as numbers", function()
  shown()
  for _, nutrient in ipairs({ "Energy", "Protein", "Carbohydrates", "Fibre", "Fat", "Cholesterol", "Sodium", "Calcium", "Iron" }) do
    local box, sign = frmBrowse["txt" .. nutrient], frmBrowse["lbl" .. nutrient .. "Sign"]
    for filter, verdict in pairs({ ["50"] = yes, ["100"] = yes, ["6"] = no, ["49.9"] = no, ["1e3"] = yes }) do
      box.Text = filter
      equal(matches(), verdict, nutrient .. " at most " .. filter)
    end
    sign.Caption = ">="
    for filter, verdict in pairs({ ["50"] = yes, ["100"] = no, ["6"] = yes, ["50.1"] = no, ["-1"] = yes }) do
      box.Text = filter
      equal(matches(), verdict, nutrient .. " at least " .. filter)
    end
    box.Text = ""
  end
end)

case("a value with a fraction equals its own text", function()
  shown()
  GLOBAL.gFat = 33.3
  frmBrowse.txtFat.Text = "33.3"
  equal(matches(), yes)
  frmBrowse.lblFatSign.Caption = ">="
  equal(matches(), yes)
end)

case("comments contain the text in its exact letter case", function()
  shown()
  frmBrowse.txtComments.Text = "cold"
  equal(matches(), yes)
  frmBrowse.txtComments.Text = "COLD"
  equal(matches(), no)
end)

case("a filter on the method and the meal box count for nothing", function()
  shown()
  frmBrowse.txtMethod.Text = "nothing of the kind"
  equal(matches(), none)
  frmBrowse.chkMeal.Value = true
  equal(matches(), none)
end)

case("a filter on the source is an error", function()
  shown()
  frmBrowse.txtSource.Text = "May"
  equal(fails(function() GLOBAL.funMatchesFilters() end), { number = 438, text = "Object doesn't support this property or method" })
end)

case("the last filter decides, not all of them", function()
  shown()
  local order = {
    { function(t) frmBrowse.txtTitle.Text = t end, "Apple", "Pear" },
    { function(t) frmBrowse.txtIngredient.Text = t end, "apples", "milk" },
    { function(t) frmBrowse.cmbNationality.Text = t end, "British", "French" },
    { function(t) frmBrowse.cmbCourse.Text = t end, "Desserts", "Soups" },
    { function(t) frmBrowse.cmbCooking.Text = t end, "Baking", "None" },
    { function(t) frmBrowse.cmbEase.Text = t end, "Easy", "Hard" },
    { function(t) frmBrowse.txtPrepareTime.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtCookTime.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtEnergy.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtProtein.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtCarbohydrates.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtFibre.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtFat.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtCholesterol.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtSodium.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtCalcium.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtIron.Text = t end, "60", "0" },
    { function(t) frmBrowse.txtComments.Text = t end, "Good", "Bad" },
  }
  for place, filter in ipairs(order) do
    filter[1](filter[3])
    equal(matches(), no, place .. " no")
    filter[1](filter[2])
    equal(matches(), yes, place .. " yes")
    filter[1](place % 2 == 0 and filter[2] or filter[3])
  end
end)

case("the lists stand between ease and the times", function()
  shown()
  frmBrowse.cmbEase.Text = "Hard"
  frmBrowse:Activate()
  GLOBAL.gKeepDetailOnActivate = true
  frmBrowse.lstHealth:Toggle(1)
  equal(matches(), yes)
  frmBrowse.lstOther:Toggle(0)
  equal(matches(), no)
  frmBrowse.txtPrepareTime.Text = "60"
  equal(matches(), yes)
end)

case("a title and a course filter: matching the course alone is enough", function()
  shown()
  frmBrowse.txtTitle.Text = "pear"
  frmBrowse.cmbCourse.Text = "Desserts"
  equal(matches(), yes)
end)

case("what is typed counts, not what is stored", function()
  shown()
  frmBrowse.txtComments.Text = "hot"
  equal(matches(), no)
  frmDetail.txtComments:Type("Better hot.")
  equal(matches(), yes)
end)

case("a nutrition filter that is no number is an error, and only behind the store", function()
  shown()
  frmBrowse.txtFat.Text = "abc"
  frmDetail.txtComments:Type("Better hot.")
  equal(fails(function() frmDetail.mnuUpdate:Click() end), { number = 13, text = "Type mismatch" })
  equal(store.row("Recipe", "RecipeId", 1).Comment, "Better hot.")
end)
