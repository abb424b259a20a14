-- Categories are added, renamed and deleted, in the store and in both windows at once.

local kinds = {
  { name = "Nationality", control = "cmbNationality" },
  { name = "Course", control = "cmbCourse", detailEntry = "mnuCategoriesCoarse" },
  { name = "Cooking", control = "cmbCooking" },
  { name = "Ease", control = "cmbEase" },
  { name = "Health", control = "lstHealth", link = "RecipeHealth", label = "lblHealth", caption = "Health" },
  { name = "Other", control = "lstOther", link = "RecipeOther", label = "lblOther", caption = "Other Categories" },
}
for _, kind in ipairs(kinds) do kind.id = kind.name .. "Id" end

local exists = { text = "A category with this title already exists.", caption = "Error", style = 16, answer = "OK" }
local missing = { text = "Cannot update/delete as that category does not exist.", caption = "Sorry", style = 48, answer = "OK" }
local inUse = {
  text = "That category is being used by at least one recipe.  Please update all recipes to another category, then you can proceed with delete.",
  caption = "Sorry", style = 48, answer = "OK",
}
local function question(pressed)
  return { text = "Are you sure you want to delete this category?", caption = "Confirmation", style = 36, answer = pressed }
end

local function rows(form, kind)
  local list = {}
  for row = 0, form[kind.control].ListCount - 1 do list[#list + 1] = form[kind.control]:List(row) end
  return list
end

local function descriptions(kind)
  local list = {}
  for _, row in ipairs(store.rows(kind.name)) do list[#list + 1] = row.Description end
  return list
end

-- Both windows hold these rows, and so does the store unless another list is given for it.
local function holds(kind, list, stored)
  equal(rows(frmBrowse, kind), list, "frmBrowse")
  equal(rows(frmDetail, kind), list, "frmDetail")
  equal(descriptions(kind), stored or list, "store")
end

local function fill(kind)
  store.create()
  store.add(kind.name, { [kind.id] = 3, Description = "Alpha" })
  store.add(kind.name, { [kind.id] = 7, Description = "Beta" })
  store.add(kind.name, { [kind.id] = 5, Description = "Gamma" })
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Serves = 4 })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew", Serves = 6 })
end

local function begin(kind, window)
  fill(kind)
  start()
  if window == "frmDetail" then frmBrowse.lstTitles:DblClick(0) end
  return window == "frmDetail" and frmDetail or frmBrowse
end

local function choose(form, kind, ...)
  for _, description in ipairs({ ... }) do
    if kind.link then form[kind.control]:Toggle(description) else form[kind.control]:Pick(description) end
  end
end

-- Opens the dialog of the kind from the window, and does in it what the function does.
local function open(form, kind, action)
  modal("frmCategory", action)
  local entry = "mnuCategories" .. kind.name
  if form == frmDetail then entry = kind.detailEntry or entry end
  form[entry]:Click()
  check(not frmCategory.Loaded, "the dialog is closed")
end

local function press(form, kind, button, text)
  open(form, kind, function()
    if text then frmCategory.txtCategory:Type(text) end
    frmCategory[button]:Click()
  end)
end

-- One case for each kind and each window that the dialog opens from.
local function each(name, body)
  for _, kind in ipairs(kinds) do
    for _, window in ipairs({ "frmBrowse", "frmDetail" }) do
      case(name .. " (" .. kind.name .. ", " .. window .. ")", function() body(kind, begin(kind, window)) end)
    end
  end
end

each("the dialog shows its texts", function(kind, form)
  open(form, kind, function()
    equal(GLOBAL.gCategoryTable, kind.name)
    equal(GLOBAL.gCategoryCaller, form == frmDetail and "frmDetail" or "frmBrowse")
    equal(frmCategory.Caption, "Categories - " .. kind.name)
    equal(frmCategory.fmeCategory.Caption, "Enter item to be added, updated or deleted:")
    equal(frmCategory.txtCategory.Text, "")
    equal(frmCategory.txtCategory.MaxLength, 30)
    equal(frmCategory.cmdAdd.Caption, "&Add")
    equal(frmCategory.cmdUpdate.Caption, "&Update")
    equal(frmCategory.cmdDelete.Caption, "&Delete")
    equal(frmCategory.cmdClear.Caption, "C&lear")
    equal(frmCategory.cmdCancel.Caption, "&Cancel")
    equal(frmCategory.cmdHelp.Caption, "&Help")
    equal(focus(), "frmCategory.txtCategory")
    frmCategory.cmdHelp:Click()
    equal(helps(), { 390 })
    check(frmCategory.Visible)
  end)
end)

each("the current choice of the window stands in the box", function(kind, form)
  local other = form == frmDetail and frmBrowse or frmDetail
  if other == frmBrowse then choose(frmBrowse, kind, "Gamma") end
  if form == frmDetail then frmBrowse.lstTitles:DblClick(0) end
  choose(form, kind, "Beta")
  open(form, kind, function() equal(frmCategory.txtCategory.Text, "Beta") end)
end)

each("Add makes a new entry, last in the lists of both windows", function(kind, form)
  press(form, kind, "cmdAdd", "Delta")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma", "Delta" })
  equal(store.row(kind.name, "Description", "Delta")[kind.id], 8)
  equal(store.system()[kind.id], 8)
end)

each("Add raises no counter but that of its kind", function(kind, form)
  press(form, kind, "cmdAdd", "Delta")
  for _, other in ipairs(kinds) do
    equal(store.system()[other.id], other == kind and 8 or 0, other.name)
  end
  equal(store.system().RecipeId, 2)
end)

each("a new entry can be chosen at once in both windows", function(kind, form)
  press(form, kind, "cmdAdd", "Delta")
  choose(frmBrowse, kind, "Delta")
  if kind.link then check(frmBrowse[kind.control]:Selected(3)) else equal(frmBrowse[kind.control].Text, "Delta") end
  frmBrowse.lstTitles:DblClick(0)
  choose(frmDetail, kind, "Delta")
  if kind.link then check(frmDetail[kind.control]:Selected(3)) else equal(frmDetail[kind.control].Text, "Delta") end
end)

each("Add of a name that exists is refused, in any case and with blanks behind", function(kind, form)
  for _, text in ipairs({ "Beta", "bETA", "Beta " }) do
    press(form, kind, "cmdAdd", text)
    equal(boxes(), { exists }, text)
    holds(kind, { "Alpha", "Beta", "Gamma" })
    equal(store.system()[kind.id], 7)
  end
end)

each("Add of an empty text only closes", function(kind, form)
  press(form, kind, "cmdAdd", "")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
  equal(store.system()[kind.id], 7)
end)

each("Add changes no choice of either window", function(kind, form)
  choose(form, kind, "Beta")
  press(form, kind, "cmdAdd", "Delta")
  if kind.link then
    equal(form[kind.control].SelCount, 1)
    check(form[kind.control]:Selected(1))
    equal(form[kind.label].Caption, kind.caption .. "~")
  else
    equal(form[kind.control].Text, "Beta")
  end
end)

each("Update renames the chosen entry", function(kind, form)
  if not kind.link then store.set("Recipe", "RecipeId", 2, { [kind.name] = 7 }) end
  choose(form, kind, "Beta")
  press(form, kind, "cmdUpdate", "Delta")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Gamma", "Delta" }, { "Alpha", "Delta", "Gamma" })
  equal(store.row(kind.name, "Description", "Delta")[kind.id], 7)
  equal(store.system()[kind.id], 7)
  if not kind.link then equal(store.row("Recipe", "RecipeId", 2)[kind.name], 7) end
end)

each("Update with the text unchanged does nothing", function(kind, form)
  choose(form, kind, "Beta")
  press(form, kind, "cmdUpdate")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Update with no choice made does nothing", function(kind, form)
  press(form, kind, "cmdUpdate", "Delta")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Update to an empty text does nothing", function(kind, form)
  choose(form, kind, "Beta")
  press(form, kind, "cmdUpdate", "")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Update to a name that exists is refused, also when only the case or blanks behind differ", function(kind, form)
  choose(form, kind, "Beta")
  for _, text in ipairs({ "Gamma", "gamma", "BETA", "Beta " }) do
    press(form, kind, "cmdUpdate", text)
    equal(boxes(), { exists }, text)
    holds(kind, { "Alpha", "Beta", "Gamma" })
  end
end)

each("Delete asks, and takes the entry out of the store and both windows", function(kind, form)
  answer("Yes")
  press(form, kind, "cmdDelete", "Beta")
  equal(boxes(), { question("Yes") })
  holds(kind, { "Alpha", "Gamma" })
  equal(store.system()[kind.id], 7)
end)

each("Delete of the current choice", function(kind, form)
  choose(form, kind, "Gamma")
  answer("Yes")
  press(form, kind, "cmdDelete")
  holds(kind, { "Alpha", "Beta" })
  if kind.link then
    equal(form[kind.control].SelCount, 0)
    equal(form[kind.label].Caption, kind.caption)
  else
    equal(form[kind.control].Text, "")
  end
end)

each("Delete answered by No changes nothing", function(kind, form)
  choose(form, kind, "Beta")
  answer("No")
  press(form, kind, "cmdDelete")
  equal(boxes(), { question("No") })
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Delete of a name that doesn't exist is refused", function(kind, form)
  for _, text in ipairs({ "Delta", "Bet", " Beta", "Bèta" }) do
    press(form, kind, "cmdDelete", text)
    equal(boxes(), { missing }, text)
    holds(kind, { "Alpha", "Beta", "Gamma" })
  end
end)

each("Delete of an empty text only closes", function(kind, form)
  press(form, kind, "cmdDelete", "")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Delete of an entry in use is refused without a question", function(kind, form)
  if kind.link then
    store.add(kind.link, { RecipeId = 2, [kind.id] = 7 })
  else
    store.set("Recipe", "RecipeId", 2, { [kind.name] = 7 })
  end
  press(form, kind, "cmdDelete", "beta")
  equal(boxes(), { inUse })
  holds(kind, { "Alpha", "Beta", "Gamma" })
  answer("Yes")
  press(form, kind, "cmdDelete", "Gamma")
  equal(boxes(), { question("Yes") })
  holds(kind, { "Alpha", "Beta" })
end)

each("Clear empties the box and stays", function(kind, form)
  choose(form, kind, "Beta")
  open(form, kind, function()
    frmCategory.cmdClear:Click()
    equal(frmCategory.txtCategory.Text, "")
    equal(focus(), "frmCategory.txtCategory")
    check(frmCategory.Visible)
  end)
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("Update after Clear renames what was chosen when the dialog opened", function(kind, form)
  choose(form, kind, "Beta")
  open(form, kind, function()
    frmCategory.cmdClear:Click()
    frmCategory.txtCategory:Type("Delta")
    frmCategory.cmdUpdate:Click()
  end)
  holds(kind, { "Alpha", "Gamma", "Delta" }, { "Alpha", "Delta", "Gamma" })
end)

each("Cancel, Esc and the close mark change nothing", function(kind, form)
  local ways = {
    function() frmCategory.cmdCancel:Click() end,
    function() frmCategory:Key(27) end,
    function() frmCategory:Close() end,
  }
  choose(form, kind, "Beta")
  for _, leave in ipairs(ways) do
    GLOBAL.gKeepDetailOnActivate = false
    open(form, kind, function()
      frmCategory.txtCategory:Type("Delta")
      leave()
      check(not frmCategory.Visible)
    end)
    equal(GLOBAL.gKeepDetailOnActivate, form == frmBrowse)
    holds(kind, { "Alpha", "Beta", "Gamma" })
  end
  equal(boxes(), {})
end)

each("Enter in the box does nothing", function(kind, form)
  open(form, kind, function()
    frmCategory.txtCategory:Type("Delta")
    frmCategory:Key(13)
    check(frmCategory.Visible)
    equal(frmCategory.txtCategory.Text, "Delta")
  end)
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("what was typed into the open recipe stays, whatever the dialog did", function(kind, form)
  if form == frmBrowse then frmBrowse.lstTitles:DblClick(0) end
  frmDetail.txtServes:Type("9")
  local presses = {
    { "cmdAdd", "Delta" }, { "cmdAdd", "Alpha" }, { "cmdAdd", "" }, { "cmdUpdate", "Epsilon" }, { "cmdUpdate", "" },
    { "cmdDelete", "Zeta" }, { "cmdDelete", "Gamma", "Yes" }, { "cmdDelete", "Beta", "No" }, { "cmdCancel", "Eta" },
  }
  for _, way in ipairs(presses) do
    if way[3] then answer(way[3]) end
    press(form, kind, way[1], way[2])
    frmDetail:Activate()
    equal(frmDetail.txtServes.Text, "9", way[1])
    check(GLOBAL.gDetailChanged)
    equal(GLOBAL.gKeepDetailOnActivate, false)
    if form == frmBrowse then frmBrowse:Activate() end
  end
end)

each("thirty characters are taken and no more", function(kind, form)
  press(form, kind, "cmdAdd", string.rep("ä", 29) .. "bcd")
  holds(kind, { "Alpha", "Beta", "Gamma", string.rep("ä", 29) .. "b" })
end)

each("apostrophes and other signs are letters like any other", function(kind, form)
  press(form, kind, "cmdAdd", "Cook's 'own' \"best\" & *")
  holds(kind, { "Alpha", "Beta", "Gamma", "Cook's 'own' \"best\" & *" })
  press(form, kind, "cmdAdd", "cook's 'own' \"best\" & *")
  equal(boxes(), { exists })
  choose(form, kind, "Cook's 'own' \"best\" & *")
  press(form, kind, "cmdUpdate", "O'Brien's")
  holds(kind, { "Alpha", "Beta", "Gamma", "O'Brien's" })
  answer("Yes")
  press(form, kind, "cmdDelete", "O'Brien's")
  holds(kind, { "Alpha", "Beta", "Gamma" })
end)

each("accents make another name", function(kind, form)
  press(form, kind, "cmdAdd", "Álpha")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma", "Álpha" })
end)

each("a blank is a name", function(kind, form)
  press(form, kind, "cmdAdd", " ")
  equal(boxes(), {})
  holds(kind, { "Alpha", "Beta", "Gamma", " " })
  press(form, kind, "cmdAdd", "  ")
  equal(boxes(), { exists })
end)

each("what Add and Delete leave is there at the next start", function(kind, form)
  press(form, kind, "cmdAdd", "Delta")
  answer("Yes")
  press(form, kind, "cmdDelete", "Alpha")
  stop()
  start()
  holds(kind, { "Beta", "Gamma", "Delta" })
end)

each("Delete in another case changes the store, and the lists only at the next start", function(kind, form)
  answer("Yes")
  press(form, kind, "cmdDelete", "BETA")
  equal(boxes(), { question("Yes") })
  holds(kind, { "Alpha", "Beta", "Gamma" }, { "Alpha", "Gamma" })
  press(form, kind, "cmdDelete", "Beta")
  equal(boxes(), { missing })
  stop()
  start()
  holds(kind, { "Alpha", "Gamma" })
end)
