-- Where the groups of the detail window stand, on a larger screen and as pictures come and go.

local function near(actual, expected, note)
  check(math.abs(actual - expected) < 0.5, note .. ": expected " .. expected .. ", got " .. actual)
end

local function box(control, left, top, width, height, scale, note)
  near(control.Left, left * scale, note .. " left")
  near(control.Top, top * scale, note .. " top")
  near(control.Width, width * scale, note .. " width")
  near(control.Height, height * scale, note .. " height")
end

local inner = {
  { "lblTime", 1280, 1465, 105, 790, 790, 225 }, { "lblServes", 80, 265, 285, 675, 675, 225 },
  { "lblPrepare", 1035, 1210, 285, 720, 720, 225 }, { "lblCook", 1800, 1980, 285, 510, 510, 225 },
  { "txtServes", 80, 265, 495, 390, 390, 285 }, { "lblSettings", 500, 685, 540, 480, 480, 225 },
  { "txtPrepareTime", 1010, 1195, 495, 620, 620, 285 }, { "txtCookTime", 1730, 1915, 495, 620, 620, 285 },
  { "txtComments", 90, 90, 225, 4125, 9390, 540 }, { "lblPicture", 135, 135, 335, 2490, 2490, 1005 },
}

local function arranged(withPicture, scale, gained)
  if withPicture then
    box(frmDetail.fmePicture, 6750, 1200 - gained, 2805, 3270, scale, "fmePicture")
    box(frmDetail.fmeGeneral, 0, 3630 - gained, 2400, 840, scale, "fmeGeneral")
    box(frmDetail.fmeComments, 2430, 3630 - gained, 4305, 840, scale, "fmeComments")
  else
    box(frmDetail.fmePicture, 6750, 2030 - gained, 2805, 1600, scale, "fmePicture")
    box(frmDetail.fmeGeneral, 6750, 1190 - gained, 2805, 840, scale, "fmeGeneral")
    box(frmDetail.fmeComments, 0, 3630 - gained, 9555, 840, scale, "fmeComments")
  end
  for _, row in ipairs(inner) do
    box(frmDetail[row[1]], withPicture and row[2] or row[3], row[4], withPicture and row[5] or row[6], row[7], scale, row[1])
  end
  near(frmDetail.fmeTitle.Top, (640 - gained) * scale, "fmeTitle")
  near(frmDetail.fmeCategories.Top, (1200 - gained) * scale, "fmeCategories")
  for _, name in ipairs({ "fmeIngredients", "fmeMethod" }) do
    near(frmDetail[name].Top, (4485 - gained) * scale, name .. " top")
    near(frmDetail[name].Height, (2130 + gained) * scale, name .. " height")
  end
  near(frmDetail.lstIngredient.Height, (1785 + gained) * scale, "lstIngredient")
  near(frmDetail.txtMethod.Height, (1785 + (gained > 0 and 600 or 0)) * scale, "txtMethod")
end

for _, run in ipairs({ { 640, 480, 1 }, { 800, 600, 1.25 }, { 1280, 960, 2 } }) do
  for _, bar in ipairs({ true, false }) do
    case("both arrangements at " .. run[1] .. " pixels, tool bar " .. tostring(bar), function()
      screen(run[1], run[2])
      store.create({ ShowToolBars = bar })
      store.add("Recipe", { RecipeId = 1, Title = "Apple Pie" })
      store.add("Recipe", { RecipeId = 2, Title = "Beef Stew" })
      file.bmp("2.bmp", 4, 3, 200, 100, 0)
      start()
      frmBrowse.lstTitles:DblClick(0)
      near(GLOBAL.gScale, run[3], "gScale")
      arranged(false, run[3], bar and 0 or 640)
      frmDetail.mnuNext:Click()
      arranged(true, run[3], bar and 0 or 640)
      frmDetail.mnuPrevious:Click()
      arranged(false, run[3], bar and 0 or 640)
      check(frmDetail.fmeGeneral.Visible)
      check(frmDetail.txtCookTime.Visible)
    end)
  end
end

case("the window stands in the middle, a third of the free height from above", function()
  screen(1600, 1200)
  store.create()
  start()
  near(frmDetail.Left, (1600 * 15 - frmDetail.Width) / 2, "left")
  near(frmDetail.Top, (1200 * 15 - frmDetail.Height) / 3, "top")
end)

case("what is no part of the moved groups grows with the screen once", function()
  local names = { "fmeTitle", "txtTitle", "fmeCategories", "lblCourse", "cmbCourse", "lstHealth", "lstOther", "fmePicture", "imgPhoto",
    "fmeIngredients", "lblMeasurement", "lstIngredient", "fmeMethod", "txtMethod" }
  store.create()
  start()
  local design = {}
  for _, name in ipairs(names) do
    local control = frmDetail[name]
    design[name] = { control.Left, control.Top, control.Width, control.Height }
  end
  stop()
  screen(800, 600)
  start()
  for _, name in ipairs(names) do box(frmDetail[name], design[name][1], design[name][2], design[name][3], design[name][4], 1.25, name) end
end)
