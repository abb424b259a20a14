-- Titles and texts that nobody should type, and what a save makes of them.

local function add(title)
  frmDetail.txtTitle:Type(title)
  frmDetail.mnuAdd:Click()
end

local function blank()
  store.create()
  start()
  frmBrowse.mnuAdd:Click()
end

local function stored()
  local found = {}
  for place, recipe in ipairs(store.rows("Recipe")) do found[place] = recipe.Title end
  return found
end

case("titles with quotes, apostrophes and brackets are titles", function()
  blank()
  local odd = { "Shepherd's Pie", "''", '"Best" Cake', "a'; Delete FROM Recipe", "50% [cream] #1!", "~", "R\u{F6}sti \u{1F95A}", "like _x_" }
  for _, title in ipairs(odd) do
    add(title)
    equal(boxes(), {}, title)
  end
  equal(stored(), odd)
  frmDetail:Key(27)
  for place, title in ipairs(odd) do
    frmBrowse.lstTitles:DblClick(place - 1)
    equal(frmDetail.txtTitle.Text, title)
    frmDetail.txtComments:Type("seen")
    frmDetail.mnuUpdate:Click()
    equal(store.row("Recipe", "Title", title).Comment, "seen")
    frmDetail:Key(27)
  end
  equal(#store.rows("Recipe"), #odd)
  equal(frmBrowse.lstTitles.ListCount, #odd)
end)

case("a title of eighty characters is taken whole, more can't be typed", function()
  blank()
  local eighty = string.rep("\u{E4}", 80)
  add(eighty .. "b")
  equal(stored(), { eighty })
end)

case("a stored title of eighty-two characters is saved whole", function()
  local long = string.rep("x", 82)
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = long })
  start()
  frmBrowse.lstTitles:DblClick(0)
  frmDetail.txtComments:Type("seen")
  frmDetail.mnuUpdate:Click()
  equal(stored(), { long })
  equal(store.rows("Recipe")[1].Comment, "seen")
end)

case("blanks before a title make another one, blanks behind it do not", function()
  blank()
  add("Apple Pie")
  add(" Apple Pie")
  equal(boxes(), {})
  add("Apple Pie  ")
  equal(boxes()[1].text, "A recipe with this title already exists.")
  equal(stored(), { "Apple Pie", " Apple Pie" })
end)

case("an update with a blank behind the title stores that title", function()
  blank()
  add("Apple Pie")
  frmDetail.txtTitle:Type("Apple Pie ")
  frmDetail.mnuUpdate:Click()
  equal(boxes(), {})
  equal(stored(), { "Apple Pie " })
  equal(frmBrowse.lstTitles.ListCount, 2)
end)

case("a title of blanks alone is a title", function()
  blank()
  add("   ")
  equal(boxes(), {})
  equal(stored(), { "   " })
  answer("Yes")
  frmDetail.mnuDelete:Click()
  equal(stored(), {})
end)

case("texts with every character stay as they are", function()
  blank()
  local text = "a~b'c\"d\tf\u{E9}\u{1F95A} <b>&amp;</b> %s \\n"
  frmDetail.txtTitle:Type("Apple Pie")
  frmDetail.txtComments:Type(text)
  frmDetail.txtMethod:Type(text .. "\nsecond")
  GLOBAL.gSource = text
  frmDetail.mnuAdd:Click()
  local row = store.rows("Recipe")[1]
  equal(row.Comment, text)
  equal(row.Method, text .. "\r\nsecond")
  equal(row.Source, text)
end)

case("blanks alone are no number", function()
  blank()
  frmDetail.txtTitle:Type("Apple Pie")
  for _, name in ipairs({ "txtServes", "txtPrepareTime", "txtCookTime" }) do
    frmDetail[name]:Type("  ")
    frmDetail.mnuUpdate:Click()
    equal(boxes()[1].text, "Value entered must be numeric.", name)
    equal(focus(), "frmDetail." .. name)
    frmDetail[name]:Type("")
  end
end)

case("texts that only look like numbers are refused", function()
  blank()
  frmDetail.txtTitle:Type("Apple Pie")
  for _, text in ipairs({ "1 1/2", "1/2", "12:30", "5 h", "1e", "--5", ".", "1e999" }) do
    frmDetail.txtCookTime:Type(text)
    frmDetail.mnuAdd:Click()
    equal(boxes()[1].text, "Value entered must be numeric.", text)
  end
  equal(store.rows("Recipe"), {})
end)

case("the largest time that can be typed is stored, shown and stored again", function()
  blank()
  frmDetail.txtCookTime:Type("9e307")
  add("Apple Pie")
  equal(boxes(), {})
  frmDetail:Key(27)
  frmBrowse.lstTitles:DblClick(0)
  equal(#frmDetail.txtCookTime.Text, 308)
  frmDetail.mnuUpdate:Click()
  equal(boxes(), {})
  equal(store.rows("Recipe")[1].CookTime, 9e307)
end)
