-- Start, end and error of a run, the screen and the clock.

local function begin(options)
  store.create(options)
  store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
  start()
end

case("a run begins with start and ends with stop", function()
  check(not running())
  begin()
  check(running())
  stop()
  check(not running())
  stop()
  check(not running())
end)

case("start may come again over the same folder", function()
  begin()
  GLOBAL.gSelectedTitle = "Beef Stew"
  frmBrowse.lstTitles:Pick(0)
  stop()
  start()
  equal(GLOBAL.gSelectedTitle, "")
  equal(frmBrowse.lstTitles.ListIndex, -1)
  equal(frmBrowse.lstTitles.ListCount, 1)
end)

case("a second run beside the first can't be started", function()
  begin()
  local started, message = pcall(start)
  check(not started)
  contains(message, "the program runs already")
  check(running())
end)

case("without a run forms and shared state can't be used, and what is left of it can", function()
  begin()
  local box = frmBrowse.txtTitle
  frmBrowse:Key(27)
  check(not running())
  for _, use in ipairs({
    function() return box.Text end, function() box.Text = "x" end, function() return frmBrowse.Caption end,
    function() return frmBrowse.txtTitle end, function() box:Type("x") end, function() frmBrowse:Key(27) end,
    function() return GLOBAL.gScale end, function() GLOBAL.gSelectedTitle = "x" end, function() return GLOBAL.rows() end,
    function() return GLOBAL.funPartFraction(1) end, focus,
  }) do
    local done, message = pcall(use)
    check(not done)
    contains(message, "the program doesn't run")
  end
  equal(store.rows("Recipe")[1].Title, "Apple Pie")
  equal(file.list(), { "PANTRIGO.MDB" })
  equal(printer.lines(), {})
  equal(boxes(), {})
end)

case("Loaded and Visible of a form can be read at all times", function()
  equal(frmBrowse.Visible, false)
  equal(frmBrowse.Loaded, false)
  begin()
  equal(frmBrowse.Visible, true)
  equal(frmAbout.Loaded, false)
  equal(frmDetail.Loaded, true)
  equal(frmDetail.Visible, false)
  stop()
  equal(frmDetail.Loaded, false)
end)

case("a name stands for the control of whatever run goes on", function()
  begin()
  local box = frmBrowse.txtTitle
  box:Type("pie")
  stop()
  start()
  equal(box.Text, "")
  box:Type("tart")
  equal(frmBrowse.txtTitle.Text, "tart")
end)

case("fails gives the error that ended the program", function()
  local failure = fails(start)
  equal(failure.number, 3024)
  check(#failure.text > 0)
  check(not running())
  local shown = boxes()
  equal(#shown, 1)
  equal(shown[1].style, 16)
  equal(shown[1].caption, "Pantrigo")
  equal(shown[1].text, "Run-time error '3024':\r\n\r\n" .. failure.text)
end)

case("fails leaves its function at the error", function()
  local reached = false
  fails(function()
    start()
    reached = true
  end)
  check(not reached)
end)

case("fails gives nil without an error", function()
  store.create()
  equal(fails(start), nil)
  equal(fails(function() frmBrowse.mnuExit:Click() end), nil)
  check(not running())
end)

case("an error of a shared routine ends the program as well", function()
  begin()
  equal(fails(function() GLOBAL.subConvertToBase("g", "some", 250, 4, "m", "s") end).number, 13)
  check(not running())
end)

case("an error in a nested action goes to fails, and the functions above are left", function()
  begin()
  local reached = false
  modal("frmAbout", function()
    GLOBAL.subConvertToBase("g", "some", 250, 4, "m", "s")
    reached = true
  end)
  local failure = fails(function()
    frmBrowse.mnuAbout:Click()
    reached = true
  end)
  equal(failure.number, 13)
  check(not reached)
  check(not running())
  check(file.exists("PANTRIGO.MDB"))
  equal(file.list(), { "PANTRIGO.MDB" })
end)

case("fails within a modal function has the error too", function()
  begin()
  local number
  modal("frmAbout", function()
    number = fails(function() GLOBAL.subConvertToBase("g", "some", 250, 4, "m", "s") end).number
    check(not running())
  end)
  frmBrowse.mnuAbout:Click()
  equal(number, 13)
  check(not running())
end)

case("a quiet end in a nested action leaves the functions above and returns from the outermost call", function()
  begin()
  local reached, returned = false, false
  modal("frmAbout", function()
    pcall(function()
      stop()
      reached = true
    end)
    reached = true
  end)
  frmBrowse.mnuAbout:Click()
  returned = true
  check(not reached)
  check(returned)
  check(not running())
  equal(file.list(), { "PANTRIGO.MDB" })
end)

case("the screen counts from the next start on, as it is given", function()
  begin()
  equal(GLOBAL.gScale, 1)
  screen(1280, 720)
  equal(GLOBAL.gScale, 1)
  stop()
  start()
  equal(GLOBAL.gScale, 2)
end)

case("each case begins with the plain screen", function()
  begin()
  equal(GLOBAL.gScale, 1)
end)

case("the clock can be set before and during a run", function()
  clock(1999, 12, 31, 23, 59)
  begin()
  clock(2001, 3, 5, 15, 7)
  check(running())
end)

case("a new run begins with the plain pointer", function()
  fails(start)
  equal(pointer(), 11)
  begin()
  equal(pointer(), 0)
end)
