-- Choosing the pack already in use shows a notice and changes nothing.
start()
frmmain.txtJmenoMise.text = "typed"
on.modal.frmloadsite = function(form)
  equal(form.caption, "T49", "caption")
  equal(form.Command1.caption, "T50", "its button")
  form.List1:select(0)
  form.Command1:click()
  equal(form.visible, false, "the form hides")
end
frmmain.mnusetupLanguage:click()
local box = events[#events]
equal(box.kind, "box", "a notice")
equal(box.text, "H8", "its text")
equal(box.icon, "information", "its icon")
equal(frmmain.txtJmenoMise.text, "typed", "nothing was read anew")
equal(#frmmain.strany3, 4, "no rows were added")
equal(frmloadsite.RezimJazyka, false, "language mode is off again")
