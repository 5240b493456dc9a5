-- A mission folder in which nothing can be made, not even by the system's administrator: every writer logs it and the
-- next one runs.
local source = make_folder(work .. "/source")
write_file(source .. "/a.ogg", "a")
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
on.modal.frmnactizvuky = function(form)
  form.Dir1.path = path(source)
  form.File1:select("a.ogg")
  form.cmdadd:click()
  form.cmdopen:click()
end
frmmain.cmdnacistradio:click()
frmmain.seznamakci:select(3)
local boxes = #events
local folder = path("/sys/")
shared.CestaMise = folder
local from = #log()
frmmain.cmdvytvor:click()
in_order(log():sub(from + 1), {
  "Vytváření: " .. folder .. "Briefing.html\r\n",
  "Nastala chyba při ukládání Briefing.html : 70 ,Permission denied\r\n",
  "Vytváření: " .. folder .. "Description.ext\r\n",
  "Nastala chyba při ukládání Description.ext do složky: " .. folder .. "Description.ext, 70, 70\r\n",
  "Vytváření: " .. folder .. "Stringtable.csv\r\n",
  "Nastala chyba při ukládání Stringtable.csv do složky: " .. folder .. "Stringtable.csv, 70, Permission denied\r\n",
  "Nastala chyba při kopírování zvuku do složky: " .. folder .. ", 70, Permission denied\r\n",
  "Nastala chyba při kopírování zvuku do složky: " .. folder .. ", 76, Path not found\r\n",
  "Vytváření: " .. folder .. "Overview.html\r\n",
  "Nastala chyba při ukládání Overview.html do složky: " .. folder .. "Overview.html, 70, Permission denied\r\n",
}, "the log")
equal(#events, boxes, "nothing is shown")
equal(Form1.visible, false, "the progress window is gone")
