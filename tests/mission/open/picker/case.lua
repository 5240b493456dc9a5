-- The picker: captions and log by its mode, cancelling, the same mission again.
local one = mission("one.Eden", 'briefingName="One";\n')
start()
local function lines_since(from) return log():sub(from + 1) end
-- cancelling with no mission open does nothing at all
local from = #log()
on.modal.frmopenmission = function(form)
  equal(form.caption, "T3", "caption") equal(form.chknacist.visible, true, "companions may be read")
  equal(form.File1.pattern, "*.sqm*", "pattern")
  form.Command2:click()
  equal(form.visible, false, "it hides")
end
frmmain.mnufileopen:click()
equal(lines_since(from), "Načítání mise\r\nZrušení operace načtení mise\r\n", "log of a cancelled opening")
equal(frmmain.cmdvytvor.enabled, false, "nothing is open")

from = #log()
on.modal.frmopenmission = function(form)
  form.Dir1.path = path(one)
  form.File1:select("mission.sqm")
  equal(shared.SouborMise, path(one) .. "\\mission.sqm", "a click names the file")
  if #events == 2 then equal(shared.CestaMise, "", "and opens nothing") end
  form.Command1:click()
  equal(form.visible, false, "OK hides")
end
frmmain.mnufileopen:click()
in_order(lines_since(from), {"Načítání mise\r\n", "Načtení mise z: " .. path(one) .. "\\mission.sqm\r\n"}, "log of an opening")
equal(frmmain.txtBrifingJmeno.text, '"One"', "the mission is read")
equal(frmnactizvuky.Dir1.path, path(one), "the sound intake begins there")

-- the same mission again: a question
frmmain.txtJmenoMise.text = "edited"
frmmain.mnufileopen:click()
equal(events[#events].text, "T4", "the question") equal(events[#events].buttons, "yesno", "with two answers")
equal(frmmain.txtJmenoMise.text, "edited", "no: nothing is touched")
local waited
on.box = function() return "yes" end
on.modal.frmloadsite = nil
frmmain.mnufileopen:click()
equal(frmmain.txtJmenoMise.text, "T53", "yes: it is read anew")
equal(Form3.caption, "T5", "caption of the wait window") equal(Form3.Label1.caption, "T6", "its label")

-- cancelling with a mission open: the mission stays, but its file is forgotten
on.modal.frmopenmission = function(form) form.Command2:click() end
frmmain.txtJmenoMise.text = "edited again"
frmmain.mnufileopen:click()
equal(frmmain.txtJmenoMise.text, "edited again", "nothing is reset")
equal(shared.SouborMise, "", "the file's path is empty") equal(shared.CestaMise, path(one) .. "\\", "the folder stays")
-- closed by its window button: as if nothing had been chosen this time
on.modal.frmopenmission = nil
frmmain.mnufileopen:click()
equal(frmmain.txtJmenoMise.text, "edited again", "nothing happens")
