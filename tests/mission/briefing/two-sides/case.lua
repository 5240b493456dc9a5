-- A page for several sides: each side's own notes, plan and objectives, numbers without gaps.
start("MISSION=" .. mission_folder .. "/mission.sqm")
equal(frmmain.cmdvytvor.enabled, true, "the mission is open")
