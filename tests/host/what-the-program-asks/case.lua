-- home: fresh
-- on.modal, on.box, on.prompt and the array events; what is answered without a function.
local asked = {}
start()
-- a first start without any function: chooser closed at once, prompts cancelled
equal(#events, 3, "the chooser and two prompts")
equal(events[1].kind, "modal", "first the chooser")
equal(events[1].form == frmloadsite, true, "with its form")
equal(events[2].kind, "prompt", "then a prompt")
equal(events[2].text, "", "its text, empty without a pack")
equal(events[2].title, "", "its title")
equal(events[2].default, "", "its default")
equal(events[2].answer, nil, "cancelled")
equal(shared.Nastaveni.UzivatelJmeno, "", "which is an empty name")

on.modal.FRMLOADSITE = function(form)
  equal(form.visible, true, "the form is shown")
  equal(form.modal, true, "modally")
  form.List1:select(0)
  form.Command1:click()
end
frmmain.mnusetupLanguage:click()
equal(shared.Texty[1], "T1", "the function acted for the user, its name found ignoring case")
equal(frmloadsite.visible, false, "the form is closed when it returns")
equal(frmloadsite.modal, false, "and no longer modal")

on.box = function(text, buttons, icon)
  asked = {text, buttons, icon}
  return "ok"
end
frmmain.mnusetupLanguage:click() -- the same pack once more
equal(asked[1], "H8", "text of the box")
equal(asked[2], "ok", "its buttons")
equal(asked[3], "information", "its icon")
local last = events[#events]
equal(last.kind, "box", "the event")
equal(last.text, "H8", "its text")
equal(last.buttons, "ok", "its buttons")
equal(last.icon, "information", "its icon")
equal(last.answer, "ok", "its answer")
on.box = nil
frmmain.mnusetupLanguage:click()
equal(events[#events].answer, "ok", "without a function: ok")

-- a question: no without a function
local folder = mission("m.Eden")
open_mission(folder)
open_mission(folder)
equal(events[#events].buttons, "yesno", "the same mission again is a question")
equal(events[#events].icon, "question", "with its icon")
equal(events[#events].answer, "no", "without a function: no")
on.box = function() return "yes" end
open_mission(folder)
equal(events[#events].answer, "yes", "answered")

-- an error in a function reaches the script
on.modal.frmopenmission = function() error("from inside") end
fails(function() frmmain.mnufileopen:click() end, "from inside", "an error of a function")
