-- The window that shows the log of the last import, or previews a file that may be imported.

local function withLog(bytes)
  store.create()
  start()
  if bytes then file.write("import.log", bytes) end
end

local function openLog(act)
  modal("frmView", act)
  frmBrowse.mnuViewImportLog:Click()
end

local function rows()
  local list = {}
  for i = 0, frmView.lstView.ListCount - 1 do list[#list + 1] = frmView.lstView:List(i) end
  return list
end

local nothingFound = { { text = "No errors or warnings found for last import.", caption = "Information", style = 64, answer = "OK" } }

case("the log is shown line by line, without its empty lines", function()
  withLog("Apple Pie - not added, already exists\r\n\r\nBeef Stew - Title too long\r\n")
  openLog(function()
    equal(frmView.Caption, "View / Print Import Log")
    equal(frmView.fmeView.Caption, " 2 error(s) / warning(s) displayed")
    equal(rows(), { "Apple Pie - not added, already exists", "Beef Stew - Title too long" })
    check(frmView.cmdPrint.Enabled)
    equal(frmView.cmdPrint.Caption, "&Print")
    equal(frmView.cmdHelp.Caption, "&Help")
    equal(focus(), "frmView.lstView")
    frmView.cmdCancel:Click()
    check(not frmView.Loaded)
  end)
  equal(boxes(), {})
  equal(focus(), "frmBrowse.txtTitle")
end)

case("showing the log leaves no import file", function()
  withLog("Blank title, rest of recipe ignored\r\n")
  GLOBAL.gImportFile = "old.txt"
  openLog(function() equal(frmView.lstView.ListCount, 1) end)
  equal(GLOBAL.gImportFile, "")
  check(not frmView.Loaded)
end)

case("a log that is missing is a clean import", function()
  withLog()
  GLOBAL.gImportFile = "old.txt"
  frmBrowse.mnuViewImportLog:Click()
  equal(boxes(), nothingFound)
  equal(GLOBAL.gImportFile, "old.txt")
end)

case("an empty log is a clean import", function()
  withLog("")
  frmBrowse.mnuViewImportLog:Click()
  equal(boxes(), nothingFound)
end)

case("a log that can't be opened counts as a clean import", function()
  withLog()
  file.mkdir("import.log")
  frmBrowse.mnuViewImportLog:Click()
  equal(boxes(), nothingFound)
end)

case("a log of empty lines shows none, and a line of blanks is no empty line", function()
  withLog("\r\n\r\n")
  openLog(function()
    equal(frmView.fmeView.Caption, " 0 error(s) / warning(s) displayed")
    equal(rows(), {})
  end)
  file.write("import.log", "\r\n  \r\n")
  openLog(function()
    equal(frmView.fmeView.Caption, " 1 error(s) / warning(s) displayed")
    equal(rows(), { "  " })
  end)
  equal(boxes(), {})
end)

case("a log without any CR is read by its line feeds, and one of another encoding too", function()
  withLog("One\nTwo\n")
  openLog(function() equal(rows(), { "One", "Two" }) end)
  file.write("import.log", "Cr\xe8me br\xfbl\xe9e - Title too long\r\n")
  openLog(function() equal(rows(), { "Crème brûlée - Title too long" }) end)
end)

case("the log is read in full, also beyond the size of a preview", function()
  withLog(string.rep("A line\r\n", 2500))
  openLog(function()
    equal(frmView.lstView.ListCount, 2500)
    equal(frmView.fmeView.Caption, " 2500 error(s) / warning(s) displayed")
  end)
end)

case("the chosen row is white on blue", function()
  withLog("One\r\nTwo\r\n")
  openLog(function()
    equal(frmView.lstView.ListIndex, -1)
    frmView.lstView:Pick(1)
    equal(frmView.lstView.ListIndex, 1)
    equal(frmView.lstView:Colours(1), { ForeColor = 1, SelForeColor = 15, SelBackColor = 1 })
  end)
end)

case("the window stands in the middle of the screen both ways", function()
  screen(800, 600)
  withLog("One\r\n")
  openLog(function()
    equal(frmView.Left, (12000 - frmView.Width) / 2)
    equal(frmView.Top, (9000 - frmView.Height) / 2)
  end)
end)

case("Esc and the close mark close the window", function()
  withLog("One\r\n")
  openLog(function()
    frmView:Key(27)
    check(not frmView.Loaded)
  end)
  openLog(function()
    frmView:Close()
    check(not frmView.Loaded)
  end)
  check(running())
end)

case("help shows the window's page", function()
  withLog("One\r\n")
  openLog(function() frmView.cmdHelp:Click() end)
  equal(helps(), { 375 })
end)

case("print puts the log on paper with its heading and its count", function()
  clock(2001, 3, 5, 15, 7)
  withLog("Apple Pie - not added, already exists\r\n\r\nBeef Stew - Title too long\r\n")
  openLog(function() frmView.cmdPrint:Click() end)
  local blanks = string.rep(" ", 14)
  equal(printer.lines(), {
    { text = " ", bold = true, size = 12, page = 1, job = 1 },
    { text = blanks .. "Import Log - printed: 5-Mar-2001 at 3:07 PM", bold = true, size = 12, page = 1, job = 1 },
    { text = "", bold = false, size = 12, page = 1, job = 1 },
    { text = blanks .. "  Apple Pie - not added, already exists", bold = false, size = 10, page = 1, job = 1 },
    { text = blanks .. "  Beef Stew - Title too long", bold = false, size = 10, page = 1, job = 1 },
    { text = "", bold = false, size = 10, page = 1, job = 1 },
    { text = blanks .. " 2 error(s) / warning(s) printed.", bold = false, size = 10, page = 1, job = 1 },
  })
  equal(printer.jobs(), 1)
  check(not printer.open())
end)

case("a log of empty lines is printed with the count of none", function()
  clock(2001, 12, 25, 0, 30)
  withLog("\r\n\r\n")
  openLog(function() frmView.cmdPrint:Click() end)
  local texts = {}
  for _, line in ipairs(printer.lines()) do texts[#texts + 1] = line.text end
  local blanks = string.rep(" ", 14)
  equal(texts, { " ", blanks .. "Import Log - printed: 25-Dec-2001 at 12:30 AM", "", "", blanks .. " 0 error(s) / warning(s) printed." })
  equal(printer.jobs(), 1)
end)

case("the log that is printed is the one on the disk", function()
  withLog("One\r\nTwo\r\n")
  openLog(function()
    file.write("import.log", "Three\r\n")
    frmView.cmdPrint:Click()
    equal(rows(), { "One", "Two" })
  end)
  local printed = printer.lines()
  contains(printed[4].text, "Three")
  contains(printed[#printed].text, " 1 error(s) / warning(s) printed.")
end)

case("a log may be printed more than once", function()
  withLog("One\r\n")
  openLog(function()
    frmView.cmdPrint:Click()
    frmView.cmdPrint:Click()
  end)
  equal(printer.jobs(), 2)
end)

case("printing a log that has gone meanwhile ends the program", function()
  withLog("One\r\n")
  local err = fails(function()
    openLog(function()
      file.remove("import.log")
      frmView.cmdPrint:Click()
    end)
  end)
  equal(err.number, 53)
  check(not running())
end)

case("a preview shows the file under another caption and can't be printed", function()
  withLog()
  file.write("Sunday.txt", "Title: One\r\n\r\n 1 cup flour\r\n")
  GLOBAL.gImportFile = "Sunday.txt"
  frmView.Visible = true
  equal(frmView.Caption, "Preview Import File")
  equal(frmView.fmeView.Caption, "")
  equal(rows(), { "Title: One", " 1 cup flour" })
  check(not frmView.cmdPrint.Enabled)
  frmView.cmdCancel:Click()
  check(not frmView.Loaded)
end)

case("a preview of 3000 lines shows 2001 of them", function()
  withLog()
  local lines = {}
  for i = 1, 3000 do lines[i] = "Line " .. i .. "\r\n" end
  file.write("long.txt", table.concat(lines, "\r\n"))
  GLOBAL.gImportFile = "long.txt"
  frmView.Visible = true
  equal(frmView.lstView.ListCount, 2001)
  equal(frmView.lstView:List(2000), "Line 2001")
  check(not frmView.cmdPrint.Enabled)
end)

case("a preview of exactly 2001 lines shows them all, one of an empty file none", function()
  withLog()
  file.write("long.txt", string.rep("A line\r\n", 2001))
  GLOBAL.gImportFile = "long.txt"
  frmView.Visible = true
  equal(frmView.lstView.ListCount, 2001)
  frmView.cmdCancel:Click()
  file.write("empty.txt", "")
  GLOBAL.gImportFile = "empty.txt"
  frmView.Visible = true
  equal(frmView.lstView.ListCount, 0)
end)

case("a preview of a file that is not there ends the program", function()
  withLog()
  GLOBAL.gImportFile = "nowhere.txt"
  local err = fails(function() frmView.Visible = true end)
  equal(err.number, 53)
end)

case("a log shown after a preview can be printed again", function()
  withLog("One\r\n")
  file.write("Sunday.txt", "Title: One\r\n")
  GLOBAL.gImportFile = "Sunday.txt"
  frmView.Visible = true
  frmView.cmdCancel:Click()
  openLog(function()
    check(frmView.cmdPrint.Enabled)
    equal(rows(), { "One" })
  end)
end)
