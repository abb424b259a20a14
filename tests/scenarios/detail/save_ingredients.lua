-- The text in which a save stores the ingredient rows.

-- Columns 3 to 6 of a row; columns 1 and 2 are written by the save.
local function row(quantity, unit, description, note)
  return { "old", "old", description or "flour", note or "", quantity, unit }
end

local function prepared(rows, options, convert)
  store.create(options)
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Ingredients = "9~kg~old~~9~kg~" })
  start()
  frmBrowse.lstTitles:DblClick(0)
  GLOBAL.gConvertCupSpoon = convert or "0"
  GLOBAL.rows(rows)
  GLOBAL.subShowIngredients("s", false)
  GLOBAL.gIngredientsChanged = true
end

local function stored(rows, options, convert)
  prepared(rows, options, convert)
  frmDetail.mnuUpdate:Click()
  equal(boxes(), {})
  equal(GLOBAL.gIngredientsChanged, false)
  return store.rows("Recipe")[1].Ingredients
end

case("each row has its base amount before the entry", function()
  equal(stored({ row("1 1/4", "cup", "milk", "warm"), row("2", "", "eggs", "beaten"), row("2", "lb") }),
    "312.5~pgx~milk~warm~1 1/4~cup~2~~eggs~beaten~2~~907184.74~mg~flour~~2~lb~")
  equal(GLOBAL.rows()[1], { "312.5", "pgx", "milk", "warm", "1 1/4", "cup" })
end)

case("cups that are converted end in millilitres", function()
  equal(stored({ row("1 1/4", "cup"), row("1", "tsp") }, nil, "1"), "312.5~mL~flour~~1 1/4~cup~5~mL~flour~~1~tsp~")
end)

case("the base amount goes by the options of the moment", function()
  equal(stored({ row("1", "cup"), row("1", "tbsp") }, { Measurement = "u", Cup = 8, Tablespoon = 3 }),
    "236.58824~pgx~flour~~1~cup~15~pgx~flour~~1~tbsp~")
end)

case("an amount below 1 is kept in its unit where the options say so", function()
  equal(stored({ row("1/2", "kg"), row("2", "kg") }, { UseOriginalUOM = true }), ".5~kg~flour~~1/2~kg~2000000~mg~flour~~2~kg~")
end)

case("a row without a quantity passes with a unit that has no arithmetic, and with none", function()
  equal(stored({ row("", ""), row("", "pinch"), row("3", "bag"), row("1/2", "") }),
    "~~flour~~~~~pinch~flour~~~pinch~3~bag~flour~~3~bag~.5~~flour~~1/2~~")
end)

case("a row without a quantity and with a unit that has arithmetic ends the save", function()
  prepared({ row("2", ""), row("", "cup") })
  frmDetail.txtServes:Type("5")
  local failure = fails(function() frmDetail.mnuUpdate:Click() end)
  equal(failure, { number = 13, text = "Type mismatch" })
  local recipe = store.rows("Recipe")[1]
  equal(recipe.Ingredients, "9~kg~old~~9~kg~")
  equal(recipe.Serves, nil)
end)

case("a quantity that is no number ends the save", function()
  for _, quantity in ipairs({ "some", " ", "1-2" }) do
    prepared({ row(quantity, "") })
    equal(fails(function() frmDetail.mnuUpdate:Click() end).number, 13, quantity)
    file.remove("PANTRIGO.MDB")
  end
end)

case("an error in the rows leaves links and method as they were", function()
  store.create()
  store.add("Health", { HealthId = 1, Description = "Vegetarian" })
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Method = "old" })
  start()
  frmBrowse.lstTitles:DblClick(0)
  frmDetail.lstHealth:Toggle(0)
  frmDetail.txtMethod:Type("new")
  GLOBAL.rows({ row("", "g") })
  GLOBAL.subShowIngredients("s", false)
  GLOBAL.gIngredientsChanged = true
  equal(fails(function() frmDetail.mnuUpdate:Click() end).number, 13)
  equal(store.rows("RecipeHealth"), {})
  equal(store.rows("Recipe")[1].Method, "old")
  equal(boxes()[1].text, "Run-time error '13':\r\n\r\nType mismatch")
  start()
  frmBrowse.lstTitles:DblClick(0)
  equal(frmDetail.txtMethod.Text, "old")
end)

case("the weight in the bracket of a unit is stored for a converted recipe", function()
  equal(stored({ row("1", "cup (5 oz)") }, nil, "1"), "141747.615625~mg~flour~~1~cup (5 oz)~")
end)

case("the count before a bracket plays no part", function()
  equal(stored({ row("2", "cup (5 oz)") }, nil, "1"), "141747.615625~mg~flour~~2~cup (5 oz)~")
end)

case("without conversion the bracket is ignored", function()
  equal(stored({ row("2", "cup (5 oz)") }, nil, "0"), "2~cup (5 oz)~flour~~2~cup (5 oz)~")
end)

case("each weight in a bracket, in milligrams", function()
  for unit, base in pairs({ ["can (2 lb)"] = "907184.74~mg", ["can (400 mg)"] = "400~mg", ["can (40 cg)"] = "400~mg", ["can (400 g)"] = "400000~mg",
    ["can (400g)"] = "400000~mg", ["can ( 5 oz)"] = "141747.615625~mg", ["(5 oz) can"] = "141747.615625~mg" }) do
    equal(stored({ row("3", unit) }, nil, "1"), base .. "~flour~~3~" .. unit .. "~", unit)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("a bracket that holds no readable weight is ignored", function()
  for _, unit in ipairs({ "can (2 kg)", "can (oz)", "can (1 1/2 oz)", "can )5 oz(", "can (5 oz", "can 5 oz)", "can (5 oz) (3)x" }) do
    local base = unit == "can (5 oz) (3)x" and "141747.615625~mg" or "3~" .. unit
    equal(stored({ row("3", unit) }, nil, "1"), base .. "~flour~~3~" .. unit .. "~", unit)
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("no rows are an empty text", function()
  prepared({})
  frmDetail.mnuUpdate:Click()
  equal(store.rows("Recipe")[1].Ingredients or "", "")
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(frmDetail.lstIngredient.ListCount, 0)
end)

case("rows that were not changed are not written", function()
  prepared({ row("2", "lb") })
  GLOBAL.gIngredientsChanged = false
  frmDetail.mnuUpdate:Click()
  equal(store.rows("Recipe")[1].Ingredients, "9~kg~old~~9~kg~")
end)

case("only as many rows are written as the list has lines", function()
  prepared({ row("2", "lb"), row("3", "lb") })
  GLOBAL.rows({ row("2", "lb"), row("3", "lb"), row("4", "lb") })
  frmDetail.mnuUpdate:Click()
  equal(store.rows("Recipe")[1].Ingredients, "907184.74~mg~flour~~2~lb~1360777.11~mg~flour~~3~lb~")
end)

case("a wave sign in any field breaks the rows at the next load, and nothing else", function()
  prepared({ { "", "", "a~b", "c~d", "2", "e~f" } })
  frmDetail.mnuUpdate:Click()
  equal(boxes(), {})
  equal(store.rows("Recipe")[1].Ingredients, "2~e~f~a~b~c~d~2~e~f~")
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(GLOBAL.rows(), { { "2", "e", "f", "a", "b", "c" }, { "d", "2", "e", "f", "", "" } })
  check(running())
end)

case("a wave sign in the quantity ends the save", function()
  prepared({ row("2~3", "") })
  equal(fails(function() frmDetail.mnuUpdate:Click() end).number, 13)
  equal(store.rows("Recipe")[1].Ingredients, "9~kg~old~~9~kg~")
end)

case("a saved recipe shows the same lines again", function()
  prepared({ row("1 1/4", "cup", "milk", "warm"), row("2", "", "eggs"), row("", "", "FOR THE TOP"), row("1/2", "kg") })
  local function lines()
    local found = {}
    for at = 0, frmDetail.lstIngredient.ListCount - 1 do found[at + 1] = frmDetail.lstIngredient:List(at) end
    return found
  end
  local before = lines()
  equal(#before, 4)
  frmDetail.mnuUpdate:Click()
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(lines(), before)
end)
