-- A mission folder from a Windows disk: names are found whatever their case.
local folder = make_folder(work .. "/Mise Žluť.EDEN")
write_file(folder .. "/MISSION.SQM", 'briefingName="X";\r\n')
start("MISSION=" .. work .. "/mise žluť.eden/mission.sqm")
equal(shared.BrifingJmeno, '"X"', "the file is found")
equal(shared.CestaMise, path(work) .. "\\mise žluť.eden\\", "the folder is called as it was named")
