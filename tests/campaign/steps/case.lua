-- The chain of the wizard's forms: ways, boxes of the first step, cancelling, and what a new run begins with.
dofile(arg[1] .. "/campaign.lua")
start()
local function shown()
  local names = {}
  for _, form in ipairs({frmcamp1, frmcamp2, Form2, frmcamp3, frmcamp4, frmcamp5, frmcampobr, frmcamp6, frmcamp7}) do
    if form.visible then names[#names + 1] = form.name or tostring(form) end
  end
  return #names
end
local function only(form, what)
  equal(form.visible, true, what)
  equal(shown(), 1, what .. ": alone")
end
equal(shown(), 0, "no step is shown at the start")
equal(frmcamp1.txtkampcesta.text .. frmcamp1.txtkampJmeno.text, "Text1T74", "folder and name before")
frmmain.mnucampaignedit:click()
only(frmcamp1, "the first step")
equal(frmcamp1.modal, false, "no step is modal")
equal(frmcamp1.txtkampcesta.text .. shared.CestaKampane, "T75T75", "the folder of the language pack")
equal(shared.JmenoKampane .. shared.Zivoty, "T74-1", "name and lives")

-- boxes of the first step
frmcamp1.txtkampcesta.text = ""
frmcamp1.txtkampJmeno.text = ""
frmcamp1.cmdNext:click()
equal(boxes(), "H6/ok/information", "no folder")
frmcamp1.txtkampcesta.text = "\\jinam"
frmcamp1.cmdNext:click()
equal(boxes(), "H7/ok/information", "no name")
only(frmcamp1, "still there")
frmcamp1.txtkampJmeno.text = "Jméno"
equal(shared.JmenoKampane, "Jméno", "the name follows at once")
equal(shared.CestaKampane, "T75", "a typed folder does not")
frmcamp1.cmdNext:click()
equal(shared.CestaKampane, "T75", "and is not taken by the next step")
only(frmcamp2, "second step")
frmcamp2.cmdPrev:click()
only(frmcamp1, "back")
equal(shared.CestaKampane, "\\jinam", "the step takes it when it is shown again")
for _, lives in ipairs({{"5", 5}, {" 7 lives", 7}, {"2.5", 2}, {"x", 0}, {"-3", -3}, {"40000", -3}, {"", 0}}) do
  frmcamp1.txtzivoty.text = lives[1]
  equal(shared.Zivoty, lives[2], "lives '" .. lives[1] .. "'")
end

-- the folder picker
on.modal.frmopen2 = function()
  equal(shared.RezimOtevreni, 4, "mode of the picker")
  shared.SlozkaKampane = "\\vybrana"
end
frmcamp1.cmdadresar:click()
equal(frmcamp1.txtkampcesta.text .. shared.CestaKampane, "\\vybrana\\vybrana", "a folder was chosen")
on.modal.frmopen2 = function() end
frmcamp1.cmdadresar:click()
equal(frmcamp1.txtkampcesta.text .. shared.CestaKampane, "\\vybrana\\vybrana", "cancelled: it stays")

-- on and back
frmcamp1.cmdNext:click()
equal(shared.KampanMod, 0, "identities are the mission's")
frmcamp2.cmdnext:click()
only(Form2, "the identities")
equal(shared.KampanMod, -1, "now the campaign's")
Form2:close()
for _, way in ipairs({{frmcamp3, "cmdnext", frmcamp4}, {frmcamp4, "cmddale", frmcamp5}, {frmcamp5, "cmdnext", frmcampobr},
  {frmcampobr, "cmdnext", frmcamp6}, {frmcamp6, "cmdPrev", frmcamp5}, {frmcamp5, "cmdPrev", frmcamp4},
  {frmcamp4, "cmdPrev", frmcamp3}, {frmcamp3, "cmdPrev", Form2}, {frmcampobr, "cmdPrev", frmcamp5}}) do
  way[1][way[2]]:click()
  only(way[3], way[2] .. " of " .. way[1].caption)
  way[3]:close()
end

-- back from the scores to the identities and on again: nothing is lost
pick(mission("Z.Eden"))
frmcamp3.cmdaddA:click()
frmcamp3.cdmaddP:click()
Form2.cmdadd:click()
frmcamp3.cmdPrev:click()
Form2.cmdOk:click()
equal(rows(Form2.seznamidentit) .. marks(Form2.seznamidentit) .. rows(frmcamp3.awardlist) .. rows(frmcamp3.penaltylist),
  "T+Award 1Penalty 1", "identities, awards and penalties are there still")
equal(shared.PocetIdentitKampane .. shared.PocetOdmen .. shared.PocetTrestu, "111", "and counted")
frmcamp3:close()

-- each cancel resets and hides its own form; the fields of the first step stay
local a = mission("A.Eden")
for i, form in ipairs({frmcamp1, frmcamp2, frmcamp3, frmcamp4, frmcamp5, frmcampobr, frmcamp6}) do
  frmmain.mnucampaignedit:click()
  frmcamp1:close()
  if frmcamp4.cmdaddpart.caption ~= "T15" then proc.ResetKampan() end
  chapter("Kapitola")
  add_mission("PART1", a)
  pick(a)
  frmcamp3.cmdaddA:click()
  frmcamp3.cdmaddP:click()
  shared.KampanMod, shared.ObrazekKampane = -1, "\\a.jpg"
  frmcampobr.txtkampover.text = "Text " .. i
  frmcamp5.txtradiohlasitost.text, frmcamp5.txtzvukhloubka.text, frmcamp5.txtjmenohudby.text = "+" .. i, "1." .. i, "h" .. i
  frmcamp5.cmdPrev:click()
  form.cmdstorno:click()
  local what = "cancelled on " .. form.caption .. ": "
  equal(form.visible, false, what .. "hidden")
  equal(#frmcamp4.campfiles + #frmcamp3.awardlist + #frmcamp3.penaltylist, 0, what .. "lists")
  for _, name in ipairs({"IdentityKampane", "Odmeny", "Tresty", "RadiaKampane", "HudbyKampane", "ZvukyKampane", "Kapitoly"}) do
    equal(shared[name].bound, 0, what .. name)
  end
  for _, name in ipairs({"PocetIdentitKampane", "PocetOdmen", "PocetTrestu", "PocetRadiiKampane", "PocetHudebKampane",
    "PocetZvukuKampane", "PocetMisi", "AktualniKapitola", "AktualniMise", "VybranaMise", "PocetKapitol", "KampanMod"}) do
    equal(shared[name], 0, what .. name)
  end
  for _, name in ipairs({"CestaKampane", "JmenoKampane", "VybranaCesta", "VybranySoubor", "KlicKapitoly", "ObrazekKampane"}) do
    equal(shared[name], "", what .. name)
  end
  equal(shared.ZadnaUkoncovaci, -1, what .. "ZadnaUkoncovaci")
  equal(frmcamp3.awardlimit.text .. frmcamp3.penaltylimit.text, "10-10", what .. "limits")
  equal(frmcamp5.cmdodebratradio.enabled or frmcamp5.cmdodebratzvuk.enabled or frmcamp5.cmdodebrathudbu.enabled, false,
    what .. "removing sounds")
  equal(frmcampobr.txtkampover.text, "Text " .. i, what .. "the overview's text stays")
  equal(frmcamp5.txtradiohlasitost.text .. frmcamp5.txtzvukhloubka.text .. frmcamp5.txtjmenohudby.text, "+" .. i .. "1." .. i .. "h" .. i,
    what .. "the boxes of the sounds keep their texts")
  frmcamp4:close()
end
frmmain.mnucampaignedit:click()
equal(frmcamp1.txtkampcesta.text .. "|" .. frmcamp1.txtkampJmeno.text, "T75|Jméno", "the folder of the language pack, the name of the last run")
equal(shared.CestaKampane .. "|" .. shared.JmenoKampane, "T75|Jméno", "which the new one takes")
