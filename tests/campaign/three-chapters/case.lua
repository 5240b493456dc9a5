-- Three chapters with links of every kind, two cutscenes, awards and penalties on three islands, one of them terminating;
-- identities, sounds with subtitles, an overview with a picture.
dofile(arg[1] .. "/campaign.lua")
local intro, most, obrana, konec = mission("Úvod.Eden"), mission("Most.Eden"), mission("Obrana mostu.Abel"), mission("M3.Cain")
local epilogue = mission("Návrat.Abel")
local praise, march, scolding, end_scene = mission("Chvála.Eden"), mission("Pochod.Cain"), mission("Výtka.Abel"), mission("Konec.Eden")
local folder = make_folder(work .. "/out")
write_file(make_folder(most .. "/skripty") .. "/most.sqs", "hint \"\xd8eka\"\r\n")
local sounds = make_folder(work .. "/zvuky")
for name, bytes in pairs({["rozkaz 1"] = "rozkaz", ["zpráva"] = "zprava", ["výstřel"] = "vystrel", ["křik"] = "krik",
  ["píseň"] = "pisen", pochod = "pochod"}) do
  write_file(sounds .. "/" .. name .. ".ogg", bytes)
end
write_file(work .. "/mapa; 1.jpg", "\xff\xd8\xff\xc0\0\x0b\x08\0\x10\0\x20\x01\x01\x11\0\xff\xd9") -- 32 x 16

begin_campaign()
-- identities: the second is unmarked
frmcamp1.cmdNext:click()
frmcamp2.cmdnext:click()
local function identity(class, name, face, glasses, voice, pitch)
  Form2.txtnazev.text = class
  Form2.cmdadd:click()
  Form2.seznamidentit:select(#Form2.seznamidentit - 1)
  Form2.Text1.text = name
  Form2.ksichty:select(face)
  Form2.bryle:select(glasses)
  Form2.hlasy:select(voice)
  Form2.Text2.text = pitch
end
identity("Guba", "Generál Guba", 1, 1, 2, "0.9")
identity("Nikdo", "Nikdo", 2, 2, 1, "2")
identity("Velitel", "Jan \"Žižka\"", 0, 0, 0, "1,5")
Form2.seznamidentit:mark(1, false)
Form2.cmdOk:click()
-- awards: two islands; one island; an unmarked one
local f = frmcamp3
pick(praise) f.cmdaddA:click()
f.awardlend:select(2)
pick(march) f.Command2:click()
f.awardlimit.text = "250"
f.awardlend:select(0)
pick(praise) f.cmdaddA:click()
f.cmdaddA:click()
f.awardlist:mark(2, false)
-- penalties: -10 on the second island, -20 unmarked, -30 terminating with its mark off
f.penaltyland:select(1)
pick(scolding) f.cdmaddP:click()
f.penaltyland:select(0)
f.cdmaddP:click()
pick(end_scene) f.cdmaddP:click()
f.penaltylist:mark(1, false)
f.penaltylist:select(2)
f.cmdukon.value = 1
f.penaltylist:mark(2, false)
equal(boxes(), "", "the lowest penalty may terminate")

chapter("První")
chapter("Druhá kapitola")
chapter("Třetí")
links("PART1", {{2, "T48"}, {3, "PART3"}, {4, ""}, {5, "Jiná; \"x\""}, {6, "T48"}, {7, "T47"}, {8, path(intro)}})
links("PART2", {{6, "PART1"}, {7, "Konec"}})
links("PART3", {{1, "Zahozeno"}, {2, "T48"}, {7, "T47"}, {8, path(epilogue)}})
add_mission("PART1", most)
add_mission("PART1", obrana)
add_mission("PART1", konec)
add_mission("PART2", konec)
add_mission("PART3", obrana)
add_mission("PART3", most)
links("PART1MISSION1", {{2, "T46"}, {3, "M3"}, {4, ""}, {6, "T46"}, {7, "T45"}})
links("PART1MISSION2", {{6, "Cíl"}, {7, "Konec hry"}})
links("PART1MISSION3", {{1, "Zahozeno"}, {7, "T45"}})
links("PART3MISSION2", {{7, "Nikam"}})
equal(boxes(), "", "no link was refused")

-- sounds: a radio message and a piece of music are unmarked, of two subtitles one is off
local s = frmcamp5
take_sounds(s.cmdnacistradio, sounds, "rozkaz 1.ogg", "zpráva.ogg")
s.seznamradia:select(0)
s.txtjmenoradia.text = "Rozkaz1"
s.txtradiojmeno.text = "Rozkaz; první"
s.txtpostava.text = "aP 7"
for language, text in pairs({[0] = "Vpřed, na most!", [2] = "To the bridge!", [4] = "Al ponte"}) do
  s.radiojazyk:select(language)
  s.txtradio.text = text
end
s.seznamradia:mark(1, false)
take_sounds(s.cmdnacistzvuk, sounds, "výstřel.ogg", "křik.ogg")
s.seznamzvuku:select(0)
s.txtjmenozvuku.text = "Vystrel"
s.txtnazev.text = "Výstřel"
s.cmdadd:click()
s.cmdadd:click()
s.seznamtextu:select(0)
s.txtzvuk.text = "Stůj!"
s.zvukyjazyk:select(1)
s.txtzvuk.text = "Halt!"
s.seznamtextu:mark(1, false)
s.seznamzvuku:select(1)
s.txtjmenozvuku.text = "Krik"
s.txtnazev.text = "Křik"
s.txtzvukhlasitost.text = "-3"
s.txtzvukhloubka.text = "1.2"
take_sounds(s.cdmnactihudbu, sounds, "píseň.ogg", "pochod.ogg")
s.seznamhudby:select(0)
s.txtjmenohudby.text = "Pisen"
s.txthudbanazev.text = "Píseň"
s.seznamhudby:mark(1, false)
-- the overview
on.modal.Frmopen = function(form)
  form.Dir1.path = path(work)
  form.File1:select("mapa; 1.jpg")
  form.cmdOk:click()
end
frmcamp5.cmdnext:click()
frmcampobr.cmdopen:click()
frmcampobr.Vyska:select(4)
frmcampobr.txtkampover.text = "První <B>díl</B>"
frmcampobr.cmdnext:click()

name_campaign(folder, "Tři kapitoly")
frmcamp1.txtzivoty.text = "3"
f.penaltylist:select(0)
frmcamp6.cmdnext:click()
local made = folder .. "/Tři kapitoly.Eden"
same_campaign(made)
equal(frmcopy.prubeh1.value .. "/" .. frmcopy.prubeh1.max, "2/2", "the bar of the last phase, the music, is full")
equal(frmcopy.lblmise.caption .. "|" .. frmcopy.lbljmeno.caption, "T83|T80 pochod.ogg", "which comes last")
local wrong = "Nastala chyba při vytváření Description.ext pro kampaň do složky: " .. path(made) .. "\\Description.ext, "
local _, missing = log():gsub((wrong .. "9, Subscript out of range\r\n"):gsub("%p", "%%%0"), "")
equal(missing, 3, "three subtitles that no mission has")

-- no highlighted penalty: no exitScore; a highlighted one while none terminates: a log line instead
f.cmdukon.value = 1 -- of the first penalty: refused, the third is lower
equal(boxes(), "H11/ok/information", "only the lowest may terminate")
equal(f.cmdukon.value, 0, "the box is unchecked")
f.penaltylist:select(2)
equal(f.cmdukon.value, 1, "highlighting shows the terminating one")
f.cmdukon.value = 0
equal(shared.Tresty[2].Ukoncovaci, 0, "it terminates no more")
lacks(log(), wrong .. "5, ", "the list was never run off")
frmcamp6.cmdnext:click()
local text = read_file(made .. "/Description.ext")
lacks(text, "exitScore", "no terminating penalty, no exit score")
lacks(text, "PenaltyGameOver", "nor a class of it")
contains(log(), wrong .. "5, Invalid procedure call or argument\r\n", "the search ran off the list")
f.penaltylist:select(2)
f.cmdukon.value = 1
pick(nil) f.cdmaddP:click() -- a cancelled one leaves nothing highlighted
equal(f.penaltylist.index, -1, "nothing is highlighted")
frmcamp6.cmdnext:click()
text = read_file(made .. "/Description.ext")
lacks(text, "exitScore", "nothing highlighted, no exit score")
contains(text, "    class PenaltyGameOver\r\n    {\r\n        limit = -30;\r\n", "the class is written all the same")
