-- Cases that must fail, each in its own way; what the runner says of them is compared with failing_cases.txt.

case("equal tells what was expected and what came", function()
  equal(1 + 1, 3)
end)

case("a note stands behind it", function()
  equal("a\r\n\"b\"", "c", "the second line")
end)

case("tables are shown", function()
  equal({ 1, 2, { Title = "Pie", Meal = true } }, { 1, 2 })
end)

case("a missing entry is a difference", function()
  equal({ "a" }, { "a", "b" })
end)

case("numbers must be within one part in a million", function()
  equal(1.000002, 1)
end)

case("a text is no number", function()
  equal("1", 1)
end)

case("check wants a true condition", function()
  check(false, "the door")
end)

case("contains takes the piece as it stands", function()
  contains("a.c", "a+c")
end)

case("contains wants a text", function()
  contains(nil, "a")
end)

case("differ wants another value", function()
  differ({ 1 }, { 1 })
end)

case("a failed check ends its case, also within pcall", function()
  pcall(function() check(false) end)
  equal("never", "reached")
end)

case("no check at all", function()
end)

case("an error of the script", function()
  check(true)
  local nothing
  nothing.field = 1
end)

case("an error that is no text", function()
  check(true)
  error({ code = 7 })
end)

case("a call that can't be made", function()
  check(true)
  frmBrowse.txtTitle:Type("pie")
end)

case("a control that isn't there", function()
  check(true)
  store.create()
  start()
  frmBrowse.txtNothing:Type("pie")
end)

case("a control that can't be reached", function()
  check(true)
  store.create()
  start()
  frmBrowse.txtSource:Type("pie")
end)

case("an error that nothing awaits", function()
  check(true)
  start()
end)

case("an error that nothing awaits, past pcall", function()
  check(true)
  pcall(start)
  check(true)
end)

case("a question without an answer", function()
  check(true)
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  start()
  frmBrowse.lstTitles:Pick(0)
  frmBrowse.mnuDelete:Click()
end)

case("an answer that the question doesn't offer", function()
  check(true)
  store.create()
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  start()
  frmBrowse.lstTitles:Pick(0)
  answer("OK")
  frmBrowse.mnuDelete:Click()
end)

case("an answer left over", function()
  check(true)
  answer("Yes", "No")
end)

case("a modal form that nothing waits for", function()
  check(true)
  store.create()
  start()
  frmBrowse.mnuAbout:Click()
end)

case("a modal form that never came", function()
  check(true)
  modal("frmAbout", function() end)
end)

case("a check that fails in a modal form", function()
  store.create()
  start()
  modal("frmAbout", function()
    equal(frmAbout.Caption, "Out")
  end)
  frmBrowse.mnuAbout:Click()
  equal("never", "reached")
end)

case("an error of the script in a modal form", function()
  check(true)
  store.create()
  start()
  modal("frmAbout", function()
    frmBrowse.mnuExit:Click()
  end)
  frmBrowse.mnuAbout:Click()
end)

case("a case within a case", function()
  check(true)
  case("inner", function() check(true) end)
end)

case("and one that passes", function()
  check(true)
end)
