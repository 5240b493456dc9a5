-- A page of several sides in a language of its own: the language is not kept, numbers close up.
start()
open_mission(mission_folder, true)
equal(shared.JazykBrifing, "", "no language is chosen by the page's name")
equal(frmmain.chkvicestran.value, 1, "several sides")
frmmain.seznamakci:select(0)
frmmain.cmdvytvor:click()
