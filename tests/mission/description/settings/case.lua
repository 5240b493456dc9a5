-- The settings of Description.ext: order, conditions, spellings, values as typed.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local function head()
  proc.UlozDescription(path(folder) .. "\\Description.ext")
  local text = read_file(folder .. "/Description.ext")
  return text:sub(1, text:find("\r\n//Ted bude", 1, true) - 1), text
end
local switches = [[

//ma se po konci mise ukazat knizka s hodnocenim
debriefing = %d

//muze se pouyivat mapa?
showmap = %d

//muze se pouzivat GPS?
showGPS = %d

//muze se pouzivat kompas?
showCompass = %d

//muzou se pouzivat hodinky?
showWatch = %d

//maji se zobrazit poznamky?
showNotepad = %d
]]
local titles = [[

//titulek ktery se zobrazi na obrazovce Brifingu
onloadintro = "%s"

//titulek ktery se zobrazi pri nacitani mise
onloadmission = "%s"
]]
local first = "//Description.ext pro konfiguraci mise\n"
local part, whole = head()
same(part, crlf(first .. switches:format(1, 1, 1, 1, 1, 1) .. titles:format("T53", "T56")), "defaults: no score, no respawn")
equal(whole:sub(-19), "\r\n//Konec souboru\r\n", "it ends with the last comment and one CR LF")
contains(whole, "\r\nclass Weapons\r\n{\r\n};\r\n\r\nclass Magazines\r\n{\r\n};\r\n\r\n", "empty pools")

frmmain.Skore.value = 1
frmmain.minScore.text, frmmain.avgScore.text, frmmain.maxScore.text = "-5", "", "žlutý; 9"
frmmain.respawn.value = 1
frmmain.txtcekat.text = " 7 "
frmmain.onloadintro.text = 'a "quoted" title'
frmmain.onloadmission.text = ""
for _, name in ipairs{"Debrifing", "showMap", "showGPS", "showCompass", "showWatch", "showNotepad"} do frmmain[name].value = 0 end
local scores = "\n//nastaveni urovni skore\nminScore = -5\navgScore = \nmaxScore = žlutý; 9\n"
local function respawn(kind) return "\n//nasatveni oziveni multiplayer misi\nrespawn = " .. kind .. "\nrespawndelay =  7 \n" end
local function encoded(text) return (crlf(text):gsub("ž", "\158"):gsub("ý", "\253")) end
for _, kind in ipairs{"", "None", "Bird", "Instant", "Group", "Side", "Base"} do
  if kind ~= "" then frmmain[kind].value = true end
  same((head()), encoded(first .. scores .. respawn(kind) .. switches:format(0, 0, 0, 0, 0, 0) .. titles:format('a "quoted" title', "")), "respawn '" .. kind .. "'")
end
frmmain.Skore.value = 0
lacks((head()), "core", "no score: not even the comment")
-- one switch after the other
for i, name in ipairs{"Debrifing", "showMap", "showGPS", "showCompass", "showWatch", "showNotepad"} do
  frmmain[name].value = 1
  local key = ({"debriefing", "showmap", "showGPS", "showCompass", "showWatch", "showNotepad"})[i]
  contains((head()), "\r\n" .. key .. " = 1\r\n", key)
end
