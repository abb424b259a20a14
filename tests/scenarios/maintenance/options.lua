-- The options: what the dialog shows, what it stores, and what it refuses.

local ticks = {
  { "chkShowRecipes", "ShowRecipes" }, { "chkShowToolbars", "ShowToolBars" }, { "chkCentilitres", "Centilitres" },
  { "chkCentimetres", "Centimetres" }, { "chkCentigrams", "Centigrams" }, { "chkUseOriginalUOM", "UseOriginalUOM" },
  { "chkSettingsIngredients", "SettingsIngredients" },
}
local choices = {
  { "optMetric", "Measurement", "m" }, { "optUKImperial", "Measurement", "i" }, { "optUSImperial", "Measurement", "u" },
  { "optTenth", "PartialFractions", "1" }, { "optHalf", "PartialFractions", "2" }, { "optThird", "PartialFractions", "3" },
  { "optQuarter", "PartialFractions", "4" }, { "optDecimals", "Fractions", false }, { "optFractions", "Fractions", true },
  { "optKilojoules", "Kilojoules", true }, { "optCalories", "Kilojoules", false },
}
local units = { m = "millilitres (mL)", i = "UK fluid ounces (UK fl oz)", u = "US fluid ounces (US fl oz)" }

local function begin(system)
  store.create(system)
  start()
end

local function open(action)
  modal("frmOptions", action)
  frmBrowse.mnuOptions:Click()
  check(not frmOptions.Loaded, "the dialog is closed")
end

-- Opens the dialog, does what the function does, and presses OK.
local function accept(action)
  open(function()
    action()
    frmOptions.cmdOK:Click()
    check(not frmOptions.Visible)
  end)
end

-- The one row of options is as it was but for these keys.
local function changed(before, keys)
  for key, value in pairs(keys) do before[key] = value end
  equal(store.system(), before)
end

case("the dialog shows its texts", function()
  begin()
  local captions = {
    fmeShowRecipes = "Show all recipes at startup:", chkShowRecipes = "Yes, show all recipes", fmeShowToolbars = "Show toolbars:",
    chkShowToolbars = "Yes, show all toolbars", fmeCenti = "Skip metric 'centi' levels when converting unit measurements up:",
    chkCentilitres = "Skip centilitres", chkCentimetres = "Skip centimetres", chkCentigrams = "Skip centigrams",
    fmeMetric = "Show ingredient units in:", optMetric = "Metric", optUKImperial = "UK Imperial", optUSImperial = "US Imperial",
    fmeRoundFractions = "Round part quantities to next:", optTenth = "1/10", optHalf = "1/2", optThird = "1/3", optQuarter = "1/4",
    fmeFractions = "Part ingredient quantities shown in:", optDecimals = "Decimals", optFractions = "Fractions",
    fmeShowOriginalUOM = "Use original units of measure:", chkUseOriginalUOM = "Yes, use original units of measure",
    fmeSettingsIngredients = "Display ingredients based on 'Settings':",
    chkSettingsIngredients = "Yes, display ingredients based on 'Settings'", fmeKilojoulesCalories = "Show energy units in:",
    optKilojoules = "Kilojoules", optCalories = "Calories", fmeLiquid = "Cup / Spoon details:", lblCup = "1 cup =",
    lblTablespoon = "1 tablespoon (tbsp) =", lblTeaspoon = "teaspoons (tsp)", cmdOK = "&OK", cmdCancel = "&Cancel", cmdHelp = "&Help",
  }
  open(function()
    equal(frmOptions.Caption, "Options")
    for name, caption in pairs(captions) do equal(frmOptions[name].Caption, caption, name) end
    equal(frmOptions.txtCup.MaxLength, 6)
    equal(frmOptions.txtTablespoon.MaxLength, 1)
    equal(focus(), "frmOptions.chkShowRecipes")
    frmOptions.cmdHelp:Click()
    equal(helps(), { 360 })
    check(frmOptions.Visible)
  end)
end)

case("the dialog stands in the middle, a third of the free height down", function()
  screen(800, 600)
  begin()
  open(function()
    equal(frmOptions.Left, (12000 - frmOptions.Width) / 2)
    equal(frmOptions.Top, (9000 - frmOptions.Height) / 3)
  end)
end)

case("the button of the tool bar opens the dialog", function()
  begin()
  modal("frmOptions", function() check(frmOptions.Visible) end)
  frmBrowse.tbBrowse:Press("Options")
end)

case("the dialog shows what is stored", function()
  begin()
  for _, value in ipairs({ true, false }) do
    for _, tick in ipairs(ticks) do store.system({ [tick[2]] = value }) end
    open(function()
      for _, tick in ipairs(ticks) do equal(frmOptions[tick[1]].Value, value, tick[1]) end
    end)
  end
  for _, choice in ipairs(choices) do
    store.system({ [choice[2]] = choice[3], Cup = 33.25, Tablespoon = 7 })
    open(function()
      for _, other in ipairs(choices) do
        if other[2] == choice[2] then equal(frmOptions[other[1]].Value, other == choice, other[1]) end
      end
      equal(frmOptions.txtCup.Text, "33.25")
      equal(frmOptions.txtTablespoon.Text, "7")
      equal(frmOptions.lblCupUnit.Caption, units[store.system().Measurement])
    end)
  end
end)

case("each box shows its own key", function()
  begin()
  for _, tick in ipairs(ticks) do store.system({ [tick[2]] = false }) end
  for _, tick in ipairs(ticks) do
    store.system({ [tick[2]] = true })
    open(function()
      for _, other in ipairs(ticks) do equal(frmOptions[other[1]].Value, other == tick, other[1]) end
    end)
    store.system({ [tick[2]] = false })
  end
end)

case("sizes that were never given leave the boxes empty, and then OK asks for them", function()
  begin({ Cup = store.Null, Tablespoon = store.Null })
  open(function()
    equal(frmOptions.txtCup.Text, "")
    equal(frmOptions.txtTablespoon.Text, "")
    frmOptions.cmdOK:Click()
    equal(boxes()[1].text, "Invalid cup details.")
  end)
  equal(store.system().Cup, nil)
end)

case("a long stored size is shown whole, and stored again", function()
  begin({ Cup = 236.58824, Tablespoon = 3.125 })
  accept(function()
    equal(frmOptions.txtCup.Text, "236.58824")
    equal(frmOptions.txtTablespoon.Text, "3.125")
  end)
  equal(store.system().Cup, 236.58824)
  equal(store.system().Tablespoon, 3.125)
end)

case("unknown values are shown as UK imperial and halves, and stored so", function()
  for _, unknown in ipairs({ "x", "", store.Null }) do
    begin({ Measurement = unknown, PartialFractions = unknown, Cup = 9 })
    accept(function()
      equal(frmOptions.optUKImperial.Value, true)
      equal(frmOptions.optMetric.Value, false)
      equal(frmOptions.optUSImperial.Value, false)
      equal(frmOptions.optHalf.Value, true)
      equal(frmOptions.lblCupUnit.Caption, units.i)
      equal(frmOptions.txtCup.Text, "9")
    end)
    equal(store.system().Measurement, "i")
    equal(store.system().PartialFractions, "2")
    stop()
    file.remove("PANTRIGO.MDB")
  end
end)

case("OK with nothing changed stores what was there", function()
  begin({ Settings = 6, OtherId = 12 })
  local before = store.system()
  accept(function() end)
  changed(before, {})
  equal(boxes(), {})
end)

case("each check box stores its own key and no other", function()
  begin()
  for _ = 1, 2 do
    for _, tick in ipairs(ticks) do
      local before = store.system()
      local value = not before[tick[2]]
      accept(function()
        frmOptions[tick[1]]:Click()
        equal(frmOptions[tick[1]].Value, value)
      end)
      changed(before, { [tick[2]] = value })
    end
  end
end)

case("each option stores its own key", function()
  begin()
  for _, choice in ipairs(choices) do
    local before = store.system()
    accept(function()
      frmOptions[choice[1]]:Click()
      frmOptions.txtCup:Type("250")
      frmOptions.txtTablespoon:Type("4")
    end)
    changed(before, { [choice[2]] = choice[3] })
  end
end)

case("the options of one frame leave those of the others alone", function()
  begin({ Kilojoules = true, Fractions = true, PartialFractions = "4" })
  open(function()
    frmOptions.optDecimals:Click()
    frmOptions.optTenth:Click()
    equal(frmOptions.optFractions.Value, false)
    equal(frmOptions.optQuarter.Value, false)
    equal(frmOptions.optKilojoules.Value, true)
    equal(frmOptions.optCalories.Value, false)
    equal(frmOptions.optMetric.Value, true)
  end)
end)

case("a measurement system brings its own cup and spoon", function()
  begin()
  local standards = {
    { "optUKImperial", "8", "3", units.i }, { "optMetric", "250", "4", units.m }, { "optUSImperial", "8", "3", units.u },
    { "optUKImperial", "8", "3", units.i },
  }
  open(function()
    for _, standard in ipairs(standards) do
      frmOptions.txtCup:Type("99.5")
      frmOptions.txtTablespoon:Type("9")
      frmOptions[standard[1]]:Click()
      equal(frmOptions.txtCup.Text, standard[2])
      equal(frmOptions.txtTablespoon.Text, standard[3])
      equal(frmOptions.lblCupUnit.Caption, standard[4])
      frmOptions.txtCup:Type("99.5")
      frmOptions[standard[1]]:Click()
      equal(frmOptions.txtCup.Text, "99.5", "the system was chosen already")
    end
  end)
  equal(boxes(), {})
end)

case("sizes typed after the choice of a system are stored", function()
  begin()
  accept(function()
    frmOptions.optUSImperial:Click()
    frmOptions.txtCup:Type("10.55")
    frmOptions.txtTablespoon:Type("6")
  end)
  equal(store.system().Measurement, "u")
  equal(store.system().Cup, 10.55)
  equal(store.system().Tablespoon, 6)
end)

case("the boxes take six characters and one", function()
  begin()
  accept(function()
    frmOptions.txtCup:Type("12345678")
    frmOptions.txtTablespoon:Type("56")
    equal(frmOptions.txtCup.Text, "123456")
    equal(frmOptions.txtTablespoon.Text, "5")
  end)
  equal(store.system().Cup, 123456)
  equal(store.system().Tablespoon, 5)
end)

case("every number is taken as a cup", function()
  begin()
  local numbers = {
    ["0"] = 0, ["-5"] = -5, ["1,000"] = 1000, [" 12 "] = 12, [".5"] = 0.5, ["1e2"] = 100, ["(5)"] = -5, ["$7"] = 7, ["5-"] = -5,
  }
  for text, number in pairs(numbers) do
    accept(function() frmOptions.txtCup:Type(text) end)
    equal(boxes(), {}, text)
    equal(store.system().Cup, number, text)
  end
end)

case("a spoon of 0 is taken", function()
  begin()
  accept(function() frmOptions.txtTablespoon:Type("0") end)
  equal(store.system().Tablespoon, 0)
end)

case("a cup that is no number is refused, and nothing is stored", function()
  begin()
  local before = store.system()
  for _, text in ipairs({ "", " ", "abc", "1/2", "1 0", "5%", "-", "1e400" }) do
    open(function()
      frmOptions.chkShowToolbars:Click()
      frmOptions.optCalories:Click()
      frmOptions.txtCup:Type(text)
      frmOptions.cmdOK:Click()
      equal(boxes(), { { text = "Invalid cup details.", caption = "Error", style = 16, answer = "OK" } }, text)
      check(frmOptions.Visible, text)
      equal(focus(), "frmOptions.txtCup")
      equal(frmOptions.txtCup.Text, text)
    end)
    changed(before, {})
    check(frmBrowse.tbBrowse.Visible)
    equal(frmBrowse.lblEnergy.Caption, "Energy:")
  end
end)

case("a spoon that is no number is refused, and nothing is stored", function()
  begin()
  local before = store.system()
  for _, text in ipairs({ "", " ", "x", "-" }) do
    open(function()
      frmOptions.txtCup:Type("300")
      frmOptions.txtTablespoon:Type(text)
      frmOptions.cmdOK:Click()
      equal(boxes(), { { text = "Invalid tablespoon details.", caption = "Error", style = 16, answer = "OK" } }, text)
      check(frmOptions.Visible, text)
      equal(focus(), "frmOptions.txtTablespoon")
    end)
    changed(before, {})
  end
end)

case("of two wrong sizes the cup is told first, and the dialog goes on until both are right", function()
  begin()
  accept(function()
    frmOptions.txtCup:Type("x")
    frmOptions.txtTablespoon:Type("y")
    frmOptions.cmdOK:Click()
    equal(boxes()[1].text, "Invalid cup details.")
    frmOptions.txtCup:Type("200")
    frmOptions.cmdOK:Click()
    equal(boxes()[1].text, "Invalid tablespoon details.")
    frmOptions.txtTablespoon:Type("5")
  end)
  equal(store.system().Cup, 200)
  equal(store.system().Tablespoon, 5)
end)

case("Cancel, Esc and the close mark leave everything as it was", function()
  begin()
  local before = store.system()
  local ways = {
    function() frmOptions.cmdCancel:Click() end,
    function() frmOptions:Key(27) end,
    function() frmOptions:Close() end,
  }
  for _, leave in ipairs(ways) do
    open(function()
      frmOptions.optUSImperial:Click()
      frmOptions.optCalories:Click()
      frmOptions.chkShowToolbars:Click()
      frmOptions.txtCup:Type("x")
      leave()
      check(not frmOptions.Visible)
    end)
    changed(before, {})
    check(frmBrowse.tbBrowse.Visible)
    equal(frmBrowse.lblEnergy.Caption, "Energy:")
  end
  equal(boxes(), {})
end)

case("pressing Metric and then Cancel leaves the options as they were", function()
  begin({ Measurement = "i", Cup = 10, Tablespoon = 2 })
  local before = store.system()
  open(function()
    frmOptions.optMetric:Click()
    frmOptions.cmdCancel:Click()
  end)
  changed(before, {})
end)

case("Enter is OK, also in a box", function()
  begin()
  open(function()
    frmOptions.txtCup:Type("300")
    frmOptions:Key(13)
    check(not frmOptions.Visible)
  end)
  equal(store.system().Cup, 300)
  open(function()
    frmOptions.cmdCancel:Focus()
    frmOptions:Key(13)
    check(not frmOptions.Visible)
  end)
end)

case("the dialog leaves the flag of the detail window alone", function()
  begin()
  GLOBAL.gKeepDetailOnActivate = false
  accept(function() end)
  equal(GLOBAL.gKeepDetailOnActivate, false)
end)
