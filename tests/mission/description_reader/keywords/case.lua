-- A scanner for keywords, no parser: where they count, what they take, and what cannot be read.
start()
local m = frmmain

local function read_file_of(bytes)
  write_file(work .. "/Description.ext", bytes)
  local before = #log()
  proc.NactiDescription(path(work .. "/Description.ext"))
  return log():sub(before + 1)
end

local head = "Načítání Description ext z: !" .. path(work .. "/Description.ext") .. "\r\n"
local failed = "Nastala chyba při čtení Description.ext ze složky: "

equal(read_file_of(""), head, "an empty file")
equal(m.minScore.text .. m.onloadintro.text, "0T53", "changes nothing")

-- a line without a value takes that of the line before
equal(read_file_of("a = 5\r\n// minScore\r\n"), head .. "MinScore = 5\r\n", "in a comment, with the value of the line before")
equal(m.minScore.text, " 5", "the value")
equal(read_file_of("minscore\nx=1"), head .. "MinScore = \r\n", "the value of no line before is empty")
equal(m.minScore.text, "", "and so is the field")

-- inside of a class and of a longer word
m.respawn.value = 0
read_file_of("class CfgRadio\r\n{\r\n  class Respawn1 {name=\"\";};\r\n  class showMapNow {};\r\n};\r\n")
equal(m.respawn.value, 1, "a class of that name")
equal(m.showMap.value, 0, "a longer word")

-- several on one line, in the order of the table
equal(read_file_of("onLoadMission, minScore, respawn = side = x\n"),
  head .. "MinScore = side = x\r\nOnLoadMission =  side = x\r\n", "three on one line")
equal(m.onloadmission.text, " side = x", "the value is all behind the first =")

-- the times of the titles
read_file_of('onLoadIntro = "in"\nonLoadIntroTime = 1;\nonLoadMission = "mis"\n')
equal(m.onloadintro.text, " in", "the time of the intro is not its title")
equal(m.onloadmission.text, " mis", "title of the mission")
read_file_of("onLoadMissionTime = 1;\n")
equal(m.onloadmission.text, " 1;", "the time of the mission is taken for its title")

-- line ends of other systems, no line end at the end
read_file_of("maxScore=7\ravgScore=6\nminScore=5")
equal(m.minScore.text .. m.avgScore.text .. m.maxScore.text, "567", "all line ends")

-- a number that is too large fails alone
m.showGPS.value = 1
m.showWatch.value = 0
local logged = read_file_of("showGPS = 1e999\nshowWatch = 1\n")
equal(logged, head .. failed .. path(work .. "/Description.ext") .. ", 6, Overflow\r\nShowGps =  1e999\r\nShowWatch =  1\r\n",
  "the failure and what follows it")
equal(m.showGPS.value, 1, "the failing step is skipped")
equal(m.showWatch.value, 1, "the next line is read")

-- files that cannot be opened
local missing = path(work .. "/není; \"tu\".ext")
local before = #log()
proc.NactiDescription(missing)
equal(log():sub(before + 1), "Načítání Description ext z: !" .. missing .. "\r\n" .. failed .. missing ..
  ", 53, File not found\r\n", "a missing file")
proc.NactiDescription(path(work))
contains(log(), failed .. path(work) .. ", 75, Path/File access error\r\n", "a folder")

-- binary and huge
local bytes = {}
for i = 0, 255 do bytes[#bytes + 1] = string.char(i) end
equal(read_file_of(table.concat(bytes)), head, "every byte there is")
local clock = os.clock()
read_file_of(("x"):rep(5000000) .. "\nminScore=1\n" .. ("class A {a=1;};\n"):rep(300000))
equal(m.minScore.text, "1", "a huge file")
check(os.clock() - clock < 20, "the time it took", os.clock() - clock .. " s")

-- opening a mission reads it before the briefing, and says so
local folder = mission("old")
write_file(folder .. "/description.EXT", "minScore = 9\r\n")
open_mission(folder, true)
equal(m.minScore.text, " 9", "read with the mission")
contains(log(), "MinScore = 9\r\nNalezen soubor Description.ext v: " .. path(folder .. "/") .. "\r\n", "log")
open_mission(mission("bare"), true)
equal(m.minScore.text .. m.Skore.value, "00", "a mission without the file begins anew")
