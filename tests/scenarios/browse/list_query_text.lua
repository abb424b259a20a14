-- The text that the filters are built into, to the character.

local head = " SELECT Distinct Recipe.Title, Recipe.Meal "
local from = " FROM Recipe "

local function open(system)
  store.create(system)
  for _, table in ipairs({ "Nationality", "Course", "Cooking", "Ease", "Health", "Other" }) do
    for id, description in ipairs({ "First", "Chef's", "Third" }) do store.add(table, { [table .. "Id"] = id, Description = description }) end
  end
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  start()
end

-- The text that is built when these boxes hold these texts.
local function textOf(boxes)
  for name, text in pairs(boxes) do frmBrowse[name].Text = text end
  frmBrowse.mnuFilter:Click()
  for name in pairs(boxes) do frmBrowse[name].Text = "" end
  return GLOBAL.gSqlText
end

case("without a filter the text has no condition", function()
  open()
  equal(textOf({}), head .. from)
  equal(textOf({}), " SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe ")
end)

case("a text filter has its own opening when it comes first, and another behind a condition", function()
  open()
  equal(textOf({ txtTitle = "pie" }), head .. from .. " WHERE Recipe.Title like '*pie*'")
  equal(textOf({ txtIngredient = "flour" }), head .. from .. " WHERE Recipe!Ingredients like '*flour*'")
  equal(textOf({ txtSource = "May" }), head .. from .. " WHERE Recipe.Source like '*May*'")
  equal(textOf({ txtComments = "cold" }), head .. from .. " WHERE Recipe.Comment like '*cold*'")
  equal(textOf({ txtMethod = "bake" }), head .. from .. " WHERE Recipe.Method like '*bake*'")
  local title = head .. from .. " WHERE Recipe.Title like '*pie*'"
  equal(textOf({ txtTitle = "pie", txtIngredient = "flour" }), title .. " AND Recipe!Ingredients like '*flour*'")
  equal(textOf({ txtTitle = "pie", txtSource = "May" }), title .. " AND Recipe.Source like '*May*'")
  equal(textOf({ txtTitle = "pie", txtComments = "cold" }), title .. " AND Recipe.Comment like '*cold*'")
  equal(textOf({ txtTitle = "pie", txtMethod = "bake" }), title .. " AND Recipe.Method like '*bake*'")
end)

local kinds = { { "Nationality", "cmbNationality" }, { "Course", "cmbCourse" }, { "Cooking", "cmbCooking" }, { "Ease", "cmbEase" } }

case("a category adds its table and joins it", function()
  open()
  for _, kind in ipairs(kinds) do
    local name, combo = kind[1], kind[2]
    local join = " AND Recipe." .. name .. " = " .. name .. "." .. name .. "Id "
    equal(textOf({ [combo] = "First" }), head .. from .. " ," .. name .. "  WHERE " .. name .. ".Description = 'First'" .. join)
    equal(textOf({ txtTitle = "pie", [combo] = "Chef's" }),
      head .. from .. " ," .. name .. "  WHERE Recipe.Title like '*pie*' AND " .. name .. ".Description = 'Chef''s'" .. join)
  end
end)

case("two categories stand in their order in both places", function()
  open()
  equal(textOf({ cmbCourse = "Third", cmbNationality = "First" }), head .. from .. " ,Nationality  ,Course "
    .. " WHERE Nationality.Description = 'First' AND Recipe.Nationality = Nationality.NationalityId "
    .. " AND Course.Description = 'Third' AND Recipe.Course = Course.CourseId ")
end)

local healthEnd = "' in (Select Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = Health!HealthId and RecipeHealth!RecipeId = Recipe!RecipeId))"

case("each row of Health is a subquery of its own, joined with AND, and adds no table", function()
  open()
  frmBrowse.lstHealth:Toggle(1)
  equal(textOf({}), head .. from .. " WHERE (('Chef''s" .. healthEnd .. ")")
  equal(textOf({ txtTitle = "pie" }), head .. from .. " WHERE Recipe.Title like '*pie*' AND (('Chef''s" .. healthEnd .. ")")
  frmBrowse.lstHealth:Toggle(2)
  equal(textOf({}), head .. from .. " WHERE (('Chef''s" .. healthEnd .. " AND ('Third" .. healthEnd .. ")")
  frmBrowse.lstHealth:Toggle(0)
  equal(textOf({ txtMethod = "bake" }), head .. from .. " WHERE (('First" .. healthEnd .. " AND ('Chef''s" .. healthEnd .. " AND ('Third" .. healthEnd
    .. ") AND Recipe.Method like '*bake*'")
end)

local otherFrom = from .. " ,Other,RecipeOther "
local otherEnd = " ) AND RecipeOther.RecipeId = Recipe.RecipeId  AND RecipeOther.OtherId = Other.OtherId "

case("the rows of Other are joined with OR, and add two tables once", function()
  open()
  frmBrowse.lstOther:Toggle(1)
  equal(textOf({}), head .. otherFrom .. " WHERE (Other.Description = 'Chef''s'" .. otherEnd)
  equal(textOf({ txtTitle = "pie" }), head .. otherFrom .. " WHERE Recipe.Title like '*pie*' AND (Other.Description = 'Chef''s'" .. otherEnd)
  frmBrowse.lstOther:Toggle(0)
  frmBrowse.lstOther:Toggle(2)
  equal(textOf({}), head .. otherFrom .. " WHERE (Other.Description = 'First' OR  Other.Description = 'Chef''s' OR  Other.Description = 'Third'" .. otherEnd)
end)

case("Health and Other together", function()
  open()
  frmBrowse.lstOther:Toggle(0)
  frmBrowse.lstHealth:Toggle(2)
  equal(textOf({}), head .. otherFrom .. " WHERE (('Third" .. healthEnd .. ") AND (Other.Description = 'First'" .. otherEnd)
end)

local numbers = { { "PrepareTime", "Prepare" }, { "CookTime", "Cook" }, { "Energy", "Energy" }, { "Protein", "Protein" },
  { "Carbohydrates", "Carbohydrates" }, { "Fibre", "Fibre" }, { "Fat", "Fat" }, { "Cholesterol", "Cholesterol" }, { "Sodium", "Sodium" },
  { "Calcium", "Calcium" }, { "Iron", "Iron" } }

case("a limit leaves out what was not given, with either sign", function()
  open()
  for _, number in ipairs(numbers) do
    local field, box, sign = "Recipe." .. number[1], "txt" .. number[1], frmBrowse["lbl" .. number[2] .. "Sign"]
    equal(textOf({ [box] = "30" }), head .. from .. " WHERE (" .. field .. " <= 30 AND " .. field .. " <> 0)")
    sign.Caption = ">="
    equal(textOf({ [box] = "30" }), head .. from .. " WHERE (" .. field .. " >= 30 AND " .. field .. " <> 0)")
    equal(textOf({ txtTitle = "pie", [box] = "30" }),
      head .. from .. " WHERE Recipe.Title like '*pie*' AND (" .. field .. " >= 30 AND " .. field .. " <> 0)")
  end
end)

case("a limit goes into the text as typed, energy's as its value", function()
  open()
  for _, number in ipairs(numbers) do
    for typed, energy in pairs({ ["+5"] = "5", [" 5 "] = "5", ["-.5"] = "-1", ["5."] = "5", ["1E+3"] = "1000", ["007"] = "7", ["1e-2"] = "0", ["1e7"] = "1E+07" }) do
      local written = number[1] == "Energy" and energy or typed
      equal(textOf({ ["txt" .. number[1]] = typed }),
        head .. from .. " WHERE (Recipe." .. number[1] .. " <= " .. written .. " AND Recipe." .. number[1] .. " <> 0)")
    end
  end
end)

case("the limit of energy is a whole number, and calories become kilojoules", function()
  open({ Kilojoules = true })
  local function energyOf(typed)
    return string.match(textOf({ txtEnergy = typed }), "%(Recipe%.Energy <= (.*) AND Recipe%.Energy <> 0%)$")
  end
  equal(energyOf("12.6"), "13")
  equal(energyOf("12.5"), "13")
  equal(energyOf("12.4"), "12")
  equal(energyOf("0"), "0")
  equal(energyOf("0.4"), "0")
  equal(energyOf("99999"), "99999")
  store.system({ Kilojoules = false })
  equal(energyOf("250"), "1046.7")
  equal(energyOf("12.6"), "54.4284")
  equal(energyOf("1"), "4.1868")
  equal(energyOf("0"), "0")
  equal(energyOf("-10"), "-41.868")
  equal(energyOf("99999"), "418675.8")
  equal(energyOf("3e6"), "1.25604E+07")
end)

case("energy in calories that no single can hold is an overflow", function()
  open({ Kilojoules = false })
  frmBrowse.txtEnergy.Text = "1e38"
  equal(fails(function() frmBrowse.mnuFilter:Click() end), { number = 6, text = "Overflow" })
end)

case("everything at once, in order", function()
  open()
  local boxes = { txtTitle = "t", txtIngredient = "i", cmbNationality = "First", cmbCourse = "First", cmbCooking = "First", cmbEase = "First",
    txtSource = "s", txtComments = "c", txtMethod = "m" }
  for _, number in ipairs(numbers) do boxes["txt" .. number[1]] = "9" end
  frmBrowse.lstHealth:Toggle(0)
  frmBrowse.lstOther:Toggle(0)
  local limits = ""
  for _, number in ipairs(numbers) do limits = limits .. " AND (Recipe." .. number[1] .. " <= 9 AND Recipe." .. number[1] .. " <> 0)" end
  local categories = ""
  for _, kind in ipairs(kinds) do
    categories = categories .. " AND " .. kind[1] .. ".Description = 'First' AND Recipe." .. kind[1] .. " = " .. kind[1] .. "." .. kind[1] .. "Id "
  end
  equal(textOf(boxes), head .. from .. " ,Nationality  ,Course  ,Cooking  ,Ease  ,Other,RecipeOther "
    .. " WHERE Recipe.Title like '*t*' AND Recipe!Ingredients like '*i*'" .. categories
    .. " AND (('First" .. healthEnd .. ") AND (Other.Description = 'First'" .. otherEnd
    .. " AND Recipe.Source like '*s*'" .. limits .. " AND Recipe.Comment like '*c*' AND Recipe.Method like '*m*'")
  equal(frmBrowse.lstTitles.ListCount, 0)
end)

case("apostrophes are doubled in every text", function()
  open()
  for box, field in pairs({ txtTitle = "Recipe.Title", txtIngredient = "Recipe!Ingredients", txtSource = "Recipe.Source", txtComments = "Recipe.Comment",
    txtMethod = "Recipe.Method" }) do
    equal(textOf({ [box] = "'it''s'" }), head .. from .. " WHERE " .. field .. " like '*''it''''s''*'")
  end
end)

case("the meal box adds nothing to the text", function()
  open()
  frmBrowse.chkMeal:Click()
  equal(textOf({}), head .. from)
  equal(textOf({ txtTitle = "pie" }), head .. from .. " WHERE Recipe.Title like '*pie*'")
end)

case("nothing is trimmed", function()
  open()
  equal(textOf({ txtTitle = " " }), head .. from .. " WHERE Recipe.Title like '* *'")
  equal(textOf({ cmbEase = " " }), head .. from .. " ,Ease  WHERE Ease.Description = ' ' AND Recipe.Ease = Ease.EaseId ")
end)
