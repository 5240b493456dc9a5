-- A program that is not there: no icon, and a click on its place does nothing; the others are as they were.
start()
on.launch = nil -- the system's own start
local f = frmsettings
for i, program in ipairs {path(work) .. "\\gone.exe", path(work), "", "no-such-program-anywhere"} do
  f.cmdadd:click()
  f.seznamprogramu:select(i - 1)
  f.txtnazev.text = "p" .. i
  f.txtcesta.text = program
  f.txtparams.text = "<T103>"
end
frmload.log.text = ""
f.cmdsave:click()
local _, count = log():gsub("Chyba v LoadAndSaveIcons: ", "")
equal(count, 4, "each is logged")
contains(log(), "Chyba v LoadAndSaveIcons: 53, File not found\r\n", "as not found")
frmload.log.text = ""
for i = 1, 4 do
  equal(frmmain.Image1[i].path, "", "no icon of " .. i)
  frmmain.Image1[i]:click()
end
equal(log(), "", "nothing is logged")
local tried = 0
for _, event in ipairs(events) do
  check(event.kind ~= "box", "no box")
  if event.kind == "launch" then
    tried = tried + 1
    equal(event.answer, false, "not started: " .. event.program)
  end
end
equal(tried, 4, "each was tried")

-- the record of an icon may be gone before the list is saved
f.seznamprogramu:select(3)
f.cmddel:click()
frmmain.Image1[4]:click()
equal(frmmain.Picture1.visible, true, "the bar stays as it was saved")
for i = 2, 0, -1 do
  f.seznamprogramu:select(i)
  f.cmddel:click()
end
equal(frmmain.Picture1.visible or frmmain.Picture2.visible, false, "it hides when the last program goes")
