-- The unit ladder: down to the base unit, across to the chosen system, up to the largest sensible unit.

local function with(options)
  store.create(options)
  start()
end

-- Takes an amount down with the options of the store and gives unit and quantity.
local function down(unit, quantity, mode)
  local system = store.system()
  return GLOBAL.subConvertToBase(unit, quantity, system.Cup, system.Tablespoon, system.Measurement, mode or "s")
end

-- The whole road, as a shown row takes it.
local function road(unit, quantity)
  local baseUnit, base = down(unit, quantity)
  local crossUnit, cross = GLOBAL.subConvertSystem(baseUnit, base)
  return GLOBAL.subClimbLadder(crossUnit, cross, store.system().Measurement)
end

case("every unit with a rule has its factor on the way down", function()
  with({ Measurement = "m", Cup = 250, Tablespoon = 4 })
  GLOBAL.gConvertCupSpoon = "0"
  local rules = {
    { "UK pint", 473.17647, "mL" }, { "UK qrt", 1136.5225, "mL" }, { "UK gal", 4546.092, "mL" }, { "US pint", 473.17647, "mL" },
    { "US qrt", 946.35295, "mL" }, { "US gal", 3785.4118, "mL" }, { "lb", 453592.37, "mg" }, { "stone", 6350293.18, "mg" },
    { "ft", 304.8, "mm" }, { "yd", 914.4, "mm" }, { "cL", 10, "mL" }, { "L", 1000, "mL" }, { "cm", 10, "mm" }, { "m", 1000, "mm" },
    { "cg", 10, "mg" }, { "g", 1000, "mg" }, { "kg", 1000000, "mg" }, { "cup", 250, "pgx" }, { "cups", 250, "pgx" },
    { "tbsp", 20, "pgx" }, { "dsp", 10, "pgx" }, { "tsp", 5, "pgx" },
  }
  for _, rule in ipairs(rules) do
    local unit, quantity = down(rule[1], 1)
    equal(unit, rule[3], rule[1])
    equal(quantity, rule[2], rule[1])
  end
end)

case("spoons and cups end in millilitres when the recipe converts them", function()
  with({ Measurement = "m", Cup = 250, Tablespoon = 4 })
  GLOBAL.gConvertCupSpoon = "1"
  for _, unit in ipairs({ "cup", "cups", "tbsp", "dsp", "tsp" }) do
    equal((down(unit, 1)), "mL", unit)
  end
end)

case("a cup is counted in fluid ounces of its system", function()
  with({ Measurement = "u", Cup = 8, Tablespoon = 3 })
  local _, quantity = down("cup", 1)
  equal(quantity, 236.58824)
  store.system({ Measurement = "i", Cup = 10 })
  _, quantity = down("cup", 2)
  equal(quantity, 568.2612)
end)

case("a unit without a rule passes unchanged, its quantity to the letter", function()
  with({ Measurement = "m" })
  local unit, quantity = down("bag", ".25")
  equal(unit, "bag")
  equal(quantity, ".25")
  unit, quantity = down("", "2")
  equal(unit, "")
  equal(quantity, "2")
  unit, quantity = down("mL", 15)
  equal(unit, "mL")
  equal(quantity, 15)
end)

case("half a kilogram is kept, two kilograms take the whole road", function()
  with({ Measurement = "m", UseOriginalUOM = true, Centigrams = true })
  local unit, quantity = down("kg", 0.5)
  equal(unit, "kg")
  equal(quantity, 0.5)
  unit, quantity = down("kg", 2)
  equal(unit, "mg")
  equal(quantity, 2000000)
  unit, quantity = road("kg", 2)
  equal(unit, "kg")
  equal(quantity, 2)
  unit, quantity = down("lb", 0.5)
  equal(unit, "mg")
  equal(quantity, 226796.185)
  unit, quantity = road("lb", 0.5)
  equal(unit, "g")
  equal(quantity, 226.796185)
end)

case("half a teaspoon is not kept, half a tablespoon is", function()
  with({ Measurement = "m", UseOriginalUOM = true, Cup = 250, Tablespoon = 4 })
  local unit, quantity = down("tsp", 0.5)
  equal(unit, "pgx")
  equal(quantity, 2.5)
  for _, kept in ipairs({ "cup", "tbsp", "dsp", "g", "L", "m" }) do
    unit, quantity = down(kept, 0.5)
    equal(unit, kept)
    equal(quantity, 0.5)
  end
end)

case("the shopping list keeps no original unit", function()
  with({ Measurement = "m", UseOriginalUOM = true })
  local unit, quantity = down("kg", 0.5, "l")
  equal(unit, "mg")
  equal(quantity, 500000)
end)

case("a kept amount in a centi unit is divided when centigrams are skipped, two of them the wrong way", function()
  with({ Measurement = "m", UseOriginalUOM = true, Centigrams = true })
  local rules = { { "cg", 0.005, "g" }, { "cm", 0.05, "mm" }, { "cL", 0.05, "mL" } }
  for _, rule in ipairs(rules) do
    local unit, quantity = down(rule[1], 0.5)
    equal(unit, rule[3])
    equal(quantity, rule[2])
  end
  store.system({ Centigrams = false })
  for _, rule in ipairs(rules) do
    local unit, quantity = down(rule[1], 0.5)
    equal(unit, rule[1])
    equal(quantity, 0.5)
  end
end)

case("each imperial system keeps its own volumes", function()
  with({ Measurement = "u", UseOriginalUOM = true })
  equal((down("US pint", 0.5)), "US pint")
  equal((down("UK pint", 0.5)), "mL")
  equal((down("lb", 0.5)), "lb")
  equal((down("kg", 0.5)), "mg")
  store.system({ Measurement = "i" })
  equal((down("UK pint", 0.5)), "UK pint")
  equal((down("US pint", 0.5)), "mL")
end)

case("a metric cup of spoon measure climbs back to a cup", function()
  with({ Measurement = "m", Cup = 250, Tablespoon = 3 })
  GLOBAL.gConvertCupSpoon = "0"
  local unit, quantity = down("cup", 1)
  equal(unit, "pgx")
  equal(quantity, 250)
  unit, quantity = GLOBAL.subClimbLadder("pgx", 250, "m")
  equal(unit, "cup")
  equal(quantity, 1)
end)

case("a UK cup of ten fluid ounces counts 284.13 and climbs back to a cup", function()
  with({ Measurement = "i", Cup = 10, Tablespoon = 3 })
  GLOBAL.gConvertCupSpoon = "0"
  local unit, quantity = down("cup", 1)
  equal(quantity, 284.1306)
  unit, quantity = road("cup", 1)
  equal(unit, "cup")
  equal(quantity, 1)
end)

case("a UK cup of eight fluid ounces climbs back to a cup as well", function()
  with({ Measurement = "i", Cup = 8, Tablespoon = 3 })
  GLOBAL.gConvertCupSpoon = "0"
  local unit, quantity = road("cup", 1)
  equal(unit, "cup")
  equal(quantity, 1)
end)

case("a UK pint in metric measures is 47 centilitres", function()
  with({ Measurement = "m", Centilitres = false })
  local unit, quantity = down("UK pint", 1)
  equal(unit, "mL")
  equal(quantity, 473.17647)
  unit, quantity = road("UK pint", 1)
  equal(unit, "cL")
  equal(quantity, 47.317647)
end)

case("a UK pint in UK measures stays in fluid ounces", function()
  with({ Measurement = "i" })
  local unit, quantity = road("UK pint", 1)
  equal(unit, "UK fl oz")
  check(math.abs(quantity - 16.6535) < 0.001, tostring(quantity))
end)

case("fourteen pounds are a stone, an ounce less is not", function()
  with({ Measurement = "i" })
  local unit, quantity = GLOBAL.subClimbLadder("oz", 224, "i")
  equal(unit, "stone")
  equal(quantity, 1)
  unit, quantity = GLOBAL.subClimbLadder("oz", 223, "i")
  equal(unit, "lb")
  equal(quantity, 13.9375)
end)

case("the centigram level is skipped or taken as the option says", function()
  with({ Measurement = "m", Centigrams = true })
  local unit, quantity = GLOBAL.subClimbLadder("mg", 500, "m")
  equal(unit, "mg")
  equal(quantity, 500)
  unit, quantity = GLOBAL.subClimbLadder("mg", 1500, "m")
  equal(unit, "g")
  equal(quantity, 1.5)
  store.system({ Centigrams = false })
  unit, quantity = GLOBAL.subClimbLadder("mg", 15, "m")
  equal(unit, "cg")
  equal(quantity, 1.5)
end)

case("a foot shown in US measures is one foot, and a pound one pound", function()
  with({ Measurement = "u" })
  local unit, quantity = road("ft", 1)
  equal(unit, "ft")
  equal(quantity, 1)
  unit, quantity = road("lb", 1)
  equal(unit, "lb")
  equal(quantity, 1)
end)

case("twelve kilograms come back as twelve kilograms", function()
  with({ Measurement = "m", Centigrams = false })
  local unit, quantity = road("kg", 12)
  equal(unit, "kg")
  equal(quantity, 12)
end)

case("every step across has its factor", function()
  with({ Measurement = "m" })
  local steps = {
    { "m", "UK fl oz", 28.41306, "mL" }, { "m", "US fl oz", 29.57353, "mL" }, { "m", "oz", 28349.523125, "mg" },
    { "m", "in", 25.4, "mm" }, { "i", "mL", 0.035195082, "UK fl oz" }, { "i", "US fl oz", 1.04084283, "UK fl oz" },
    { "i", "mg", 0.0000352739619495804, "oz" }, { "i", "mm", 0.03937007, "in" }, { "u", "mL", 0.0338140222, "US fl oz" },
    { "u", "UK fl oz", 0.96075984, "US fl oz" }, { "u", "mg", 0.0000352739619495804, "oz" }, { "u", "mm", 0.03937007, "in" },
  }
  for _, step in ipairs(steps) do
    store.system({ Measurement = step[1] })
    local unit, quantity = GLOBAL.subConvertSystem(step[2], 1)
    equal(unit, step[4], step[1] .. " " .. step[2])
    equal(quantity, step[3], step[1] .. " " .. step[2])
  end
  store.system({ Measurement = "m" })
  equal((GLOBAL.subConvertSystem("", 3)), "")
  equal((GLOBAL.subConvertSystem("bag", 3)), "bag")
end)

case("every ladder step is taken at its limit and not below it", function()
  with({ Measurement = "m", Centilitres = false, Centimetres = false, Centigrams = false, Tablespoon = 4, Cup = 250 })
  local steps = {
    { "UK fl oz", 19.99999, "UK pint" }, { "US fl oz", 16, "US pint" }, { "oz", 16, "lb" }, { "in", 12, "ft" }, { "ft", 3, "yd" },
    { "lb", 14, "stone" }, { "mL", 10, "cL" }, { "cL", 100, "L" }, { "mm", 10, "cm" }, { "cm", 100, "m" }, { "mg", 10, "cg" },
    { "cg", 100, "g" }, { "g", 1000, "kg" }, { "US qrt", 4, "US gal" }, { "tsp", 4, "tbsp" }, { "dsp", 2, "tbsp" },
    { "tbsp", 12.5, "cup" },
  }
  for _, step in ipairs(steps) do
    local unit, quantity = GLOBAL.subClimbLadder(step[1], step[2], "m")
    equal(unit, step[3], step[1])
    unit, quantity = GLOBAL.subClimbLadder(step[1], step[2] * 0.9999, "m")
    equal(unit, step[1], step[1])
  end
end)

case("the tops of the ladder stay, however much there is", function()
  with({ Measurement = "m" })
  for _, unit in ipairs({ "stone", "yd", "kg", "L", "m", "cup", "UK gal", "US gal", "bag", "" }) do
    local top, quantity = GLOBAL.subClimbLadder(unit, 5000, "m")
    equal(top, unit)
    equal(quantity, 5000)
  end
end)
