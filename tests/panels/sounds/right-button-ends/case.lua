-- The right button with no sound highlighted has no protection.
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
frmmain.seznamzvuku:press("left")
equal(#events, 1, "the left button does nothing")
frmmain.seznamzvuku:press("right")
print("FAILED: the program goes on")
