-- The smallest campaign, by every step of the wizard: one chapter with one mission, no scores, sounds or picture.
dofile(arg[1] .. "/campaign.lua")
local source = mission("Dobytí mostu.Eden")
write_file(make_folder(source .. "/scripts/deep") .. "/a.sqs", "exit\r\n")
write_file(source .. "/řeka.jpg", "\0\xff")
local folder = make_folder(work .. "/kampaně")

start()
frmcamp1.cmdstorno:click() -- the captions of the tree's commands
frmmain.mnucampaignedit:click()
frmcamp1.txtkampcesta.text = path(folder)
frmcamp1.txtkampJmeno.text = "Boj o most"
frmcamp1.cmdNext:click()
frmcamp2.cmdPrev:click()
frmcamp1.cmdNext:click()
frmcamp2.cmdnext:click()
equal(Form2.visible, true, "the identities follow")
equal(shared.KampanMod, -1, "and work for the campaign")
Form2:close()
frmcamp3.cmdnext:click()
chapter("Úvod; \"první\"")
add_mission("PART1", source)
frmcamp4.cmddale:click()
frmcamp5.cmdnext:click()
equal(frmcampobr.txtkampover.text, "T8", "the overview's text comes from the language pack")
equal(frmcampobr.Sirka.text .. "x" .. frmcampobr.Vyska.text, "128x64", "size of the picture")
equal(rows(frmcampobr.Sirka), "2|4|8|16|32|64|128|256", "widths")
frmcampobr.txtkampover.text = "Most <B>přes řeku</B>;\r\n\"Žižka\""
frmcampobr.cmdnext:click()
frmcamp6.cmdnext:click()

local made = folder .. "/Boj o most.Eden"
same_campaign(made, {"DtaExt/"})
equal(listing(folder), "Boj o most.Eden", "nothing else lies in the campaign's folder")
nothing_failed("nothing fails")

equal(frmcamp6.visible, false, "the last step is gone")
equal(frmcopy.visible, false, "the progress window is gone")
equal(frmcamp7.visible, true, "the last window is there")
equal(frmcamp7.souborylist.value, 2, "on the overview")
equal(frmcamp7.ukaz.address, path(made) .. "\\Overview.html", "which it shows")
local campaign = path(folder) .. "\\Boj o most"
in_order(log(), {"Začíná kopírování kampaně do: " .. campaign .. ", ", "\r\nKonec kopírování kampaně,",
  "\r\nUkládání description.ext pro kampaň do: " .. campaign .. ".Eden\\Description.ext,",
  "\r\nKonec ukládání description.ext pro kampaň,",
  "\r\nVytváření overview pro kampaň do: " .. campaign .. ".Eden\\Overview.html, ",
  "\r\nKonec vytváření overview pro kampaň\r\n", "Vytváření Mission.sqm do: " .. campaign .. ".Eden\\mission.sqm, "},
  "the log of the generation")

-- the second run: the name stays, the folder is the language pack's again, the lists are empty
frmcamp7.cmdok:click()
equal(frmcamp7.visible, false, "ok ends the wizard")
equal(#frmcamp4.campfiles, 0, "the tree is empty")
frmmain.mnucampaignedit:click()
equal(frmcamp1.txtkampJmeno.text, "Boj o most", "the old name")
equal(frmcamp1.txtkampcesta.text, "T75", "the folder of the language pack")
equal(shared.CestaKampane .. "|" .. shared.JmenoKampane, "T75|Boj o most", "which the new run takes")
equal(frmcampobr.txtkampover.text, "Most <B>přes řeku</B>;\r\n\"Žižka\"", "the old overview")

-- once more into the same folder: it is written over, and the overview is shown anew
name_campaign(folder, "Boj o most")
chapter("Jiná")
write_file(source .. "/mission.sqm", "version=12;\r\n")
add_mission("PART1", source)
frmcamp6.cmdnext:click()
equal(read_file(made .. "/Missions/Dobytí mostu.Eden/mission.sqm"), "version=12;\r\n", "files are written over")
contains(read_file(made .. "/Description.ext"), "        name = \"Jin\xe1\";\r\n", "the description too")
contains(log(), "Nastala chyba při kopírování souborů kampaně do složky: " .. path(folder) .. "Soubor: , 75, ",
  "folders that exist go to the log")
equal(frmcamp7.ukaz.address, path(made) .. "\\Overview.html", "the slider stood there already")
