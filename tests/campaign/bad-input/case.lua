-- What an author can get wrong: folders that cannot be written or are gone, names of all kinds, lives that are none.
-- Nothing ends the wizard: each failure is a line in the log and costs its own file.
dofile(arg[1] .. "/campaign.lua")
local a, gone = mission("Útok na most.Eden"), mission("Pryč.Abel")
write_file(a .. "/readme.txt", "nový")
begin_campaign()
chapter("A")
add_mission("PART1", gone)
add_mission("PART1", a)

local from = 0
local function generate(folder, name)
  name_campaign(folder, name)
  from = #log()
  frmcamp6.cmdnext:click()
  equal(frmcopy.visible, false, name .. ": the progress window is gone")
  equal(frmcamp7.visible, true, name .. ": the last window comes")
end
local function logged(text, what) contains(log():sub(from + 1), text, what) end
local copying = "Nastala chyba při kopírování souborů kampaně do složky: "

-- a mission that vanished after it was chosen leaves an empty folder; the next one is copied
os.execute("rm -r '" .. gone .. "'")
local folder = make_folder(work .. "/kampaně a mise")
generate(folder, "Červená řeka")
local made = folder .. "/Červená řeka.Eden"
equal(everything(made), "Description.ext DtaExt/ Missions/ Missions/Pryč.Abel/ Missions/Útok na most.Eden/ " ..
  "Missions/Útok na most.Eden/mission.sqm Missions/Útok na most.Eden/readme.txt Overview.html Stringtable.csv mission.sqm",
  "all but the vanished mission's files")
logged("Nastala chyba při kopírování souboru: " .. path(gone) .. " do: " .. path(made) .. "\\Missions\\Pryč.Abel , 76, Path not found\r\n",
  "the vanished mission")
contains(read_file(made .. "/Description.ext"), "        firstMission = Pry\xe8;\r\n", "which stays in the description")

-- the folder exists: what is protected in it stays, the rest is written over
os.execute("chmod a-w '" .. made .. "/Stringtable.csv' '" .. made .. "/Missions/Útok na most.Eden/mission.sqm'")
write_file(a .. "/mission.sqm", "version=12;\r\n")
write_file(a .. "/readme.txt", "novější")
write_file(made .. "/Overview.html", "old")
write_file(made .. "/navíc.txt", "of the author")
generate(folder, "Červená řeka")
equal(read_file(made .. "/Missions/Útok na most.Eden/mission.sqm"), "version=11;\r\nclass Mission\r\n{\r\n};\r\n", "a protected file stays")
equal(read_file(made .. "/Missions/Útok na most.Eden/readme.txt"), "novější", "its neighbour is written over")
equal(read_file(made .. "/navíc.txt"), "of the author", "what else lies there stays")
contains(read_file(made .. "/Overview.html"), "<A name=\"Main\">\xc8erven\xe1 \xf8eka</A>", "the overview is written over")
logged(copying .. path(folder) .. "Soubor: , 75, ", "folders that exist")
logged("Nastala chyba při ukládání Stringtable.csv do složky: " .. path(made) .. "\\Stringtable.csv, 70, Permission denied\r\n", "the protected table")
logged("Nastala chyba při kopírování souboru: " .. path(a) .. " do: " .. path(made) .. "\\Missions\\Útok na most.Eden , 70, Permission denied\r\n", "the protected mission")

-- a place where nobody may write, and a file where the folder should be
generate("/sys", "Nikam")
equal(exists("/sys/Nikam.Eden"), false, "nothing is made there")
logged(copying .. "\\sysSoubor: , 70, Permission denied\r\n", "the folder")
for _, line in ipairs{"Nastala chyba při vytváření Description.ext pro kampaň do složky: \\sys\\Nikam.Eden\\Description.ext, 76, ",
  "Nastala chyba při ukládání Stringtable.csv do složky: \\sys\\Nikam.Eden\\Stringtable.csv, 76, ",
  "Nastala chyba při vytváření overview pro kampaň do: \\sys\\Nikam.Eden\\Overview.html, 76, ",
  "Nastala chyba při ukládání mission.sqm do složky: \\sys\\Nikam.Eden\\mission.sqm, 76, "} do
  logged(line, "each writer")
end
write_file(work .. "/soubor", "x")
generate(work .. "/soubor", "V souboru")
equal(read_file(work .. "/soubor"), "x", "a file is no folder, and stays")
logged(copying .. path(work) .. "\\souborSoubor: , ", "the file in the way")

-- a name of 200 characters: letters of one byte fit the system's names, the others may not
local long = ("x"):rep(200)
generate(folder, long)
equal(exists(folder .. "/" .. long .. ".Eden/Missions/Útok na most.Eden/readme.txt"), true, "200 letters")
contains(read_file(folder .. "/" .. long .. ".Eden/Description.ext"), "    name = \"" .. long .. "\";\r\n", "in the description")
long = ("ř"):rep(200)
generate(folder, long)
equal(exists(folder .. "/" .. long .. ".Eden"), false, "too long a name for the system")
logged(copying .. path(folder) .. "Soubor: , 52, Bad file name or number\r\n", "it is logged")

-- a name that is none for a folder
generate(folder, "a\\b")
equal(exists(folder .. "/a"), false, "a backslash makes no folder above")
logged(copying .. path(folder) .. "Soubor: , 76, Path not found\r\n", "it is logged too")

-- lives that are no number
for _, lives in ipairs({{"x", "0"}, {"", "0"}, {"3 a půl", "3"}, {"-2", "-2"}, {"99999", "-2"}}) do
  frmcamp1.txtzivoty.text = lives[1]
  proc.UlozKampanDescription(path(work) .. "\\Description.ext")
  contains(read_file(work .. "/Description.ext"), "    lives = " .. lives[2] .. ";\r\n", "lives '" .. lives[1] .. "'")
end
