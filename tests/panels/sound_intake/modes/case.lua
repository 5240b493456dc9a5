-- The six modes of the intake: which list it fills, and what a new record holds.
local source = make_folder(work .. "/Zvuky a; 'hudba'")
for _, name in ipairs{"první zvuk.ogg", "b;c.OGG", "d.ogg.bak", "e.wav"} do write_file(source .. "/" .. name, name) end
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
local modes = {
  {1, frmmain, "cmdnacistradio", "cmdodebratradio", "seznamradia", "Radia", "PocetRadii", "T57", "T58", "txtjmenoradia", "txtradiojmeno", "txtradiohlasitost", "txtradiohloubka"},
  {2, frmmain, "cmdnacistzvuk", "cmdodebratzvuk", "seznamzvuku", "Zvuky", "PocetZvuku", "T59", "T60", "txtjmenozvuku", "txtnazev", "txtzvukhlasitost", "txtzvukhloubka"},
  {3, frmmain, "cdmnactihudbu", "cmdodebrathudbu", "seznamhudby", "Hudby", "PocetHudeb", "T61", "T62", "txtjmenohudby", "txthudbanazev", "txthudbahlasitost", "txthudbahloubka"},
  {4, frmcamp5, "cmdnacistradio", "cmdodebratradio", "seznamradia", "RadiaKampane", "PocetRadiiKampane", "T57", "T58", "txtjmenoradia", "txtradiojmeno", "txtradiohlasitost", "txtradiohloubka"},
  {5, frmcamp5, "cmdnacistzvuk", "cmdodebratzvuk", "seznamzvuku", "ZvukyKampane", "PocetZvukuKampane", "T59", "T60", "txtjmenozvuku", "txtnazev", "txtzvukhlasitost", "txtzvukhloubka"},
  {6, frmcamp5, "cdmnactihudbu", "cmdodebrathudbu", "seznamhudby", "HudbyKampane", "PocetHudebKampane", "T61", "T62", "txtjmenohudby", "txthudbanazev", "txthudbahlasitost", "txthudbahloubka"},
}
equal(frmnactizvuky.caption, "Načíst soubor pro rádio...", "title before the first use")
for _, m in ipairs(modes) do
  local mode, form, load, remove, list = m[1], m[2], m[2][m[3]], m[2][m[4]], m[2][m[5]]
  local store, count = m[6], m[7]
  local function named(what) return "mode " .. mode .. ": " .. what end
  form[m[12]].text = "hlasitost" .. mode
  form[m[13]].text = "hloubka" .. mode
  local shown
  on.modal.frmnactizvuky = function(intake)
    shown = intake.modal
    equal(shared.RezimNacitani, mode, named("RezimNacitani"))
    equal(remove.enabled, false, named("removing is off until the intake was there"))
    equal(intake.caption, "T" .. 67 + (mode - 1) % 3, named("the title names the kind"))
    equal(intake.File1.pattern, "*.ogg*", named("the filter is the same in all modes"))
    equal(#intake.seznamsouboru, 0, named("another mode starts with an empty list"))
    equal(shared.PocetSouboru, 0, named("and no paths"))
    intake.Dir1.path = path(source)
    equal(table.concat(intake.File1:names(), "|"), "b;c.OGG|d.ogg.bak|první zvuk.ogg", named("files on offer"))
    intake.File1:select("první zvuk.ogg")
    intake.cmdadd:click()
    intake.File1:select("b;c.OGG")
    intake.cmdadd:click()
    equal(rows(intake.seznamsouboru), "první zvuk.ogg|b;c.OGG", named("files to take"))
    equal(marks(intake.seznamsouboru), "++", named("marked"))
    equal(shared.PocetSouboru, 2, named("paths"))
    equal(shared.CestySouboru[1], path(source), named("a path"))
    intake.cmdopen:click()
    equal(intake.visible, false, named("the form closes"))
  end
  load:click()
  equal(shown, true, named("the intake is modal"))
  equal(remove.enabled, true, named("one may remove now"))
  equal(rows(list), "první zvuk.ogg|b;c.OGG", named("rows"))
  equal(marks(list), "++", named("marks"))
  equal(list.index, -1, named("nothing is highlighted"))
  equal(list[0].tag .. " " .. list[1].tag, "0 1", named("tags"))
  equal(shared[count], 2, named("count"))
  equal(shared[store].bound, 2, named("bound"))
  for n, name in ipairs{"první zvuk.ogg", "b;c.OGG"} do
    local record = shared[store][n - 1]
    for field, want in pairs{Cesta = path(source), Soubor = name, Jmeno = m[8] .. n, Nazev = m[9] .. n,
                             Hlasitost = "hlasitost" .. mode, Hloubka = "hloubka" .. mode} do
      equal(record[field], want, named(field .. " of record " .. n))
    end
    if mode % 3 == 1 then
      equal(record.Postava, "aP" .. n, named("Postava"))
      equal(record.TextCs, "T63" .. n, named("TextCs"))
      for _, text in ipairs{"TextEn", "TextDe", "TextFr", "TextEs", "TextIt"} do equal(record[text], "", named(text)) end
    elseif mode % 3 == 2 then
      equal(record.Titulky.bound, -1, named("no subtitles"))
    end
  end
  equal(form[m[10]].text, m[8] .. "2", named("the box shows the last name"))
  equal(form[m[11]].text, m[9] .. "2", named("and the last title"))
end
equal(#frmmain.seznamradia, 2, "each list has its own")
equal(#frmcamp5.seznamradia, 2, "the campaign's too")
