-- The panel of radio messages, sounds and music, on the main form and in the campaign's wizard: the same handlers over
-- two stores.
local source = make_folder(work .. "/zvuky \"a\"; šest")
for _, name in ipairs{"a", "b", "c", "d"} do write_file(source .. "/" .. name .. ".ogg", name) end
start()

-- takes the named files through the intake, and nothing that an earlier showing left there
local function take(command, ...)
  local names = {...}
  on.modal.frmnactizvuky = function(form)
    for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, false) end
    form.Dir1.path = path(source)
    for _, name in ipairs(names) do form.File1:select(name) form.cmdadd:click() end
    form.cmdopen:click()
  end
  command:click()
  on.modal.frmnactizvuky = nil
end

-- the texts of records 0 to LAST of a store, a field each
local function column(store, field, last)
  local texts = {}
  for i = 0, last do texts[#texts + 1] = shared[store][i][field] end
  return table.concat(texts, "|")
end

local function panel(f, suffix, other)
  local radio, sounds, music = "Radia" .. suffix, "Zvuky" .. suffix, "Hudby" .. suffix
  local radios, soundcount, musics = "PocetRadii" .. suffix, "PocetZvuku" .. suffix, "PocetHudeb" .. suffix
  local subtitles = "PocetTextu" .. suffix
  local function named(what) return f.name .. ": " .. what end
  for _, field in ipairs{"cmdodebratradio", "cmdodebratzvuk", "cmdodebrathudbu", "cmdadd", "cmdel", "txtzvuk"} do
    equal(f[field].enabled, false, named(field .. " is off at the start"))
  end
  for _, combo in ipairs{"radiojazyk", "zvukyjazyk"} do
    equal(rows(f[combo]), "T31|T26|T27|T28|T29|T30", named(combo .. " holds Czech, German, English, Spanish, Italian, French"))
    for i = 0, 5 do equal(f[combo][i].tag, i + 1, named(combo .. " tag " .. i)) end
    equal(f[combo].index, 0, named(combo .. " shows the first"))
  end

  -- a text typed with nothing highlighted stays in the box and is the next record's
  f.txtradiohlasitost.text = "+3"
  f.txtradiohloubka.text = "vysoko, \"1\""
  take(f.cmdnacistradio, "a.ogg", "b.ogg", "c.ogg")
  equal(rows(f.seznamradia), "a.ogg|b.ogg|c.ogg", named("radio rows"))
  equal(marks(f.seznamradia), "+++", named("new rows are marked"))
  equal(f.seznamradia.index, -1, named("and not highlighted"))
  equal(f.cmdodebratradio.enabled, true, named("the intake lets one remove"))
  equal(shared[radios], 3, named("count"))
  equal(shared[radio].bound, 3, named("one spare element"))
  equal(column(radio, "Jmeno", 2), "T571|T572|T573", named("names"))
  equal(column(radio, "Hlasitost", 2), "+3|+3|+3", named("volume of the box"))
  equal(column(radio, "Hloubka", 2), "vysoko, \"1\"|vysoko, \"1\"|vysoko, \"1\"", named("pitch of the box, as typed"))
  f.txtjmenoradia.text = "Nikdo"
  equal(column(radio, "Jmeno", 2), "T571|T572|T573", named("with nothing highlighted no record changes"))

  -- a radio record in the boxes
  f.seznamradia:press("left")
  equal(f.txtjmenoradia.text, "Nikdo", named("a press with nothing highlighted loads nothing"))
  f.seznamradia:select(1)
  equal(f.txtjmenoradia.text, "T572", named("Jmeno"))
  equal(f.txtradiojmeno.text, "T582", named("Nazev"))
  equal(f.txtpostava.text, "aP2", named("Postava"))
  equal(f.txtradiohlasitost.text, "+3", named("Hlasitost"))
  equal(f.txtradiohloubka.text, "vysoko, \"1\"", named("Hloubka"))
  equal(f.txtradio.text, "T632", named("the Czech text"))
  for _, edit in ipairs{{"txtjmenoradia", "Jmeno", "Žluťoučký kůň; \"x\""}, {"txtradiojmeno", "Nazev", ""},
                        {"txtpostava", "Postava", "aP 7"}, {"txtradiohlasitost", "Hlasitost", "-99"},
                        {"txtradiohloubka", "Hloubka", "abc"}} do
    f[edit[1]].text = edit[3]
    equal(shared[radio][1][edit[2]], edit[3], named(edit[1] .. " goes to the record at once"))
  end
  f.txtpostava:type("8")
  equal(shared[radio][1].Postava, "aP 78", named("typing too"))
  equal(column(radio, "Jmeno", 2), "T571|Žluťoučký kůň; \"x\"|T573", named("the others stay"))
  equal(rows(f.seznamradia), "a.ogg|b.ogg|c.ogg", named("the row stays the file's name"))

  -- six languages
  for i, field in ipairs{"TextCs", "TextDe", "TextEn", "TextEs", "TextIt", "TextFr"} do
    f.radiojazyk:select(i - 1)
    equal(f.txtradio.text, i == 1 and "T632" or "", named("before: " .. field))
    f.txtradio.text = "řeč " .. i .. "\r\ndruhý řádek"
    for j, other_field in ipairs{"TextCs", "TextDe", "TextEn", "TextEs", "TextIt", "TextFr"} do
      local want = j <= i and "řeč " .. j .. "\r\ndruhý řádek" or ""
      equal(shared[radio][1][other_field], want, named("after " .. field .. " was typed: " .. other_field))
    end
  end
  f.radiojazyk:select(2)
  f.seznamradia:press("right")
  equal(f.txtradio.text, "řeč 3\r\ndruhý řádek", named("any button loads, in the chosen language"))
  f.seznamradia:select(0)
  equal(f.txtradio.text, "", named("an empty language stays empty"))
  equal(shared[radio][0].TextCs, "T631", named("and touches no other"))
  f.radiojazyk:select(0)
  equal(f.txtradio.text, "T631", named("back to Czech"))

  -- removing: the records follow the rows
  f.seznamradia:mark(2, false)
  f.seznamradia:select(1)
  f.cmdodebratradio:click()
  equal(rows(f.seznamradia), "a.ogg|c.ogg", named("the row is gone"))
  equal(marks(f.seznamradia), "+-", named("marks go along"))
  equal(column(radio, "Soubor", 1), "a.ogg|c.ogg", named("the record is gone"))
  equal(f.seznamradia[1].tag, 1, named("tags are numbered anew"))
  equal(shared[radios], 2, named("count after removing"))
  equal(shared[radio].bound, 2, named("bound after removing"))
  equal(f.seznamradia.index, -1, named("nothing is highlighted"))
  take(f.cmdnacistradio, "d.ogg")
  equal(column(radio, "Jmeno", 2), "T571|T573|T573", named("a name can exist twice"))
  for last = 3, 1, -1 do
    equal(f.cmdodebratradio.enabled, true, named("removing goes on with " .. last))
    f.seznamradia:select(0)
    f.cmdodebratradio:click()
  end
  equal(f.cmdodebratradio.enabled, false, named("none left: nothing to remove"))
  equal(shared[radios], 0, named("count 0"))
  equal(shared[radio].bound, 0, named("the spare element stays"))

  -- sounds
  take(f.cmdnacistzvuk, "a.ogg", "b.ogg", "c.ogg")
  equal(f.cmdadd.enabled, true, named("the intake of sounds lets one add subtitles"))
  equal(f.cmdel.enabled, true, named("and drop them"))
  equal(shared[sounds][0].Titulky.bound, -1, named("a new sound has none"))
  f.seznamzvuku:select(0)
  equal(f.cmdadd.enabled, true, named("a sound without subtitles: add"))
  equal(f.cmdel.enabled, false, named("but nothing to drop"))
  equal(f.txtzvuk.enabled, false, named("nor to write"))
  for _, edit in ipairs{{"txtjmenozvuku", "Jmeno", "T591"}, {"txtnazev", "Nazev", "T601"},
                        {"txtzvukhlasitost", "Hlasitost", "-10"}, {"txtzvukhloubka", "Hloubka", "1.0"}} do
    equal(f[edit[1]].text, edit[3], named(edit[1]))
    f[edit[1]].text = "ž" .. edit[1]
    equal(shared[sounds][0][edit[2]], "ž" .. edit[1], named(edit[1] .. " edits"))
  end
  equal(shared[subtitles], 0, named("no subtitles"))
  for n = 1, 3 do
    f.cmdadd:click()
    equal(f.txtzvuk.enabled, true, named("a subtitle may be written"))
    equal(f.cmdel.enabled, true, named("or dropped"))
    equal(shared[subtitles], n, named("number of subtitles"))
    equal(shared[sounds][0].Titulky.bound, n, named("their array"))
    equal(shared[sounds][0].Titulky[n - 1].Zapnuto, -1, named("a new one is on"))
    f.seznamtextu:select(n - 1)
    f.txtzvuk.text = "titulek " .. n
  end
  equal(rows(f.seznamtextu), "Text 1|Text 2|Text 3", named("rows of subtitles"))
  equal(marks(f.seznamtextu), "+++", named("marks of subtitles"))
  for i = 0, 2 do equal(f.seznamtextu[i].tag, i, named("tag of subtitle " .. i)) end
  f.seznamtextu:mark(1, false)
  equal(shared[sounds][0].Titulky[1].Zapnuto, 0, named("an unmarked subtitle is off"))
  equal(f.txtzvuk.text, "titulek 2", named("its text is shown"))
  f.zvukyjazyk:select(4)
  equal(f.txtzvuk.text, "", named("no Italian yet"))
  f.txtzvuk.text = "sottotitolo"
  equal(shared[sounds][0].Titulky[1].TextIt, "sottotitolo", named("Italian"))
  equal(shared[sounds][0].Titulky[1].TextCs, "titulek 2", named("Czech beside it"))
  f.zvukyjazyk:select(5)
  f.txtzvuk.text = "sous-titre"
  equal(shared[sounds][0].Titulky[1].TextFr, "sous-titre", named("French"))
  f.zvukyjazyk:select(0)
  -- another sound and back
  f.seznamzvuku:select(1)
  equal(#f.seznamtextu, 0, named("another sound has no subtitles"))
  equal(shared[subtitles], 0, named("none is counted"))
  equal(f.txtzvuk.enabled, false, named("nothing to write"))
  f.seznamzvuku:select(0)
  equal(marks(f.seznamtextu), "+-+", named("back: the marks come from the record"))
  equal(f.seznamtextu.index, -1, named("back: no subtitle is highlighted"))
  equal(shared[subtitles], 3, named("back: number of subtitles"))
  equal(f.txtzvuk.enabled, true, named("back: a subtitle may be written"))
  f.txtzvuk.text = "nikam"
  for i = 0, 2 do
    equal(shared[sounds][0].Titulky[i].TextCs, "titulek " .. i + 1, named("with no subtitle highlighted none changes"))
  end
  f.cmdadd:click()
  equal(rows(f.seznamtextu), "Text 1|Text 2|Text 3|Text 4", named("a fourth one"))
  equal(shared[sounds][0].Titulky[1].TextCs, "titulek 2", named("adding keeps the others"))
  -- the record's name, by the right button
  local before = #events
  f.seznamzvuku:press("left")
  equal(#events, before, named("the left button tells nothing"))
  f.seznamzvuku:press("right")
  equal(events[#events].kind, "box", named("the right one tells the name"))
  equal(events[#events].text, "Jméno: žtxtjmenozvuku", named("of the highlighted sound"))
  equal(events[#events].buttons, "ok", named("with one answer"))
  -- removing a sound takes its subtitles along
  f.seznamzvuku:select(2)
  f.cmdadd:click()
  f.seznamtextu:select(0)
  f.txtzvuk.text = "třetího"
  f.seznamzvuku:select(1)
  f.cmdodebratzvuk:click()
  equal(rows(f.seznamzvuku), "a.ogg|c.ogg", named("the sound is gone"))
  equal(shared[sounds][1].Titulky.bound, 1, named("the next one brings its subtitles"))
  equal(shared[sounds][1].Titulky[0].TextCs, "třetího", named("with their texts"))
  equal(shared[sounds][0].Titulky.bound, 4, named("the one before keeps its own"))
  -- dropping all subtitles
  f.seznamzvuku:select(0)
  f.cmdel:click()
  equal(shared[sounds][0].Titulky.bound, -1, named("no subtitle is left"))
  equal(#f.seznamtextu, 0, named("nor a row"))
  equal(shared[subtitles], 0, named("nor counted"))
  equal(f.txtzvuk.enabled, false, named("nothing to write any more"))
  equal(f.cmdel.enabled, false, named("nothing to drop any more"))
  equal(f.cmdadd.enabled, true, named("adding goes on"))
  for _ = 1, 2 do
    f.seznamzvuku:select(0)
    f.cmdodebratzvuk:click()
  end
  equal(f.cmdodebratzvuk.enabled, false, named("no sound left"))
  equal(f.cmdadd.enabled, true, named("cmdadd stays as it is"))

  -- music
  take(f.cdmnactihudbu, "b.ogg", "d.ogg")
  f.seznamhudby:select(1)
  for _, edit in ipairs{{"txtjmenohudby", "Jmeno", "T612"}, {"txthudbanazev", "Nazev", "T622"},
                        {"txthudbahlasitost", "Hlasitost", "+40"}, {"txthudbahloubka", "Hloubka", "1.0"}} do
    equal(f[edit[1]].text, edit[3], named(edit[1]))
    f[edit[1]].text = "š" .. edit[1]
    equal(shared[music][1][edit[2]], "š" .. edit[1], named(edit[1] .. " edits"))
    lacks(shared[music][0][edit[2]], "š", named(edit[1] .. " edits one record"))
  end
  f.seznamhudby:mark(0, false)
  equal(f.txtjmenohudby.text, "T611", named("a click on the mark shows the record"))
  f.cmdodebrathudbu:click()
  equal(column(music, "Jmeno", 0), "štxtjmenohudby", named("the first piece is gone"))
  equal(shared[musics], 1, named("count of music"))
  equal(shared[soundcount], 0, named("count of sounds"))
  f.seznamhudby:select(0)
  f.cmdodebrathudbu:click()
  equal(f.cmdodebrathudbu.enabled, false, named("no music left"))

  -- the other panel saw nothing of all this
  for _, list in ipairs{"seznamradia", "seznamzvuku", "seznamhudby"} do
    equal(#other[list], 0, named(list .. " of the other panel"))
  end
end

panel(frmmain, "", frmcamp5)
panel(frmcamp5, "Kampane", frmmain)
