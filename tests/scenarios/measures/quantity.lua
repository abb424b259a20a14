-- Quantity text: reading, rounding up to the part fraction, writing.

local function with(options)
  store.create(options)
  start()
end

local function written(amount)
  return GLOBAL.subFormatQuantity(amount)
end

local function trimmed(amount)
  return (written(amount):gsub("^ ", ""))
end

case("a whole number and a fraction read as one decimal, also when nothing stands between them", function()
  equal(GLOBAL.funFractionToDecimal("1 1/2"), "1.5")
  equal(GLOBAL.funFractionToDecimal("11/2"), "1.5")
  equal(GLOBAL.funFractionToDecimal("1/2"), ".5")
  equal(GLOBAL.funFractionToDecimal("21/4"), "2.25")
  equal(GLOBAL.funFractionToDecimal("1/25"), ".5")
end)

case("every listed fraction has its decimal text", function()
  local decimals = {
    ["1/2"] = ".5", ["1/4"] = ".25", ["1/3"] = ".33", ["2/3"] = ".66", ["3/4"] = ".75", ["1/10"] = ".1", ["1/5"] = ".2",
    ["3/10"] = ".3", ["2/5"] = ".4", ["3/5"] = ".6", ["7/10"] = ".7", ["4/5"] = ".8", ["9/10"] = ".9", ["1/8"] = ".1",
    ["3/8"] = ".4", ["5/8"] = ".6", ["7/8"] = ".9",
  }
  for fraction, decimal in pairs(decimals) do
    equal(GLOBAL.funFractionToDecimal(fraction), decimal, fraction)
  end
end)

case("eighths stand at a near tenth", function()
  equal(GLOBAL.funFractionToDecimal("1/8"), ".1")
  equal(GLOBAL.funFractionToDecimal("7/8"), ".9")
end)

case("three thirds written out and read back do not add up to one", function()
  local third = GLOBAL.Val(GLOBAL.funFractionToDecimal("1/3"))
  equal(third, 0.33)
  check(third + third + third < 1)
end)

case("what follows the fraction is dropped, and an unlisted fraction comes back as it is", function()
  equal(GLOBAL.funFractionToDecimal("2 3/4 heaped"), "2.75")
  equal(GLOBAL.funFractionToDecimal("5/10"), "5/10")
  equal(GLOBAL.funFractionToDecimal("2-1/2"), "2-.5")
  equal(GLOBAL.funFractionToDecimal(""), "")
  equal(GLOBAL.funFractionToDecimal("250"), "250")
end)

case("the first fraction of the table counts, not the first of the text", function()
  equal(GLOBAL.funFractionToDecimal("1/4 1/2"), "1/4.5")
end)

case("with quarters rounding always goes up to the next step", function()
  with({ PartialFractions = "4", Fractions = true })
  equal(trimmed(0.1), "1/4")
  equal(trimmed(0.76), "1")
  equal(trimmed(2.0), "2")
  equal(trimmed(2.25), "2 1/4")
  equal(trimmed(2.2501), "2 1/2")
  equal(trimmed(2.5001), "2 3/4")
  equal(trimmed(2.7501), "3")
end)

case("with halves a whole amount counts as having a part of one", function()
  with({ PartialFractions = "2", Fractions = true })
  equal(trimmed(2.0), "3")
  equal(trimmed(1.02), "1 1/2")
  equal(trimmed(1.5), "1 1/2")
  equal(trimmed(1.51), "2")
  store.system({ Fractions = false })
  equal(written(2.0), "3")
  equal(written(1.5), "1.5")
end)

case("with thirds a part above a third shows as two thirds in fractions and rounds up in decimals", function()
  with({ PartialFractions = "3", Fractions = true })
  equal(trimmed(0.9), "2/3")
  equal(trimmed(1.9), "1 2/3")
  equal(trimmed(0.3333), "1/3")
  equal(trimmed(0.3334), "2/3")
  equal(trimmed(2.99996), "2 2/3")
  store.system({ Fractions = false })
  equal(written(0.9), "1")
  equal(written(1.9), "2")
  equal(written(2.5), "2.67")
  equal(written(2.2), "2.33")
end)

case("an amount below every band shows as nought and not as an empty text", function()
  with({ PartialFractions = "1", Fractions = true })
  equal(trimmed(0.00004), "0")
  store.system({ Fractions = false })
  equal(written(0.00004), "0")
end)

case("an amount of nothing is the empty text", function()
  with({ PartialFractions = "2", Fractions = true })
  equal(written(0), "")
end)

case("a part that rounds to a whole falls in the last band", function()
  with({ PartialFractions = "1", Fractions = true })
  equal(trimmed(2.99996), "3")
  store.system({ PartialFractions = "4" })
  equal(trimmed(2.99996), "3")
end)

case("decimals stand without trailing noughts", function()
  with({ PartialFractions = "4", Fractions = false })
  equal(written(2.5), "2.5")
  equal(written(2.25), "2.25")
  equal(written(2), "2")
  equal(written(0.2), "0.25")
  store.system({ PartialFractions = "1" })
  equal(written(0.1), "0.1")
  equal(written(12.34), "12.4")
end)

case("the step of rounding follows the options at the next call", function()
  with({ PartialFractions = "1", Fractions = true })
  equal(GLOBAL.funPartFraction(0.3), "3/10")
  equal(GLOBAL.funPartDecimal(0.3), "0.3")
  store.system({ PartialFractions = "4" })
  equal(GLOBAL.funPartFraction(0.3), "1/2")
  equal(GLOBAL.funPartDecimal(0.3), "0.5")
  store.system({ PartialFractions = store.Null })
  equal(GLOBAL.funPartFraction(0.3), "1/2")
  equal(GLOBAL.funPartFraction(0), "1")
end)

case("a whole number in fraction display begins with a blank, a fraction alone does not", function()
  with({ PartialFractions = "4", Fractions = true })
  equal(written(2), " 2")
  equal(written(2.5), " 2 1/2")
  equal(written(0.5), "1/2")
end)

case("the bands of the tenths are closed at four places", function()
  with({ PartialFractions = "1", Fractions = true })
  local bands = {
    { 0.0001, "1/10" }, { 0.1, "1/10" }, { 0.1001, "1/5" }, { 0.2, "1/5" }, { 0.2001, "3/10" }, { 0.3, "3/10" },
    { 0.3001, "2/5" }, { 0.4, "2/5" }, { 0.4001, "1/2" }, { 0.5, "1/2" }, { 0.5001, "3/5" }, { 0.6, "3/5" },
    { 0.6001, "7/10" }, { 0.7, "7/10" }, { 0.7001, "4/5" }, { 0.8, "4/5" }, { 0.8001, "9/10" }, { 0.9, "9/10" },
    { 0.9001, "1" }, { 0.9999, "1" },
  }
  for _, band in ipairs(bands) do
    equal(GLOBAL.funPartFraction(band[1]), band[2], tostring(band[1]))
  end
end)
