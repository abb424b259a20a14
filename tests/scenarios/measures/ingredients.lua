-- Ingredient rows on their way to a shown line.

local function recipe(ingredients, fields)
  local row = { RecipeId = 1, Title = "Test Dish", Ingredients = ingredients, Serves = 4 }
  for key, value in pairs(fields or {}) do row[key] = value end
  store.add("Recipe", row)
end

local function open()
  start()
  frmBrowse.lstTitles:DblClick(0)
end

local function lines()
  local list = {}
  for i = 0, frmDetail.lstIngredient.ListCount - 1 do list[#list + 1] = frmDetail.lstIngredient:List(i) end
  return list
end

local function shown(ingredients, options, fields)
  store.create(options)
  recipe(ingredients, fields)
  open()
  return lines()
end

case("a heading shows its text", function()
  equal(shown("~~FOR THE SAUCE~~~~300~mL~milk~warm~300~mL~"), { "FOR THE SAUCE", "300 mL milk, warm" })
end)

case("a row without a unit shows quantity, description and note", function()
  equal(shown("2~~eggs~beaten~2~~"), { "2 eggs, beaten" })
end)

case("a row with a note alone shows the note without a comma", function()
  equal(shown("~~~sifted~~~"), { "sifted" })
end)

case("a row of which nothing is known makes no line", function()
  equal(shown("~~~~~~2~~eggs~~2~~"), { "2 eggs" })
end)

case("no ingredients make no lines", function()
  equal(shown(""), {})
  stop()
  file.remove("PANTRIGO.MDB")
  equal(shown(store.Null), {})
end)

case("quantities are scaled to the people catered for", function()
  equal(shown("1~cup~flour~~1~cup~", { Settings = 6, SettingsIngredients = true, PartialFractions = "2" }), { "1 1/2 cups flour" })
end)

case("a recipe that makes items is never scaled", function()
  equal(shown("1~bag~flour~~1~bag~", { Settings = 6, SettingsIngredients = true, PartialFractions = "4" }, { Makes = true }),
    { "1 bag flour" })
end)

case("without a number served nothing is scaled", function()
  local options = { Settings = 6, SettingsIngredients = true }
  equal(shown("1~bag~flour~~1~bag~", options, { Serves = store.Null }), { "1 bag flour" })
  stop()
  file.remove("PANTRIGO.MDB")
  equal(shown("1~bag~flour~~1~bag~", options, { Serves = 0 }), { "1 bag flour" })
end)

case("without people to cater for nothing is scaled", function()
  equal(shown("1~bag~flour~~1~bag~", { Settings = store.Null, SettingsIngredients = true }), { "1 bag flour" })
  stop()
  file.remove("PANTRIGO.MDB")
  equal(shown("1~bag~flour~~1~bag~", { Settings = 8, SettingsIngredients = false }), { "1 bag flour" })
end)

case("an amount up to 1.01 is singular, above it plural", function()
  equal(shown("~bag~flour~~1~bag~~bag~flour~~1.01~bag~~bag~flour~~1.02~bag~", { PartialFractions = "4" }),
    { "1 bag flour", "1 1/4 bag flour", "1 1/4 bags flour" })
end)

case("with halves 1.02 cups reads one and a half", function()
  equal(shown("~cup~flour~~1.02~cup~", { PartialFractions = "2" }), { "1 1/2 cups flour" })
end)

case("with halves one bag is written as two and stays singular", function()
  equal(shown("1~bag~flour~~1~bag~", { PartialFractions = "2" }), { "2 bag flour" })
end)

case("words in es take it, and units that have no plural stay", function()
  equal(shown("~box~pasta~~2~box~~bunch~dill~~2~bunch~~tsp~salt~~2~tsp~~lb~beef~~2~lb~", { Measurement = "i", Tablespoon = 4 }),
    { "2 boxes pasta", "2 bunches dill", "2 tsp salt", "2 lb beef" })
end)

case("the bracketed weight replaces the count where cups are converted", function()
  equal(shown("~can (400 g)~tomatoes~~2~can (400 g)~", {}, { ConvertCupSpoon = true }), { "400 g tomatoes" })
end)

case("without the conversion the bracketed word stays, without a plural", function()
  equal(shown("~can (400 g)~tomatoes~~2~can (400 g)~", {}, { ConvertCupSpoon = false }), { "2 can (400 g) tomatoes" })
end)

case("a weight in kilograms in brackets is not understood", function()
  equal(shown("~can (1 kg)~tomatoes~~2~can (1 kg)~", {}, { ConvertCupSpoon = true }), { "2 can (1 kg) tomatoes" })
end)

case("the other bracketed weights are", function()
  equal(shown("~tin (8 oz)~beans~~2~tin (8 oz)~~jar (1 lb)~plums~~1~jar (1 lb)~~tub (50 cg)~spice~~1~tub (50 cg)~",
    { Measurement = "i" }, { ConvertCupSpoon = true }), { "8 oz beans", "1 lb plums", "1/4 oz spice" })
end)

case("unclosed and misplaced brackets are ignored", function()
  equal(shown("~can (400 g~a~~2~can (400 g~~can )400 g(~b~~2~can )400 g(~~x (a) (4 oz)~c~~2~x (a) (4 oz)~", {}, { ConvertCupSpoon = true }),
    { "2 can (400 g a", "2 can )400 g( b", "2 x (a) (4 oz) c" })
end)

case("on screen the imperial words are short", function()
  equal(shown("~US pint~milk~~2~US pint~~US fl oz~cream~~3~US fl oz~", { Measurement = "u", PartialFractions = "4" }),
    { "2 pints milk", "3 fl oz cream" })
end)

case("a damaged memo shows what can be read", function()
  equal(shown("1~bag~flour~~1~bag~2~cup"), { "1 bag flour", "" },
    "the second row has a base quantity and nothing to show, and the text behind the last mark is dropped")
end)

case("an unreadable quantity shows unit, description and note", function()
  equal(shown("x~bag~flour~fine~some~bag~"), { "bag flour, fine" })
end)

case("a quantity with a thousands mark converts with a rule and reads its leading number without one", function()
  equal(shown("~g~flour~~1,000~g~~bag~flour~~1,000~bag~"), { "1 kg flour", "1 bag flour" })
end)

case("a tablespoon of nothing leaves spoons in teaspoons", function()
  equal(shown("~tsp~salt~~3~tsp~", { Tablespoon = 0 }), { "3 tsp salt" })
end)

case("an empty cup size leaves other units alone", function()
  equal(shown("~cup~flour~~2~cup~~kg~beef~~2~kg~", { Cup = store.Null }), { "2 cups flour", "2 kg beef" })
end)

case("a change of the options shows in the next call", function()
  store.create({ Measurement = "m" })
  recipe("~kg~beef~~1~kg~")
  open()
  equal(lines(), { "1 kg beef" })
  store.system({ Measurement = "u" })
  GLOBAL.subShowIngredients("s", false)
  equal(lines(), { "2 1/4 lb beef" })
end)

case("the rows are as they were after a call", function()
  store.create({})
  recipe("500000~mg~beef~lean~1/2~kg~")
  open()
  local before = GLOBAL.rows()
  GLOBAL.subShowIngredients("s", false)
  GLOBAL.subShowIngredients("p", false)
  equal(GLOBAL.rows(), before)
  equal(before, { { "500000", "mg", "beef", "lean", "1/2", "kg" } })
end)

case("the printed line keeps the long unit words and stands at column 17", function()
  store.create({ Measurement = "u" })
  recipe("~US pint~milk~cold~1~US pint~")
  open()
  GLOBAL.subShowIngredients("p", false)
  equal(printer.lines()[1].text, string.rep(" ", 16) .. "1 US pint milk, cold")
end)

case("the shopping list works from base amounts, without headings and notes", function()
  store.create({ Measurement = "m" })
  recipe("")
  open()
  GLOBAL.rows({ { "500000", "mg", "beef", "lean", "9", "bag" }, { "", "", "FOR THE SAUCE", "", "", "" }, { "", "", "salt", "", "", "" },
    { "2", "", "eggs", "beaten", "", "" } })
  GLOBAL.subShowIngredients("l", 0)
  local printed = {}
  for i, line in ipairs(printer.lines()) do printed[i] = (line.text:gsub("^ +", "")) end
  equal(printed, { "500 g beef", "2 eggs" })
end)
