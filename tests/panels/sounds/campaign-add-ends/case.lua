-- A subtitle for no sound of the campaign.
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
frmcamp5.cmdnacistzvuk:click()
frmcamp5.cmdadd:click()
print("FAILED: the program goes on")
