-- The nine nutrition values of the recipe on show.

local boxOrder = { "txtEnergy", "txtProtein", "txtCholesterol", "txtCarbohydrates", "txtSodium", "txtFibre", "txtCalcium", "txtFat", "txtIron" }

local shared = {
  txtEnergy = "gEnergy", txtProtein = "gProtein", txtCholesterol = "gCholesterol", txtCarbohydrates = "gCarbohydrates",
  txtSodium = "gSodium", txtFibre = "gFibre", txtCalcium = "gCalcium", txtFat = "gFat", txtIron = "gIron",
}

local function open(fields, system)
  store.create(system)
  local row = { RecipeId = 1, Title = "Apple Pie" }
  for key, value in pairs(fields or {}) do row[key] = value end
  store.add("Recipe", row)
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  start()
  frmBrowse.lstTitles:DblClick(0)
end

local function dialog(doings)
  modal("frmNutrition", doings)
  frmDetail.mnuNutrition:Click()
end

-- Types into one box of an empty dialog and presses OK; gives whether the dialog stayed open, and the boxes.
local function try(name, text)
  local refused, said
  dialog(function()
    for _, box in ipairs(boxOrder) do frmNutrition[box]:Type("") end
    frmNutrition[name]:Type(text)
    frmNutrition.cmdOK:Click()
    refused = frmNutrition.Visible
    said = boxes()
    if refused then
      equal(focus(), "frmNutrition." .. name)
      equal(frmNutrition[name].Text, text)
      frmNutrition.cmdCancel:Click()
    end
  end)
  return refused, said
end

case("the nutrition dialog shows its texts", function()
  screen(800, 600)
  open()
  dialog(function()
    equal(frmNutrition.Caption, "Nutrition")
    equal(frmNutrition.fmeNutrition.Caption, "Enter values applicable per serve.")
    equal(frmNutrition.lblEnergy.Caption, "Energy (kilojoules)")
    equal(frmNutrition.lblProtein.Caption, "Protein (g)")
    equal(frmNutrition.lblCarbohydrates.Caption, "Carbohydrates (g)")
    equal(frmNutrition.lblFibre.Caption, "Fibre (g)")
    equal(frmNutrition.lblFat.Caption, "Fat (g)")
    equal(frmNutrition.lblCholesterol.Caption, "Cholesterol (mg)")
    equal(frmNutrition.lblSodium.Caption, "Sodium (mg)")
    equal(frmNutrition.lblCalcium.Caption, "Calcium (mg)")
    equal(frmNutrition.lblIron.Caption, "Iron (mg)")
    equal(frmNutrition.cmdOK.Caption, "&OK")
    equal(frmNutrition.cmdCancel.Caption, "&Cancel")
    equal(frmNutrition.cmdClear.Caption, "C&lear")
    equal(frmNutrition.cmdHelp.Caption, "&Help")
    for _, box in ipairs(boxOrder) do equal(frmNutrition[box].MaxLength, 6, box) end
    equal(focus(), "frmNutrition.txtEnergy")
    equal(frmNutrition.Left, (12000 - frmNutrition.Width) / 2)
    equal(frmNutrition.Top, (9000 - frmNutrition.Height) / 3)
    frmNutrition.cmdHelp:Click()
    equal(helps(), { 440 })
    check(frmNutrition.Visible)
  end)
  check(not frmNutrition.Loaded)
end)

case("a recipe without values shows empty boxes and no second line", function()
  open({ Energy = 0 })
  dialog(function()
    for _, box in ipairs(boxOrder) do equal(frmNutrition[box].Text, "", box) end
    equal(frmNutrition.lblKilojoulesCalories.Caption, "")
  end)
end)

case("1000 kilojoules are shown with their calories", function()
  open({ Energy = 1000 })
  dialog(function()
    equal(frmNutrition.txtEnergy.Text, "1000")
    equal(frmNutrition.lblKilojoulesCalories.Caption, "or approx. 239 calories")
  end)
end)

case("in calories the box divides, and the second line has the kilojoules", function()
  open({ Energy = 1000 }, { Kilojoules = false })
  modal("frmNutrition", function()
    equal(frmNutrition.lblEnergy.Caption, "Energy (calories)")
    equal(frmNutrition.txtEnergy.Text, "239")
    equal(frmNutrition.lblKilojoulesCalories.Caption, "or approx. 1000 kilojoules")
  end)
  frmDetail.tbDetail:Press("Nutrition")
end)

case("energies are rounded to whole numbers, halves away from zero", function()
  open()
  local shown = {
    { 2.5, "3", "or approx. 1 calories" },
    { 0.4, "0", "or approx. 0 calories" },
    { 1234567, "1234567", "or approx. 294871 calories" },
    { -1000, "-1000", "or approx. -239 calories" },
    -- The last single below 1234.5, which its seven digits read as.
    { 1234.49988, "1235", "or approx. 295 calories" },
  }
  for _, row in ipairs(shown) do
    GLOBAL.gEnergy = row[1]
    dialog(function()
      equal(frmNutrition.txtEnergy.Text, row[2])
      equal(frmNutrition.lblKilojoulesCalories.Caption, row[3])
    end)
  end
end)

case("the other values are shown in their plain form", function()
  open({ Protein = 12.5, Cholesterol = 0.05, Carbohydrates = 100, Sodium = 0, Fibre = 1234.5678, Fat = 3 })
  dialog(function()
    equal(frmNutrition.txtProtein.Text, "12.5")
    equal(frmNutrition.txtCholesterol.Text, "0.05")
    equal(frmNutrition.txtCarbohydrates.Text, "100")
    equal(frmNutrition.txtSodium.Text, "")
    equal(frmNutrition.txtFibre.Text, "1234.568")
    equal(frmNutrition.txtCalcium.Text, "")
    equal(frmNutrition.txtFat.Text, "3")
    equal(frmNutrition.txtIron.Text, "")
  end)
end)

case("OK takes all nine values and marks the change", function()
  open()
  frmDetail.txtTitle:Type("Apple Cake")
  dialog(function()
    for i, box in ipairs(boxOrder) do frmNutrition[box]:Type(i .. ".5") end
    frmNutrition.cmdOK:Click()
    check(not frmNutrition.Visible)
  end)
  for i, box in ipairs(boxOrder) do equal(GLOBAL[shared[box]], i + 0.5, box) end
  equal(GLOBAL.gDetailChanged, true)
  equal(GLOBAL.gKeepDetailOnActivate, false)
  equal(frmDetail.mnuNutrition.Caption, "Nutrition~")
  equal(frmDetail.txtTitle.Text, "Apple Cake")
  equal(store.row("Recipe", "RecipeId", 1).Energy, nil)
  check(not frmNutrition.Loaded)
end)

case("Enter presses OK", function()
  open()
  dialog(function()
    frmNutrition.txtIron:Type("5")
    frmNutrition:Key(13)
    check(not frmNutrition.Visible)
  end)
  equal(GLOBAL.gIron, 5)
end)

case("an OK with every box empty makes all values 0", function()
  open({ Energy = 1000, Cholesterol = 5, Iron = 2 })
  equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
  dialog(function()
    for _, box in ipairs(boxOrder) do frmNutrition[box]:Type("") end
    frmNutrition.cmdOK:Click()
  end)
  for _, box in ipairs(boxOrder) do equal(GLOBAL[shared[box]], 0, box) end
  equal(frmDetail.mnuNutrition.Caption, "Nutrition")
  equal(boxes(), {})
end)

case("each value but the cholesterol marks the menu entry", function()
  open()
  for _, box in ipairs(boxOrder) do
    try(box, "5")
    equal(GLOBAL[shared[box]], 5, box)
    equal(frmDetail.mnuNutrition.Caption, box == "txtCholesterol" and "Nutrition" or "Nutrition~", box)
  end
end)

case("cholesterol alone is marked by a load and not by OK", function()
  open({ Cholesterol = 30 })
  equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
  dialog(function() frmNutrition.cmdOK:Click() end)
  equal(GLOBAL.gCholesterol, 30)
  equal(frmDetail.mnuNutrition.Caption, "Nutrition")
  answer("Yes")
  frmDetail:Key(34)
  equal(frmDetail.mnuNutrition.Caption, "Nu&trition")
  frmDetail:Key(33)
  equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
end)

case("each box takes the number that its text begins with", function()
  open()
  local taken = {
    ["1e3"] = 1000, ["1,5"] = 1, ["1,000"] = 1, ["-4"] = -4, ["99999"] = 99999, ["(5)"] = 0, ["$5"] = 0, ["5-"] = 5, [".5"] = 0.5,
    [" 7 "] = 7, ["&H1F"] = 31, ["- 5"] = -5, ["007"] = 7, ["0"] = 0,
  }
  for _, box in ipairs(boxOrder) do
    for text, number in pairs(taken) do
      local refused, said = try(box, text)
      equal(refused, false, box .. " " .. text)
      equal(said, {}, box .. " " .. text)
      equal(GLOBAL[shared[box]], number, box .. " " .. text)
      equal(frmDetail.mnuNutrition.Caption, number > 0 and box ~= "txtCholesterol" and "Nutrition~" or "Nutrition", box .. " " .. text)
    end
  end
end)

case("each box refuses what is no number", function()
  open()
  for _, box in ipairs(boxOrder) do
    for _, text in ipairs({ "abc", " ", "1/2", "12.3.4", "5%", "-", "5 g", "1e" }) do
      local refused, said = try(box, text)
      equal(refused, true, box .. " " .. text)
      equal(#said, 1, box .. " " .. text)
      equal(said[1].text, "Value entered must be numeric.")
      equal(said[1].caption, "Error")
      equal(said[1].style, 16)
    end
  end
end)

case("six characters are taken", function()
  open()
  dialog(function()
    frmNutrition.txtSodium:Type("1234567")
    equal(frmNutrition.txtSodium.Text, "123456")
  end)
end)

case("a number that no single holds ends the run", function()
  open()
  local failure = fails(function()
    dialog(function()
      frmNutrition.txtFat:Type("1e99")
      frmNutrition.cmdOK:Click()
    end)
  end)
  equal(failure and failure.number, 6)
  check(not running())
end)

case("the boxes are checked in their order, one message at a time", function()
  open()
  dialog(function()
    for _, box in ipairs(boxOrder) do frmNutrition[box]:Type("x") end
    for _, box in ipairs(boxOrder) do
      frmNutrition.cmdOK:Click()
      equal(#boxes(), 1, box)
      equal(focus(), "frmNutrition." .. box)
      frmNutrition[box]:Type("1")
    end
    frmNutrition.cmdOK:Click()
    check(not frmNutrition.Visible)
  end)
end)

case("a refused OK marks the change and takes nothing", function()
  open({ Energy = 1000, Protein = 3 })
  frmDetail.txtTitle:Type("Apple Cake")
  equal(GLOBAL.gDetailChanged, false)
  dialog(function()
    frmNutrition.txtEnergy:Type("2000")
    frmNutrition.txtIron:Type("x")
    frmNutrition.cmdOK:Click()
    equal(GLOBAL.gDetailChanged, true)
    equal(GLOBAL.gKeepDetailOnActivate, true)
    equal(GLOBAL.gEnergy, 1000)
    equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
    frmNutrition.cmdCancel:Click()
  end)
  equal(GLOBAL.gEnergy, 1000)
  equal(GLOBAL.gDetailChanged, true)
  equal(GLOBAL.gKeepDetailOnActivate, false)
  equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
  equal(frmDetail.txtTitle.Text, "Apple Cake")
end)

case("Clear empties everything, and the values change only at OK", function()
  open({ Energy = 1000, Protein = 3, Iron = 2 })
  dialog(function()
    frmNutrition.txtIron:Focus()
    frmNutrition.cmdClear:Click()
    for _, box in ipairs(boxOrder) do equal(frmNutrition[box].Text, "", box) end
    equal(frmNutrition.lblKilojoulesCalories.Caption, "")
    equal(frmNutrition.lblEnergy.Caption, "Energy (kilojoules)")
    equal(focus(), "frmNutrition.txtEnergy")
    frmNutrition.cmdCancel:Click()
  end)
  equal(GLOBAL.gEnergy, 1000)
  equal(GLOBAL.gIron, 2)
  equal(GLOBAL.gDetailChanged, false)
  dialog(function()
    equal(frmNutrition.txtEnergy.Text, "1000")
    frmNutrition.cmdClear:Click()
    frmNutrition.cmdOK:Click()
  end)
  equal(GLOBAL.gEnergy, 0)
  equal(GLOBAL.gIron, 0)
  equal(GLOBAL.gDetailChanged, true)
end)

case("Cancel, Esc and the close mark take nothing and keep the edits", function()
  open({ Energy = 1000 })
  frmDetail.txtTitle:Type("Apple Cake")
  local ways = {
    function() frmNutrition.cmdCancel:Click() end,
    function() frmNutrition:Key(27) end,
    function() frmNutrition:Close() end,
  }
  for _, leave in ipairs(ways) do
    dialog(function()
      frmNutrition.txtEnergy:Type("5")
      leave()
      check(not frmNutrition.Visible)
    end)
    check(not frmNutrition.Loaded)
    equal(GLOBAL.gEnergy, 1000)
    equal(GLOBAL.gDetailChanged, false)
    equal(GLOBAL.gKeepDetailOnActivate, false)
    equal(frmDetail.txtTitle.Text, "Apple Cake")
    equal(frmDetail.mnuNutrition.Caption, "Nu&trition~")
  end
end)

case("in calories every opening after an OK divides once more", function()
  open({ Energy = 1000 }, { Kilojoules = false })
  dialog(function() frmNutrition.cmdOK:Click() end)
  equal(GLOBAL.gEnergy, 239)
  dialog(function()
    equal(frmNutrition.txtEnergy.Text, "57")
    equal(frmNutrition.lblKilojoulesCalories.Caption, "or approx. 239 kilojoules")
  end)
  equal(GLOBAL.gEnergy, 239)
end)

case("in kilojoules the number stays what it is", function()
  open({ Energy = 1000 })
  dialog(function() frmNutrition.cmdOK:Click() end)
  equal(GLOBAL.gEnergy, 1000)
  dialog(function()
    equal(frmNutrition.txtEnergy.Text, "1000")
    equal(frmNutrition.lblKilojoulesCalories.Caption, "or approx. 239 calories")
  end)
end)

case("values can be given before there is a title", function()
  open()
  frmDetail.mnuClear:Click()
  try("txtFibre", "7")
  equal(GLOBAL.gFibre, 7)
  equal(frmDetail.mnuNutrition.Caption, "Nutrition~")
  equal(frmDetail.txtTitle.Text, "")
end)
