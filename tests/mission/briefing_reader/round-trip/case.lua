-- A page written by hand, read and written again: the tags and line ends of its texts are gone, the rest is there.
start()
open_mission(mission_folder, true)
contains(log(), "Nalezen soubor Briefing.htmlv: " .. path(mission_folder .. "/") .. "\r\n", "the page is found")
equal(frmmain.txtPoznamky.text, 'Dobré ráno,vojáci; "pozor" na značku!', "notes")
frmmain.seznamakci:select(0)
frmmain.cmdvytvor:click()
