-- The whole road: the demo mission, every panel filled, written, opened again, written again. What comes back is what
-- readers and writers are known to keep of each other; the rest is lost, and stays so.
dofile(arg[1] .. "/pictures.lua")
local demo = read_file(case_folder .. "/../../../examples/Demo.Eden/mission.sqm")
local folder = make_folder(work .. "/Demo.Eden")
write_file(folder .. "/mission.sqm", demo)
local src = make_folder(work .. "/src; 'ž'")
for _, name in ipairs{"hlas.ogg", "rana a.ogg", "song.ogg", "den.ogg", "noc.ogg", "ptak.ogg"} do write_file(src .. "/" .. name, "sound " .. name) end
write_file(src .. "/map.paa", "a picture")

start()
open_mission(folder)
local m = frmmain

-- notebook
m.txtJmenoMise.text = "Cesta na Levie"
m.txtBriefink.text = 'Go to <A href="marker:cil">the hill</A>.<BR>\r\nThen wait.'
m.txtPoznamky.text = "First line\r\n <B>second</B> line"
m.txtOverview.text = "One <I>short</I>\r\ntext"
for _, text in ipairs{"Take <B>it</B>", "Hold it", "Leave"} do m.txtUkol.text = text m.cmdpridat:click() end
m.List1:mark(1, false)
frmdebrief.txtjmeno.text, frmdebrief.txtdebrief.text = "Won <I>all</I>", "Well\r\ndone."
frmdebrief.cmdpridat:click()
frmdebrief.txtjmeno.text, frmdebrief.txtdebrief.text = "Lost", "Oh."
frmdebrief.cmdpridat:click()
-- picture and sizes
shared.CestaObrazku, shared.CilObrazku = path(src) .. "\\map.paa", path(folder) .. "\\pic.paa"
m.Sirka:select(7)
m.Vyska:select(4)
-- settings
m.Skore.value, m.respawn.value = 1, 1
m.minScore.text, m.avgScore.text, m.maxScore.text = "100", "200;", "300"
m.Side.value = true
m.txtcekat.text = "25"
m.onloadintro.text, m.onloadmission.text = 'The "first" one', "Second"
m.showMap.value, m.showWatch.value, m.Debrifing.value = 0, 0, 0
-- weapons
m.M16.value, m.PK.value = 1, 1
m.Pkpocet.text, m.txtM16zas.text = "3", "11"
m.cmdaddweapon:click()
m.seznamzbrani:select(0)
m.Text1[1].text, m.Text1[0].text, m.Text1[4].text, m.Text1[3].text = "AddonRifle", "Rifle", "2", "6"
m.seznamzbrani:mark(0, true)
-- sounds
local function take(command, ...)
  local names = {...}
  on.modal.frmnactizvuky = function(form)
    for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, false) end
    form.Dir1.path = path(src)
    for _, name in ipairs(names) do form.File1:select(name) form.cmdadd:click() end
    form.cmdopen:click()
  end
  command:click()
  on.modal.frmnactizvuky = nil
end
take(m.cmdnacistradio, "hlas.ogg")
m.seznamradia:select(0)
m.txtjmenoradia.text = "Hlas"
m.txtradio.text = "Slyšíš mě?"
m.radiojazyk:select(2)
m.txtradio.text = "Do you read?"
take(m.cmdnacistzvuk, "rana a.ogg")
m.seznamzvuku:select(0)
m.txtjmenozvuku.text = "Rana"
m.cmdadd:click()
m.seznamtextu:select(0)
m.txtzvuk.text = "Bum"
take(m.cdmnactihudbu, "song.ogg")
m.seznamhudby:select(0)
m.txtjmenohudby.text = "Song"
-- identities
Form2.txtnazev.text = "Hrdina"
Form2.cmdadd:click()
Form2.Text1.text = "Jan Hrdina"
Form2.chkpouzithrace.value = 1
-- environment, effects, titles, own rows, readme
m.mnudalsizvuky:click()
local d = frmdalsinast
d.Command2:click()
d.seznamrozzvuku:select(0)
d.txtnazev.text, d.txtrozname.text = "Les", "Forest"
d.txtzvukroz.text, d.txtzvuk2roz.text = path(src) .. "\\den.ogg", path(src) .. "\\noc.ogg"
d.cmdadd1:click()
d.List1:select(0)
d.txtnazev1.text = "Ptaci"
d.cmdadd2:click()
d.List2:select(0)
d.txtzvuk.text = path(src) .. "\\ptak.ogg"
d.cmdpridat1:click()
d.List3:select(0)
d.txtnazev3.text, d.txtjmeno.text, d.txtdoba.text = "Uvod", "Opening", "5"
d.txtstringtable.text = "$STRM_Own,vlastní,own,,,,,"

m.seznamakci:select(3)
m.cmdvytvor:click()
nothing_failed("nothing failed")
equal(listing(folder), "Briefing.html Description.ext Overview.html Stringtable.csv mission.sqm music pic.paa sound", "the written files")
equal(listing(folder .. "/sound"), "den.ogg hlas.ogg noc.ogg ptak.ogg rana a.ogg", "sounds")
equal(listing(folder .. "/music"), "song.ogg", "music")
equal(read_file(folder .. "/mission.sqm"), demo, "the mission itself is not touched")
local briefing, overview = read_file(folder .. "/Briefing.html"), read_file(folder .. "/Overview.html")
local description, strings = read_file(folder .. "/Description.ext"), read_file(folder .. "/Stringtable.csv")
contains(description, "class Rana\r\n", "a sound") contains(description, "class Hrdina\r\n", "an identity")
contains(strings, 'STRM_Hlas,"Sly\154\237\154 m\236?","Do you read?"', "a radio row")

-- opened again
on.box = function() return "yes" end
open_mission(folder, true)
on.box = nil
equal(m.txtBriefink.text, "Go to the hill.Then wait.", "plan: tags and line ends are gone")
equal(m.txtPoznamky.text, "First line second line", "notes: joined, blanks kept")
equal(m.chkvicestran.value, 0, "a page for all sides")
equal(rows(m.List1), "T112 1|T112 2", "the unmarked objective was not written")
equal(marks(m.List1), "++", "all that came back are used")
equal(shared.Ukoly[0].Text, "Take it", "first") equal(shared.Ukoly[1].Text, "Leave", "second")
equal(rows(frmdebrief.List1), "T121 1|T121 2", "both endings")
equal(shared.Konce[0].Nadpis, "Won all", "heading") equal(shared.Konce[0].Text, "Welldone.", "text")
equal(m.txtJmenoMise.text, "Cesta na Levie", "name, from the overview")
equal(m.txtOverview.text, "One shorttext", "overview")
equal(m.Sirka.text, "256", "width") equal(m.Vyska.text, "32", "height")
equal(shared.CestaObrazku, path(folder) .. "\\\\pic.paa", "the picture's path, with its doubled backslash")
equal(m.minScore.text, " 100", "scores keep the blank") equal(m.avgScore.text, " 200;", "and what was typed") equal(m.maxScore.text, " 300", "all three")
equal(m.Skore.value, 1, "scores are on") equal(m.respawn.value, 1, "respawn is on")
equal(m.Side.value, true, "its kind") equal(m.txtcekat.text, " 25", "its delay")
equal(m.onloadintro.text, " The first one", "titles lose their quotes and keep the blank") equal(m.onloadmission.text, " Second", "both")
equal(m.showMap.value, 0, "map") equal(m.showWatch.value, 0, "watch") equal(m.Debrifing.value, 0, "debriefing") equal(m.showGPS.value, 1, "GPS")
equal(m.M16.value, 1, "weapons stay as they are in the panel") equal(#m.seznamzbrani, 1, "add-on weapons too")
equal(#m.seznamradia, 0, "radio messages are not read back") equal(#m.seznamzvuku, 0, "nor sounds") equal(#m.seznamhudby, 0, "nor music")
equal(#Form2.seznamidentit, 0, "nor identities")
equal(#d.seznamrozzvuku, 1, "environment sounds stay with the program") equal(#d.List3, 1, "titles too")
equal(d.txtstringtable.text, (function() local text = "" for line in strings:gmatch("(.-)\r\n") do text = text .. line .. "\r\n" end
  return (text:gsub("\154", "š"):gsub("\237", "í"):gsub("\236", "ě")) end)(), "the whole table is loaded into the own rows")

-- written again: the panels as they came back
m.cmdvytvor:click()
local plain = briefing:gsub('Go to <A href="marker:cil">the hill</A>.<BR>\r\nThen wait.', "Go to the hill.Then wait."):gsub("First line\r\n <B>second</B> line", "First line second line")
  :gsub("Take <B>it</B>", "Take it"):gsub("Won <I>all</I>", "Won all"):gsub("Well\r\ndone%.", "Welldone.")
same(read_file(folder .. "/Briefing.html"), plain, "the page without what the reader lost")
same(read_file(folder .. "/Overview.html"), (overview:gsub("One <I>short</I>\r\ntext", "One shorttext")), "the picture's place in the mission is remembered over an opening")
equal(read_file(folder .. "/pic.paa"), "a picture", "and the picture that is copied over itself survives")
local second = read_file(folder .. "/Description.ext")
contains(second, "\r\nminScore =  100\r\navgScore =  200;\r\nmaxScore =  300\r\n", "one blank more behind each score")
contains(second, '\r\nonloadintro = " The first one"\r\n', "and in front of each title")
contains(second, "\r\nclass AddonRifle\r\n   {count = 2;};\r\n", "the weapons once more")
lacks(second, "class Rana\r\n", "the sounds are gone") lacks(second, "class Hrdina\r\n", "so are the identities")
contains(second, "class Ptaci\r\n", "the effects are not")
local head = "LANGUAGE,Czech,English,German,French,Italian,Spanish,Comment\r\n"
local table_again = read_file(folder .. "/Stringtable.csv")
equal(select(2, table_again:gsub(head, "")), 2, "the table carries its head twice")
contains(table_again, "$STRM_Own,", "and the own rows")
equal(read_file(folder .. "/mission.sqm"), demo, "the mission itself is still not touched")
