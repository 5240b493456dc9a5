-- Members of checks, options, lists and combos.
start()
local check1, frame = frmmain.respawn, frmmain.Frame6
equal(check1.kind, "check", "kind of a check")
equal(check1.value, 0, "value")
check1.value = 1
equal(frame.visible, true, "writing another value is the user's click")
check1:click()
equal(check1.value, 0, "a click toggles")
equal(frame.visible, false, "and runs the handler")

equal(frmmain.Bird.kind, "option", "kind of an option")
frmmain.Bird.value = true
equal(frmmain.Bird.value, true, "selected")
frmmain.Base.value = true
equal(frmmain.Base.value, true, "another one of the group")
equal(frmmain.Bird.value, false, "the first is off")
fails(function() frmmain.Base.value = false end, "can only be selected", "an option is never taken off by itself")

local combo = frmmain.jazykbrif
equal(combo.kind, "combo", "kind of a combo")
equal(#combo, 8, "rows")
equal(combo[0].text, "T25", "text of a row, counted from 0")
equal(combo[0].tag, 1, "tag of a row")
equal(combo[0].marked, false, "mark of a row")
equal(combo[4 / 2].text, "T27", "a row whose number was computed")
fails(function() return combo[0.5] end, "whole number expected", "half a row")
equal(combo[8], nil, "behind the last row")
equal(combo[-1], nil, "before the first")
equal(rows(combo), "T25|T26|T27|T28|T29|T30|T31|T32", "texts()")
equal(combo.index, 0, "index")
equal(combo.newest, 7, "newest")
equal(combo.text, "T25", "text of the chosen row")
combo:select(2)
equal(combo.index, 2, "the user chooses a row")
equal(combo.text, "T27", "its text")
fails(function() combo:select(8) end, "frmmain.jazykbrif has no row 8", "a row that is not there")
fails(function() combo:select(-1) end, "has no row -1", "no row")
fails(function() combo.text = "x" end, "cannot be written", "a fixed combo takes no text")

local list = frmloadsite.List1
equal(list.kind, "list", "kind of a list")
equal(list.index, -1, "nothing is highlighted")
equal(#list, 0, "no rows")
on.modal.frmloadsite = function(form)
  equal(#form.List1, 1, "the packs of the folder")
  form.List1:select(0)
  equal(form.List1.index, 0, ":select highlights")
  equal(form.Vysledek, "Test.lng", "and runs the click handler")
  form.List1:mark(0, true)
  equal(form.List1[0].marked, true, ":mark marks the row")
  form.List1:mark(0, false)
  equal(form.List1[0].marked, false, "and takes the mark off")
  form.List1:press("right")
  equal(form.List1.index, 0, "a press leaves the highlight")
  fails(function() form.List1:press("fourth") end, "no mouse button fourth", "a button that no mouse has")
end
frmmain.mnusetupLanguage:click()
