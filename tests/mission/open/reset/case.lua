-- Opening a mission forgets the former one: records, texts, fields of three forms.
local one = mission("one.Eden", 'class Mission\n{\nclass Intel\n{\nbriefingName="One";\nmonth=7;\nstartFog=0.3;\n};\nclass Markers\n{\nitems=1;\nclass Item0\n{\nname="a";\n};\n};\n};\n')
local two = mission("two.Eden")
start()
equal(frmmain.caption, "Tarvelin", "caption before")
open_mission(one)
equal(frmmain.caption, "Tarvelin - " .. path(one) .. "\\", "caption with the folder")
-- what a user leaves behind
for _, name in ipairs{"PlanZapad", "PlanVychod", "PlanPartyzani", "PlanCivilisti", "PoznamkyZapad", "PoznamkyVychod", "PoznamkyPartyzani", "PoznamkyCivilisti"} do shared[name] = "old" end
local counts = {"PocetZnacek", "PocetSenzoru", "PocetUkolu", "PocetUkoluZapad", "PocetUkoluVychod", "PocetUkoluPartyzani", "PocetUkoluCivilisti", "PocetKoncu",
  "PocetRadii", "PocetHudeb", "PocetZvuku", "PocetRadiiKampane", "PocetHudebKampane", "PocetZvukuKampane", "PocetIdentit", "AktualniIdentita", "PocetSouboru", "AktualniZnacka", "AktualniSenzor"}
for _, name in ipairs(counts) do shared[name] = 5 end
shared.PocetTextu = 5
shared.JazykBrifing, shared.JazykOverview = "All", "German"
for _, name in ipairs{"txtBriefink", "txtOverview", "txtPoznamky", "txtJmenoMise", "onloadintro", "txtUkol", "onloadmission", "txtjmenoradia", "txtradiojmeno", "txtjmenozvuku",
  "txtnazev", "txtjmenohudby", "txthudbanazev", "txtradio", "txtcekat", "skript", "minScore", "avgScore", "maxScore"} do frmmain[name].text = "typed" end
frmmain.respawn.value, frmmain.Skore.value = 1, 1
for _, name in ipairs{"showMap", "showCompass", "showGPS", "showNotepad", "showWatch", "Debrifing"} do frmmain[name].value = 0 end
frmdebrief.txtjmeno.text, frmdebrief.txtdebrief.text = "typed", "typed"
frmmain.Base.value = true
frmmain.jazykbrif:select(3)

open_mission(two)
for _, name in ipairs(counts) do equal(shared[name], 0, name) end
equal(shared.PocetTextu, 5, "the number of subtitles is not reset")
for _, name in ipairs{"PlanZapad", "PlanVychod", "PlanPartyzani", "PlanCivilisti", "PoznamkyZapad", "PoznamkyVychod", "PoznamkyPartyzani", "PoznamkyCivilisti",
  "BrifingJmeno", "BrifingPopis", "Spojenci", "Mesic", "Den", "Hodina", "Minuta", "Pocasi", "Mlha", "PredpovedPocasi", "PredpovedMlhy", "JazykBrifing", "JazykOverview"} do
  equal(shared[name], "", name)
end
for _, name in ipairs{"Radia", "Hudby", "Zvuky", "RadiaKampane", "HudbyKampane", "ZvukyKampane", "Identity", "Ukoly", "UkolyZapad", "Konce", "CestySouboru"} do
  equal(shared[name].bound, 0, name .. " holds the spare element alone")
end
for name, text in pairs{txtBriefink = "T7", txtOverview = "T8", txtPoznamky = "T9", txtJmenoMise = "T53", onloadintro = "T53", txtUkol = "T54", onloadmission = "T56",
  txtjmenoradia = "T57", txtradiojmeno = "T58", txtjmenozvuku = "T59", txtjmenohudby = "T61", txthudbanazev = "T62", txtradio = "T63", txtzvuk = "T64", skript = "T85",
  txtcekat = "10", minScore = "0", avgScore = "3000", maxScore = "6000", txtBrifingJmeno = "", txtBrifingPopis = "", txtSpojenci = ""} do
  equal(frmmain[name].text, text, name)
end
equal(frmmain.txtnazev.text, "T60", "txtnazev")
for name, value in pairs{respawn = 0, Skore = 0, showMap = 1, showCompass = 1, showGPS = 1, showNotepad = 1, showWatch = 1, Debrifing = 1} do equal(frmmain[name].value, value, name) end
equal(frmmain.Frame6.visible, false, "the frame of respawn is hidden again")
equal(frmmain.Base.value, true, "the options keep their state")
equal(frmdebrief.txtjmeno.text, "", "heading of an end") equal(frmdebrief.txtdebrief.text, "", "its text")
equal(frmmain.lbljmeno.caption, "", "name of the picture")
equal(frmmain.Picnahled.path, "", "the picture")
equal(frmmain.StranaBrifing, "", "no page is chosen") equal(frmmain.StranaOverview, "", "of either kind")
equal(frmmain.caption, "Tarvelin - " .. path(two) .. "\\", "the caption follows")
equal(frmmain.otevreneskripty.path, path(two), "so does the list of scripts")
equal(Form3.visible, false, "the wait window is gone")
for _, name in ipairs{"Text1", "Text2", "hlasy", "ksichty", "bryle", "List1"} do equal(Form2[name].enabled, false, "Form2." .. name) end
