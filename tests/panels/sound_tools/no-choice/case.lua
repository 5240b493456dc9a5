-- OK without a file: a message and nothing else. Storno forgets the choice.
local source = make_folder(work .. "/source")
write_file(source .. "/tone.wav", "tone")
local starts = 0
on.launch = function() starts = starts + 1 return true end
start()
local function last_box()
  for i = #events, 1, -1 do
    if events[i].kind == "box" then return events[i] end
  end
  return {}
end
on.modal.frmopen2 = function(form)
  form.cmdOk:click()
  equal(form.visible, false, "the form hides")
end
for i, menu in ipairs{"mnuwavogg", "mnuwavlip", "mnuwsswav", "mnuwavwss"} do
  frmmain[menu]:click()
  equal(#events, 2 * i, menu .. ": one message")
  local box = last_box()
  equal(box.text, "H1", menu .. ": its text")
  equal(box.icon, "information", menu .. ": its icon")
  equal(box.buttons, "ok", menu .. ": its answer")
end
lacks(log(), "SpustAkci", "nothing is logged")
on.modal.frmopen2 = function(form)
  form.Dir1.path = path(source)
  form.File1:select("tone.wav")
  form.Command1:click()
  equal(form.visible, false, "Storno hides the form")
  equal(form.Soubor .. form.Slozka, "", "and forgets the choice")
end
frmmain.mnuwavogg:click()
proc.SpustAkci("oggenc.exe")
equal(last_box().text, "H1", "there is no choice")
equal(starts, 0, "nothing was started")
equal(listing(home .. "/Bfdata/oggwav"), "", "nothing was copied")
