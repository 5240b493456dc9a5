-- A page without a picture: from the heading straight to the text. Texts go to it as they were typed.
start("MISSION=" .. mission_folder .. "/mission.sqm")
frmmain.txtJmenoMise.text = 'Žlutý "kůň"; & <I>klisna</I>'
frmmain.txtOverview.text = "První řádek\r\nDruhý <BR> & \"třetí\"; \t konec "
frmmain.seznamakci:select(1)
local from = #log()
frmmain.cmdvytvor:click()
equal(log():sub(from + 1), "Vytváření: " .. path(mission_folder) .. "\\Overview.html\r\n", "one line in the log")
equal(tmpfrm.tmptxt1.text:sub(-7), "</HTML>", "the page was built in the scratch field")
equal(tmpfrm.tmptxt.text, "", "which is not the briefing's")
