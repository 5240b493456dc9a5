-- The demo among the examples in the shipped language `language`, and once more with sounds, a character, surroundings,
-- effects and titles, under the names that the language proposes where it does. What is written must be a file that the
-- game takes, whatever the language.
dofile(arg[1] .. "/campaign.lua")
local examples = case_folder .. "/../../../../examples"
local data = examples .. "/../Bfdata"
assert(os.execute("cp -r '" .. data .. "' '" .. home .. "'"))
local folder = make_folder(work .. "/Demo.Eden")
write_file(folder .. "/mission.sqm", read_file(examples .. "/Demo.Eden/mission.sqm"))

local demo = read_file(examples .. "/demo.lua")
local in_language, times = demo:gsub('"english.lng"', '"' .. language:lower() .. '.lng"')
equal(times, 1, "the demo names its language once")

local plain_print, plain_quit = print, quit
print, quit = function() end, function() end
arg = {[0] = examples .. "/demo.lua", folder .. "/mission.sqm"}
assert(load(in_language, "@demo.lua"))()
print, quit = plain_print, plain_quit
local file_menu = {Czech = "Soubor", English = "File", French = "Fichier", German = "Datei", Italian = "File", Spanish = "Archivo"}
equal(frmmain.mnufile.caption, file_menu[language], "the language")

local description = folder .. "/Description.ext"
local first = read_file(description)
contains(first, "//Konec souboru\r\n", "the demo's own file")

local media = examples .. "/media"
take_sounds(frmmain.cmdnacistradio, media, "callsign.ogg")
take_sounds(frmmain.cmdnacistzvuk, media, "callsign.ogg")
take_sounds(frmmain.cdmnactihudbu, media, "nocturne.ogg")
-- the demo's own records are still highlighted and took the proposed names as well: they get names anew
for _, field in ipairs{"txtjmenoradia", "txtjmenozvuku", "txtjmenohudby"} do
  frmmain[field].text = "Own"
end
-- Czech proposes "Rádio", as its authors have always known it, but a class wants plain letters
frmmain.seznamradia:select(1)
frmmain.txtjmenoradia.text = "Radio2"
Form2.cmdadd:click()
Form2.chkpouzithrace.value = 1
frmmain.mnudalsizvuky:click()
local d = frmdalsinast
d.Command2:click()
d.seznamrozzvuku:select(0)
d.txtnazev.text, d.txtrozname.text = "Wood", "The wood"
d.txtzvukroz.text, d.txthlasitost1.text, d.txthloubka1.text = "\\day.ogg", "-10", "1"
d.txtzvuk2roz.text, d.txthlasitost2.text, d.txthloubka2.text = "\\night.ogg", "-20", "1"
d.cmdadd1:click()
d.List1:select(0)
d.txtnazev1.text, d.txjmeno.text = "Birds", "The birds"
d.cmdadd2:click()
d.List2:select(0)
d.txtzvuk.text, d.txthlasitost.text, d.txthloubka.text = "\\bird.ogg", "-10", "1"
d.txtsance.text, d.txtneznamy.text, d.txtmindelay.text, d.txtmaxdelay.text = "0.5", "1", "1", "5"
d.cmdpridat1:click()
d.List3:select(0)
d.txtnazev3.text, d.txtjmeno.text, d.txtdoba.text = "Opening", "The opening", "5"
for row, name in ipairs{"Words", "Photo"} do
  d.cmdpridat2:click()
  d.List4:select(row - 1)
  d.txtnazev2.text, d.txttext.text, d.txtvelikost.text = name, "levie.jpg", "1"
end
d.Option2.value = true
frmmain.cmdvytvor:click()

local second = read_file(description)
contains(second, "    class Radio2\r\n", "the name of a radio message")
contains(second, "    class " .. shared.Texty[59] .. "2\r\n", "the proposed name of a sound")
contains(second, "    class " .. shared.Texty[61] .. "2\r\n", "of music")
for _, part in ipairs{"class CfgIdentities\r\n{\r\n    class ", "class RscText\r\n{\r\n   type=0;", "class RscPicture\r\n{\r\n   type=0;",
  "      class Words: RscText\r\n", "      class Photo: RscPicture\r\n", "   class Birds\r\n"} do
  contains(second, part, language)
end
