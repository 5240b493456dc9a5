-- A subtitle for no sound: a new sound is marked, not highlighted, and the command has no protection.
-- exit: 70
-- stderr: run-time error 5: Invalid procedure call or argument
local source = make_folder(work .. "/sounds")
write_file(source .. "/a.ogg", "a")
start()
on.modal.frmnactizvuky = function(form)
  form.Dir1.path = path(source)
  form.File1:select("a.ogg")
  form.cmdadd:click()
  form.cmdopen:click()
end
frmmain.cmdnacistzvuk:click()
equal(frmmain.cmdadd.enabled, true, "the command is on")
equal(frmmain.seznamzvuku.index, -1, "no sound is highlighted")
frmmain.cmdadd:click()
print("FAILED: the program goes on")
