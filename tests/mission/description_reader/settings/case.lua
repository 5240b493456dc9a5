-- The settings of a Description.ext, as this program writes them and as people write them.
start()
local number = 0

local function read_file_of(text)
  number = number + 1
  local name = work .. "/Description" .. number .. ".ext"
  write_file(name, crlf(text))
  local before = #log()
  proc.NactiDescription(path(name))
  local added = log():sub(before + 1)
  local head = "Načítání Description ext z: !" .. path(name) .. "\r\n"
  equal(added:sub(1, #head), head, "first log line")
  return added:sub(#head + 1)
end

local m = frmmain

local logged = read_file_of(([[
//Description.ext pro konfiguraci mise

//nastaveni urovni skore
minScore = 100
avgScore = 1000
maxScore = 5000

respawn = Base
respawndelay = 5
debriefing = 0
showmap = 0
showGPS = 0
showCompass = 0
showWatch = 0
showNotepad = 0
onloadintro = "The "old" intro"
onloadmission = "\x8a\x9dastn\xe1 mise"
//Konec souboru
]]):gsub("\\x(%x%x)", function(hex) return string.char(tonumber(hex, 16)) end))
equal(logged, "MinScore = 100\r\nAvgScore = 1000\r\nMaxScore = 5000\r\nRespawn = Base\r\nDebriefing =  0\r\nShowMap =  0\r\n" ..
  "ShowGps =  0\r\nShowCompass =  0\r\nShowWatch =  0\r\nShowNotepad =  0\r\nOnLoadIntro =  \"The \"old\" intro\"\r\n" ..
  "OnLoadMission =  \"Šťastná mise\"\r\n", "log")
equal(m.Skore.value, 1, "score is on")
equal(m.Frame7.visible, true, "and can be set")
equal(m.minScore.text .. "|" .. m.avgScore.text .. "|" .. m.maxScore.text, " 100| 1000| 5000", "values keep their blank")
equal(m.respawn.value, 1, "respawn is on")
equal(m.Base.value, true, "its kind")
equal(m.txtcekat.text, " 5", "its delay")
for _, name in ipairs{"Debrifing", "showMap", "showGPS", "showCompass", "showWatch", "showNotepad"} do
  equal(m[name].value, 0, name)
end
equal(m.onloadintro.text, " The old intro", "all double quotes go, the blank stays")
equal(m.onloadmission.text, " Šťastná mise", "title with Czech letters")

-- what a file lacks stays as it is
logged = read_file_of("SHOWMAP=1;\nshowGPS = true;\nShowCompass=2 // on\nshowwatch = .5\nshowNotepad =-1\nDebriefing= 1\n")
equal(m.Skore.value + m.respawn.value, 2, "score and respawn stay on")
equal(m.showMap.value, 1, "a semicolon behind the number")
equal(m.showGPS.value, 0, "a word is no number")
equal(m.showCompass.value + m.showWatch.value + m.showNotepad.value + m.Debrifing.value, 4, "every number but 0")
equal(logged:sub(-17), "Debriefing =  1\r\n", "one blank of the log, one of the value")
contains(logged, "ShowMap = 1;\r\n", "the value as it stands")
contains(logged, "ShowGps =  true;\r\n", "the value as it stands")

-- kinds of respawn
for _, kind in ipairs{"None", "Bird", "Instant", "Group", "Side", "Base"} do
  m.respawn.value = 0
  equal(read_file_of("respawn =  " .. kind:upper() .. "  \n"), "Respawn = " .. kind .. "\r\n", "log of respawn " .. kind)
  equal(m[kind].value, true, "respawn " .. kind)
  equal(m.respawn.value, 1, "respawn is on for " .. kind)
end
m.respawn.value = 0
equal(read_file_of("respawn = 3\n"), "", "a number logs nothing")
equal(m.respawn.value, 1, "but respawn is on")
equal(m.Base.value, true, "and its kind stays")
equal(read_file_of('respawn = "SIDE";\n'), "", "neither does a quoted kind")
equal(m.Base.value, true, "the kind stays")
m.respawn.value = 0
equal(read_file_of("respawnDelay = 7;\n"), "", "a delay logs nothing")
equal(m.respawn.value, 0, "and does not bring respawn")
equal(m.txtcekat.text, " 7;", "the delay with its semicolon")
