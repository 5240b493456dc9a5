-- One side, nothing typed: both sections with empty lines, no objective, no end.
start("MISSION=" .. mission_folder .. "/mission.sqm")
frmmain.txtBriefink.text = ""
frmmain.txtPoznamky.text = ""
frmmain.seznamakci:select(0)
frmmain.cmdvytvor:click()
