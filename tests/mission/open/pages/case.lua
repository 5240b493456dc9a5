-- One page is taken, several are a question, none is none.
local folder = mission("m.Eden")
write_file(folder .. "/Briefing.html", "<HTML></HTML>")
write_file(folder .. "/my BRIEFING.German.HTML", "<HTML></HTML>")
write_file(folder .. "/Overview.html", "<HTML></HTML>")
write_file(folder .. "/Briefing.htm", "no page")
start()
local asked = {}
on.modal.frmloadsite = function(form)
  asked[#asked + 1] = form.caption .. "/" .. form.Label1.caption .. "/" .. rows(form.List1)
  equal(form.cmdstorno.visible, false, "a page is not cancelled")
end
open_mission(folder, true)
equal(asked[1], "T10/T11/Briefing.html|my BRIEFING.German.HTML", "two briefings: the chooser")
equal(#asked, 1, "one overview: no question")
equal(frmmain.StranaBrifing, "", "leaving it without a choice reads none")
lacks(log(), "Nalezen soubor Briefing", "no briefing is read")
equal(frmmain.StranaOverview, "Overview.html", "the one overview")
contains(log(), "Nalezen soubor Overview.htmlv: " .. path(folder) .. "\\\r\n", "is read")

on.box = function() return "yes" end
on.modal.frmloadsite = function(form) form.List1:select(1) form.Command1:click() equal(form.visible, false, "OK hides") end
open_mission(folder, true)
equal(frmmain.StranaBrifing, "my BRIEFING.German.HTML", "a click takes the page")
contains(log(), "Nalezen soubor my BRIEFING.German.HTMLv: " .. path(folder) .. "\\\r\n", "and it is read")

write_file(folder .. "/Overview.Czech.html", "<HTML></HTML>")
on.modal.frmloadsite = function(form) asked[#asked + 1] = form.caption .. "/" .. form.Label1.caption if form.caption == "T12" then form.List1:select(0) end end
open_mission(folder, true)
equal(asked[#asked], "T12/T13", "two overviews: the chooser asks for them")
equal(frmmain.StranaOverview, "Overview.Czech.html", "the first of the list")

local from = #log()
open_mission(folder, false)
lacks(log():sub(from + 1), "Nalezen soubor", "without the check nothing is read")
equal(frmmain.StranaBrifing, "", "and no page is chosen")
