-- The list of the recipes that the last import added, read from import.lst.

local function cookbook()
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie", Meal = true })
  store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
  store.add("Recipe", { RecipeId = 3, Title = "Carrot Cake" })
  store.add("Recipe", { RecipeId = 4, Title = "Crème Brûlée" })
end

local function withList(bytes)
  cookbook()
  start()
  if bytes then file.write("import.lst", bytes) end
end

local function titles()
  local list = {}
  for i = 0, frmBrowse.lstTitles.ListCount - 1 do list[#list + 1] = frmBrowse.lstTitles:List(i) end
  return list
end

local everything = { "Apple Pie", "Beef Stew", "Carrot Cake", "Crème Brûlée" }
local nothingFound = { { text = "No recipe details found for last import.", caption = "Information", style = 64, answer = "OK" } }

case("the imported recipes are listed in title order, and nothing is selected", function()
  withList("Carrot Cake\r\nApple Pie\r\n")
  frmBrowse.lstTitles:Pick(1)
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Apple Pie", "Carrot Cake" })
  equal(frmBrowse.fmeList.Caption, "2 recipe(s) displayed")
  equal(frmBrowse.lstTitles.ListIndex, -1)
  equal(frmBrowse.lstTitles.Sorted, 1)
  equal(focus(), "frmBrowse.txtTitle")
  equal(boxes(), {})
  equal(frmBrowse.MousePointer, 0)
  equal(pointer(), 0)
end)

case("the entry of the menu List does the same", function()
  withList("Beef Stew\r\n")
  frmBrowse.mnuListListLastImported:Click()
  equal(titles(), { "Beef Stew" })
  equal(frmBrowse.mnuListListLastImported.Caption, "&Last Imported Recipes")
end)

case("the filters are cleared and the first page comes back", function()
  withList("Beef Stew\r\n")
  store.add("Health", { HealthId = 1, Description = "Low Fat" })
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.cmbCourse.Text = "Dessert"
  frmBrowse.lblFilters:Click()
  frmBrowse.txtIron:Type("5")
  frmBrowse.lblIronSign:Click()
  frmBrowse.mnuListLastImported:Click()
  equal(frmBrowse.txtTitle.Text, "")
  equal(frmBrowse.cmbCourse.Text, "")
  equal(frmBrowse.txtIron.Text, "")
  equal(frmBrowse.lblIronSign.Caption, "<=")
  equal(frmBrowse.lblFilters.Caption, "Filters")
  check(frmBrowse.txtTitle.Visible)
  check(not frmBrowse.txtIron.Visible)
  equal(focus(), "frmBrowse.txtTitle")
end)

case("a number that no filter takes is cleared without a word", function()
  withList("Beef Stew\r\n")
  frmBrowse.lblFilters:Click()
  frmBrowse.txtFat:Type("lots")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), {})
  equal(frmBrowse.txtFat.Text, "")
  equal(titles(), { "Beef Stew" })
end)

case("a tick for the meal stays, with the other filters open and empty", function()
  withList("Beef Stew\r\nApple Pie\r\n")
  frmBrowse.chkMeal:Click()
  check(not frmBrowse.txtTitle.Enabled)
  frmBrowse.mnuListLastImported:Click()
  equal(frmBrowse.chkMeal.Value, true)
  check(not frmBrowse.lblFilters.Enabled)
  check(frmBrowse.txtTitle.Enabled)
  check(frmBrowse.lstOther.Enabled)
  equal(titles(), { "Apple Pie", "Beef Stew" })
  frmBrowse.mnuFilter:Click()
  equal(titles(), { "Apple Pie" })
end)

case("a missing list is told and changes nothing", function()
  withList()
  frmBrowse.txtTitle:Type("pie")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), nothingFound)
  equal(titles(), everything)
  equal(frmBrowse.txtTitle.Text, "pie")
end)

case("an empty list is told and changes nothing", function()
  withList("")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), nothingFound)
  equal(titles(), everything)
  equal(frmBrowse.fmeList.Caption, "4 recipe(s) displayed")
end)

case("a list that begins with the end mark of old files is empty", function()
  withList("\26Apple Pie\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), nothingFound)
end)

case("a list that can't be opened is told", function()
  withList()
  file.mkdir("import.lst")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), nothingFound)
  equal(titles(), everything)
end)

case("a list of empty lines empties the list of titles without a word", function()
  withList("\r\n\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(boxes(), {})
  equal(titles(), {})
  equal(frmBrowse.fmeList.Caption, "0 recipe(s) displayed")
end)

case("a recipe that was deleted or renamed since gives no row and no message", function()
  withList("Apple Pie\r\nDuck Soup\r\nBeef Stew\r\n\r\nBeef Stew 1\r\n")
  store.remove("Recipe", "RecipeId", 1)
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Beef Stew" })
  equal(frmBrowse.fmeList.Caption, "1 recipe(s) displayed")
  equal(boxes(), {})
end)

case("a list of recipes that are all gone leaves an empty list", function()
  withList("Duck Soup\r\nEgg Salad\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), {})
  equal(frmBrowse.fmeList.Caption, "0 recipe(s) displayed")
  equal(boxes(), {})
end)

case("binary rubbish gives no rows and no error", function()
  local bytes = {}
  for i = 0, 255 do bytes[#bytes + 1] = string.char((i * 37 + 11) % 256) end
  withList(("\0\1\2'\"~*?[%\r\n" .. table.concat(bytes):gsub("\26", "\27")):rep(3) .. "\r\nBeef Stew")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Beef Stew" })
  equal(boxes(), {})
  check(running())
end)

case("a line far longer than any title finds nothing", function()
  withList(string.rep("x", 5000) .. "\r\nBeef Stew\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Beef Stew" })
end)

case("titles are found in any case and shown as they are stored", function()
  withList("bEEF stew\r\nCR\xc8ME BR\xdbL\xc9E\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Beef Stew", "Crème Brûlée" })
end)

case("a title on two lines gives two rows", function()
  withList("Beef Stew\r\nBeef Stew\r\n")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Beef Stew", "Beef Stew" })
  equal(frmBrowse.fmeList.Caption, "2 recipe(s) displayed")
end)

case("lines may end in a line feed alone, and the last one in nothing", function()
  withList("Beef Stew\nApple Pie")
  frmBrowse.mnuListLastImported:Click()
  equal(titles(), { "Apple Pie", "Beef Stew" })
end)

case("a row's colour goes to the row at the count so far, and comes right when it is selected", function()
  withList("Beef Stew\r\nApple Pie\r\n")
  frmBrowse.mnuListLastImported:Click()
  -- The second title went in above the first, and its colour to the row that stood second then.
  equal(frmBrowse.lstTitles:Colours(0).ForeColor, 1)
  equal(frmBrowse.lstTitles:Colours(1).ForeColor, 6)
  frmBrowse.lstTitles:Pick(0)
  equal(frmBrowse.lstTitles:Colours(0), { ForeColor = 6, SelForeColor = 6, SelBackColor = 1 })
  frmBrowse.lstTitles:Pick(1)
  equal(frmBrowse.lstTitles:Colours(1), { ForeColor = 1, SelForeColor = 15, SelBackColor = 1 })
end)

-- A hundred found titles among others that are gone: only what is found counts.
local function longList(count)
  store.create({ ShowRecipes = false })
  local lines = {}
  for i = 1, count do
    store.add("Recipe", { RecipeId = i, Title = string.format("Recipe %04d", i) })
    lines[#lines + 1] = string.format("Recipe %04d", i)
    lines[#lines + 1] = "Gone " .. i
  end
  start()
  file.write("import.lst", table.concat(lines, "\r\n") .. "\r\n")
end

case("every hundredth title shows the count and lets Stop in", function()
  longList(250)
  local captions = {}
  yields(function()
    captions[#captions + 1] = frmBrowse.fmeList.Caption
    check(frmBrowse.tbBrowse:Button("Stop").Visible)
    check(not frmBrowse.tbBrowse:Button("Filter").Visible)
    equal(frmBrowse.tbBrowse:Button("Add").Value, 1)
  end)
  frmBrowse.mnuListLastImported:Click()
  equal(captions, { "100 recipe(s) displayed", "200 recipe(s) displayed" })
  equal(frmBrowse.lstTitles.ListCount, 250)
  check(frmBrowse.tbBrowse:Button("Filter").Visible)
  check(not frmBrowse.tbBrowse:Button("Stop").Visible)
  equal(frmBrowse.tbBrowse:Button("Add").Value, 0)
end)

case("Stop ends the listing with the rows that are there", function()
  longList(250)
  yields(function() frmBrowse.tbBrowse:Press("Stop") end)
  frmBrowse.mnuListLastImported:Click()
  equal(frmBrowse.lstTitles.ListCount, 100)
  equal(frmBrowse.fmeList.Caption, "100 recipe(s) displayed")
  check(frmBrowse.tbBrowse:Button("Filter").Visible)
end)

case("a list of fewer than a hundred titles never lets Stop in", function()
  longList(99)
  local turns = 0
  yields(function() turns = turns + 1 end)
  frmBrowse.mnuListLastImported:Click()
  equal(turns, 0)
  equal(frmBrowse.lstTitles.ListCount, 99)
end)

case("a count of thousands has its mark", function()
  longList(1000)
  frmBrowse.mnuListLastImported:Click()
  equal(frmBrowse.fmeList.Caption, "1,000 recipe(s) displayed")
end)

case("while it lists, a second listing does nothing", function()
  longList(150)
  yields(function()
    frmBrowse.mnuListLastImported:Click()
    frmBrowse.mnuListListLastImported:Click()
  end)
  frmBrowse.mnuListLastImported:Click()
  equal(frmBrowse.lstTitles.ListCount, 150)
end)

case("Esc in the middle of the listing ends the program and leaves one file", function()
  longList(150)
  yields(function() frmBrowse:Key(27) end)
  frmBrowse.mnuListLastImported:Click()
  check(not running())
  equal(file.list(), { "PANTRIGO.MDB", "import.lst" })
  equal(#store.rows("Recipe"), 150)
end)
