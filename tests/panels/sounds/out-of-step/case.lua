-- Removing with nothing highlighted: the row stays, the records move down and the first one is lost.
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
local source = make_folder(work .. "/sounds")
for _, name in ipairs{"a", "b", "c"} do write_file(source .. "/" .. name .. ".ogg", name) end
on.modal.frmnactizvuky = function(form)
  form.Dir1.path = path(source)
  for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, false) end
  for _, name in ipairs{"a.ogg", "b.ogg", "c.ogg"} do form.File1:select(name) form.cmdadd:click() end
  form.cmdopen:click()
end
for _, kind in ipairs{{"cmdnacistradio", "cmdodebratradio", "seznamradia", "Radia", "PocetRadii"},
                      {"cmdnacistzvuk", "cmdodebratzvuk", "seznamzvuku", "Zvuky", "PocetZvuku"},
                      {"cdmnactihudbu", "cmdodebrathudbu", "seznamhudby", "Hudby", "PocetHudeb"}} do
  local load, remove, list = frmmain[kind[1]], frmmain[kind[2]], frmmain[kind[3]]
  local store, count = kind[4], kind[5]
  load:click()
  remove:click()
  equal(rows(list), "a.ogg|b.ogg|c.ogg", store .. ": the rows stay")
  equal(shared[count], 2, store .. ": the count falls")
  equal(shared[store].bound, 2, store .. ": the array too")
  equal(shared[store][0].Soubor, "b.ogg", store .. ": record 0 is the second one")
  equal(shared[store][1].Soubor, "c.ogg", store .. ": record 1 is the third one")
  for i = 0, 2 do equal(list[i].tag, i, store .. ": tag of row " .. i) end
  -- right after a removal nothing is highlighted either
  list:select(0)
  remove:click()
  equal(rows(list), "b.ogg|c.ogg", store .. ": a highlighted row goes")
  equal(list.index, -1, store .. ": and leaves nothing highlighted")
  equal(remove.enabled, true, store .. ": one record is left")
  remove:click()
  equal(rows(list), "b.ogg|c.ogg", store .. ": the second press takes no row")
  equal(shared[count], 0, store .. ": but the last record")
  equal(remove.enabled, false, store .. ": none left")
end

-- opened without taking anything: the command is on, and the count falls below nothing
on.modal.frmnactizvuky = function(form) form.cmdstorno:click() end
frmmain.cmdnacistradio:click()
equal(frmmain.cmdodebratradio.enabled, true, "a cancelled intake switches the command on")
frmmain.cmdodebratradio:click()
equal(shared.PocetRadii, -1, "no guard")
equal(shared.Radia.bound, 0, "the array cannot follow")
equal(frmmain.cmdodebratradio.enabled, false, "and the command goes off")

-- the mission's command drops the subtitles of no sound without a word
frmmain.cmdnacistzvuk:click()
frmmain.cmdel:click()
equal(shared.PocetTextu, 0, "no subtitles")
equal(frmmain.cmdel.enabled, false, "the rest of the command runs")

-- opening another mission empties the lists
on.modal.frmnactizvuky = function(form) form.cmdadd:click() form.cmdopen:click() end
frmmain.cmdnacistzvuk:click()
check(#frmmain.seznamzvuku > 0, "there are sounds again")
open_mission(mission("n.Eden"))
for _, list in ipairs{"seznamradia", "seznamzvuku", "seznamhudby"} do equal(#frmmain[list], 0, list .. " is empty") end
for _, count in ipairs{"PocetRadii", "PocetZvuku", "PocetHudeb"} do equal(shared[count], 0, count) end
for _, store in ipairs{"Radia", "Zvuky", "Hudby", "RadiaKampane", "ZvukyKampane", "HudbyKampane"} do
  equal(shared[store].bound, 0, store .. " has its spare element")
end
