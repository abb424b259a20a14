-- The unit box of the ingredient dialog: its words, what becomes of a typed word, and the box about cups and spoons.

local function recipe(ingredients, fields)
  local row = { RecipeId = 1, Title = "Apple Pie", Ingredients = ingredients }
  for key, value in pairs(fields or {}) do row[key] = value end
  store.add("Recipe", row)
end

-- Opens the dialog over the first row of a recipe, and does something in it.
local function inDialog(options, work, fields)
  store.create(options)
  recipe("~~eggs~~2~~", fields)
  start()
  frmBrowse.lstTitles:DblClick(0)
  modal("frmIngredient", work)
  frmDetail.lstIngredient:Pick(0)
end

local function words()
  local list = {}
  for i = 0, frmIngredient.cmbUnit.ListCount - 1 do list[#list + 1] = frmIngredient.cmbUnit:List(i) end
  return list
end

-- Makes the words of a new store these ones: pairs of kind and word.
local function onlyWords(rows)
  for _, kind in ipairs({ "a", "i", "m", "u" }) do store.remove("Unit", "Type", kind) end
  for _, row in ipairs(rows) do store.add("Unit", { Type = row[1], Description = row[2] }) end
end

local function wordsIn(measurement, rows)
  store.create({ Measurement = measurement })
  onlyWords(rows or {
    { "u", "US pint" }, { "m", "mL" }, { "a", "pinch" }, { "i", "UK pint" }, { "a", "cup" }, { "m", "g" }, { "u", "US cup" }, { "i", "stone" },
  })
  recipe("~~eggs~~2~~")
  start()
  frmBrowse.lstTitles:DblClick(0)
  local list
  modal("frmIngredient", function() list = words() end)
  frmDetail.lstIngredient:Pick(0)
  return list
end

case("the list holds the common words and those of metric", function()
  equal(wordsIn("m"), { "pinch", "cup", "mL", "g" })
end)

case("the list holds the common words and those of the United Kingdom", function()
  equal(wordsIn("i"), { "pinch", "cup", "UK pint", "stone" })
end)

case("the list holds the common words and those of the United States", function()
  equal(wordsIn("u"), { "pinch", "cup", "US pint", "US cup" })
end)

case("a system that is none of the three has the words of the United States", function()
  equal(wordsIn(store.Null), { "pinch", "cup", "US pint", "US cup" })
end)

case("a table without words leaves the list empty", function()
  equal(wordsIn("m", {}), {})
end)

case("words without a kind, and of another one, are left out", function()
  equal(wordsIn("m", { { store.Null, "none" }, { "", "empty" }, { "M", "large" }, { "x", "other" }, { "m", "g" } }), { "g" })
end)

case("the words are read anew at each opening", function()
  store.create()
  onlyWords({ { "a", "cup" } })
  recipe("~~eggs~~2~~")
  start()
  frmBrowse.lstTitles:DblClick(0)
  modal("frmIngredient", function() equal(words(), { "cup" }) end)
  frmDetail.lstIngredient:Pick(0)
  store.add("Unit", { Type = "a", Description = "dash" })
  modal("frmIngredient", function() equal(words(), { "cup", "dash" }) end)
  frmDetail.lstIngredient:Pick(0)
end)

case("a word is picked from the list", function()
  store.create()
  onlyWords({ { "a", "cup" } })
  recipe("~~eggs~~2~~")
  start()
  frmBrowse.lstTitles:DblClick(0)
  modal("frmIngredient", function()
    frmIngredient.cmbUnit:Pick("cup")
    equal(frmIngredient.cmbUnit.Text, "cup")
    frmIngredient.txtDescription:Focus()
    equal(frmIngredient.chkConvertCupSpoon.Enabled, true)
  end)
  frmDetail.lstIngredient:Pick(0)
end)

-- What becomes of a word under metric or UK imperial, and under US imperial.
local normalised = {
  { "l", "L", "L" }, { "cl", "cL", "cL" }, { "ml", "mL", "mL" },
  { "cups", "cup", "cup" }, { "tsps", "tsp", "tsp" }, { "tbsps", "tbsp", "tbsp" },
  { "gal", "UK gal", "US gal" }, { "gallon", "UK gal", "US gal" }, { "Gallon", "UK gal", "US gal" },
  { "us gal", "UK gal", "US gal" }, { "uk gal", "UK gal", "US gal" },
  { "qrt", "UK qrt", "US qrt" }, { "quart", "UK qrt", "US qrt" }, { "Quart", "UK qrt", "US qrt" },
  { "us qrt", "UK qrt", "US qrt" }, { "uk qrt", "UK qrt", "US qrt" },
  { "pint", "UK pint", "US pint" }, { "Pint", "UK pint", "US pint" },
  { "us pint", "UK pint", "US pint" }, { "uk pint", "UK pint", "US pint" },
  { "fl oz", "UK fl oz", "US fl oz" }, { "fluid ounce", "UK fl oz", "US fl oz" }, { "Fluid ounce", "UK fl oz", "US fl oz" },
  { "us fl oz", "UK fl oz", "US fl oz" }, { "uk fl oz", "UK fl oz", "US fl oz" },
}

local function leaves(typed, becomes)
  frmIngredient.cmbUnit:Type(typed)
  frmIngredient.txtDescription:Focus()
  equal(frmIngredient.cmbUnit.Text, becomes, "'" .. typed .. "'")
end

for measurement, column in pairs({ m = 2, i = 2, u = 3 }) do
  case("a typed word takes its usual form under " .. measurement, function()
    inDialog({ Measurement = measurement }, function()
      for _, row in ipairs(normalised) do leaves(row[1], row[column]) end
    end)
  end)

  case("any other word stays as it was typed under " .. measurement, function()
    inDialog({ Measurement = measurement }, function()
      for _, word in ipairs({ "", "L", "CL", "cL", "Cl", "ML", "mL", "Cups", "cup", "Tsps", "dsps", "TBSPS", " l", "l ", "GAL", "Us gal", "US gal",
        "UK gal", "gallons", "Gal", "quarts", "US qrt", "UK qrt", "pints", "PINT", "US pint", "UK pint", "fluid ounces", "Fl oz", "oz",
        "US fl oz", "UK fl oz", "handful", "can (400 g)" }) do
        leaves(word, word)
      end
    end)
  end)
end

case("without a system the words of the United Kingdom result", function()
  inDialog({ Measurement = store.Null }, function()
    leaves("gal", "UK gal")
    leaves("us fl oz", "UK fl oz")
  end)
end)

case("the word takes its form only when the box is left", function()
  inDialog({}, function()
    frmIngredient.cmbUnit:Type("cl")
    equal(frmIngredient.cmbUnit.Text, "cl")
    frmIngredient.txtPreparation:Focus()
    equal(frmIngredient.cmbUnit.Text, "cL")
  end)
end)

case("Enter in the unit box stores the word as it was typed", function()
  inDialog({}, function()
    frmIngredient.cmbUnit:Type("cl")
    frmIngredient:Key(13)
    equal(GLOBAL.rows()[2], { "2", "cl", "eggs", "", "2", "cl" })
    equal(frmIngredient.cmbUnit.Text, "")
    equal(focus(), "frmIngredient.txtQuantity")
  end)
end)

case("a click on Add leaves the unit box first", function()
  inDialog({}, function()
    frmIngredient.cmbUnit:Type("cl")
    frmIngredient.cmdAdd:Click()
    equal(GLOBAL.rows()[2], { "2", "cL", "eggs", "", "2", "cL" })
  end)
end)

case("cups and spoons can be converted by any unit that holds their letters", function()
  inDialog({}, function()
    local convertible = { ["cup"] = true, ["cups"] = true, ["cup (5 oz)"] = true, ["buttercup"] = true, ["tsp"] = true, ["heaped tsp"] = true,
      ["dsp"] = true, ["a dsp or so"] = true, ["tbsp"] = true, ["tbsps"] = true,
      ["Cup"] = false, ["TSP"] = false, ["teaspoon"] = false, ["g"] = false, [""] = false, ["tbs"] = false, ["cu p"] = false }
    for word, enabled in pairs(convertible) do
      frmIngredient.cmbUnit:Type(word)
      frmIngredient.txtDescription:Focus()
      equal(frmIngredient.chkConvertCupSpoon.Enabled, enabled, "'" .. word .. "'")
    end
  end)
end)

case("a tick stays while the box can't be used", function()
  inDialog({}, function()
    leaves("cup", "cup")
    frmIngredient.chkConvertCupSpoon:Click()
    equal(frmIngredient.chkConvertCupSpoon.Value, true)
    leaves("g", "g")
    equal(frmIngredient.chkConvertCupSpoon.Enabled, false)
    equal(frmIngredient.chkConvertCupSpoon.Value, true)
  end)
end)

case("a click on the box about cups takes the focus from the unit box and ticks", function()
  inDialog({}, function()
    leaves("cup", "cup")
    frmIngredient.cmbUnit:Type("cups")
    frmIngredient.chkConvertCupSpoon:Click()
    equal(frmIngredient.chkConvertCupSpoon.Value, true)
    equal(focus(), "frmIngredient.chkConvertCupSpoon")
  end)
end)

case("a click on the box about cups finds it out of use when the unit is another one now", function()
  inDialog({}, function()
    leaves("cup", "cup")
    frmIngredient.cmbUnit:Type("g")
    frmIngredient.chkConvertCupSpoon:Click()
    equal(frmIngredient.chkConvertCupSpoon.Value, false)
    equal(frmIngredient.chkConvertCupSpoon.Enabled, false)
  end)
end)

case("Clear leaves the box about cups as it is until the unit box is left", function()
  inDialog({}, function()
    leaves("cup", "cup")
    frmIngredient.cmdClear:Click()
    equal(frmIngredient.cmbUnit.Text, "")
    equal(frmIngredient.chkConvertCupSpoon.Enabled, true)
    frmIngredient.cmbUnit:Focus()
    frmIngredient.txtQuantity:Focus()
    equal(frmIngredient.chkConvertCupSpoon.Enabled, false)
  end)
end)

local tooLong = { text = "Unit of measure must not be greater than 15 characters.", caption = "Error", style = 16, answer = "OK" }

case("a unit of 15 characters is taken", function()
  inDialog({}, function()
    for _, word in ipairs({ "cup (8.75 oz) x", string.rep("é", 15), string.rep("🍏", 15) }) do
      frmIngredient.txtDescription:Type("beans")
      frmIngredient.cmbUnit:Type(word)
      local count = frmDetail.lstIngredient.ListCount
      frmIngredient.cmdAdd:Click()
      equal(boxes(), {})
      equal(frmDetail.lstIngredient.ListCount, count + 1)
      equal(GLOBAL.rows()[count + 1][6], word)
    end
  end)
end)

case("a unit of 16 characters is refused, brackets and all", function()
  inDialog({}, function()
    for _, word in ipairs({ "cup (8.75 oz) xy", string.rep("é", 16), string.rep("🍏", 16) }) do
      for _, button in ipairs({ "cmdAdd", "cmdUpdate" }) do
        frmIngredient.cmbUnit:Type(word)
        frmIngredient[button]:Click()
        equal(boxes(), { tooLong })
        equal(focus(), "frmIngredient.cmbUnit")
        equal(frmIngredient.cmbUnit.Text, word)
      end
    end
    equal(GLOBAL.rows(), { { "", "", "eggs", "", "2", "" } })
    equal(GLOBAL.gDetailChanged, false)
  end)
end)

case("a long unit is told before a bad quantity", function()
  inDialog({}, function()
    frmIngredient.txtQuantity:Type("some")
    frmIngredient.cmbUnit:Type("a very long unit")
    frmIngredient:Key(13)
    equal(boxes(), { tooLong })
  end)
end)

-- Rows typed in the dialog of a recipe whose cups are converted, or not, with the lines that they make.
local function bracketLines(mark, measurement, rows)
  inDialog({ Measurement = measurement, Centigrams = true }, function()
    for number, row in ipairs(rows) do
      frmIngredient.txtQuantity:Type("2")
      frmIngredient.cmbUnit:Type(row[1])
      frmIngredient.txtDescription:Type("beans")
      frmIngredient.cmdAdd:Click()
      equal(frmDetail.lstIngredient:List(number), row[2], row[1])
      equal(GLOBAL.rows()[number + 1], { "2", row[1], "beans", "", "2", row[1] })
    end
    equal(GLOBAL.gConvertCupSpoon, mark and "1" or "0")
  end, { ConvertCupSpoon = mark })
end

case("a unit with a weight in brackets shows the weight of one", function()
  bracketLines(true, "m", {
    { "can (400 g)", "400 g beans" }, { "can ( 400 g)", "400 g beans" }, { "cup (500 mg)", "500 mg beans" }, { "cup (40 cg)", "400 mg beans" },
    { "(7 g)", "7 g beans" },
  })
end)

case("a unit with a weight in ounces or pounds shows the weight of one", function()
  bracketLines(true, "i", { { "cup (5 oz)", "5 oz beans" }, { "jar (2 lb)", "2 lb beans" } })
  stop()
  file.remove("PANTRIGO.MDB")
  bracketLines(true, "u", { { "cup (5 oz)", "5 oz beans" } })
end)

case("a bracket that is no understood weight, or not closed, is ignored", function()
  bracketLines(true, "m", {
    { "can (1 kg)", "2 can (1 kg) beans" }, { "can (400 g", "2 can (400 g beans" }, { "can 400 g)", "2 can 400 g) beans" },
    { "can )400 g(", "2 can )400 g( beans" }, { "x (a) (4 oz)", "2 x (a) (4 oz) beans" }, { "can (g)", "2 can (g) beans" },
    { "can (big)", "2 can (big) beans" }, { "can ()", "2 can () beans" }, { "can [400 g]", "2 can [400 g] beans" },
    { "can (400 G)", "2 can (400 G) beans" }, { "can (4 ml)", "2 can (4 ml) beans" },
  })
end)

case("without the mark brackets of every kind are part of the word", function()
  bracketLines(false, "m", {
    { "can (400 g)", "2 can (400 g) beans" }, { "jar (5 oz)", "2 jar (5 oz) beans" }, { "jar (1 lb)", "2 jar (1 lb) beans" },
    { "jar (9 mg)", "2 jar (9 mg) beans" }, { "jar (9 cg)", "2 jar (9 cg) beans" }, { "jar (1 kg)", "2 jar (1 kg) beans" },
  })
end)
