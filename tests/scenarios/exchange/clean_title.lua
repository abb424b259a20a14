-- Cleaning of titles and category words.

case("words get capitals and small letters, whatever the file said", function()
  equal((GLOBAL.subCleanTitle("CHICKEN soup")), "Chicken Soup")
  equal((GLOBAL.subCleanTitle("ANN'S PIE")), "Ann's Pie")
  equal((GLOBAL.subCleanTitle("fish-and-chips (best) \"ever\" a/b")), "Fish-And-Chips (Best) \"Ever\" A/B")
end)

case("a Roman two keeps its second capital, longer ones do not", function()
  equal((GLOBAL.subCleanTitle("PART II")), "Part II")
  equal((GLOBAL.subCleanTitle("HENRY VIII")), "Henry ViII")
end)

case("marks are dropped, and what stands before a word still counts", function()
  equal((GLOBAL.subCleanTitle("what? *now*!")), "What Now")
  equal((GLOBAL.subCleanTitle("!apple")), "apple")
  equal((GLOBAL.subCleanTitle("?apple")), "Apple")
  equal((GLOBAL.subCleanTitle("???")), "")
  equal((GLOBAL.subCleanTitle("")), "")
end)

case("the plain result keeps the letters and doubles apostrophes", function()
  local _, plain = GLOBAL.subCleanTitle("ANN'S pie?")
  equal(plain, "ANN''S pie")
end)

case("letters beyond the plain ones change one to one", function()
  equal((GLOBAL.subCleanTitle("CRÈME BRÛLÉE")), "Crème Brûlée")
  equal((GLOBAL.subCleanTitle("éclair straße")), "Éclair Straße")
end)
