-- Awards and penalties: adding, cancelling, limits, islands, removal, and the penalty that ends the campaign.
dofile(arg[1] .. "/campaign.lua")
local a, b, c = mission("Chvála.Eden"), mission("Pochod.Cain"), mission("Sláva.Abel")
start()
equal(shared.ZadnaUkoncovaci, -1, "no penalty terminates at first")
equal(frmcamp3.awardlimit.text .. frmcamp3.penaltylimit.text, "20-10", "limits at first")
frmcamp1.cmdstorno:click()
equal(frmcamp3.awardlimit.text .. frmcamp3.penaltylimit.text, "10-10", "limits of a new run")
local f = frmcamp3
equal(rows(f.awardlend) .. "/" .. rows(f.penaltyland), "Everon|Malden|Kolgujev/Everon|Malden|Kolgujev", "islands")

local kinds = {
  {list = f.awardlist, add = f.cmdaddA, remove = f.cmddelA, pick = f.Command2, limit = f.awardlimit, island = f.awardlend,
    folder = f.txtcesta2, records = "Odmeny", count = "PocetOdmen", text = "Award ", sign = 1},
  {list = f.penaltylist, add = f.cdmaddP, remove = f.cmddelP, pick = f.Command1, limit = f.penaltylimit,
    island = f.penaltyland, folder = f.txtcesta, records = "Tresty", count = "PocetTrestu", text = "Penalty ", sign = -1},
}
for _, k in ipairs(kinds) do
  local what = k.text
  local function R(i) return shared[k.records][i] end
  local function limits()
    local t = {}
    for i = 0, #k.list - 1 do t[#t + 1] = R(i).Limit * k.sign end
    return table.concat(t, ",")
  end
  equal(k.remove.enabled or k.pick.enabled, false, what .. "nothing to remove or pick for")

  -- cancelled: the list stays as it was
  pick(nil) k.add:click()
  equal(#k.list .. "," .. shared[k.count] .. "," .. shared[k.records].bound, "0,0,0", what .. "a cancelled one")
  equal(k.remove.enabled or k.pick.enabled, false, what .. "a cancelled one enables nothing")
  equal(events[#events].kind .. shared.RezimOtevreni, "modal7", what .. "the picker's mode")

  pick(a) k.add:click() k.add:click() k.add:click()
  equal(rows(k.list), ("%s1|%s2|%s3"):gsub("%%s", k.text), what .. "rows")
  equal(marks(k.list), "+++", what .. "new rows are marked")
  equal(k.list[2].tag, 2, what .. "tag of a row")
  equal(shared[k.records].bound .. "," .. shared[k.count], "3,3", what .. "bound and count")
  equal(R(2).Soubory.bound, 3, what .. "one folder per island and a spare one")
  equal(limits(), "10,20,30", what .. "the limits run by themselves")
  equal(R(2).Soubory[0] .. "|" .. R(2).Soubory[1], path(a) .. "|", what .. "the chosen island's folder")
  equal(k.folder.text, "Chvála.Eden", what .. "its name")
  equal(k.remove.enabled and k.pick.enabled, true, what .. "commands are enabled")
  pick(nil) k.add:click()
  equal(#k.list .. "," .. shared[k.count] .. "," .. shared[k.records].bound, "3,3,3", what .. "a cancelled fourth")

  -- limits typed by hand, and texts that are none
  k.list:select(1)
  k.limit.text = tostring(25 * k.sign)
  for _, bad in ipairs({"", "abc", "1x", "99999", "-"}) do
    k.limit.text = bad
    equal(R(1).Limit, 25 * k.sign, what .. "no number: '" .. bad .. "'")
  end
  k.limit.text = " " .. 26 * k.sign .. " "
  equal(limits(), "10,26,30", what .. "blanks do not matter")
  k.island:select(2)
  equal(k.folder.text, "", what .. "no folder on that island")
  pick(b) k.pick:click()
  equal(R(1).Soubory[2] .. "|" .. R(1).Soubory[0], path(b) .. "|" .. path(a), what .. "another island's folder")
  equal(k.folder.text, "Pochod.Cain", what .. "its name")
  equal(limits(), "10,30,30", what .. "each pick resets the limit by the count")
  k.list:select(0)
  equal(k.limit.text .. "|" .. k.folder.text, tostring(10 * k.sign) .. "|", what .. "a click on a row shows its fields")

  -- removing moves the records down
  k.list:select(0)
  k.remove:click()
  equal(rows(k.list), ("%s2|%s3"):gsub("%%s", k.text), what .. "texts keep their numbers")
  equal(k.list[0].tag .. k.list[1].tag, "01", what .. "tags are made anew")
  equal(R(0).Soubory[2] .. "|" .. R(1).Soubory[0], path(b) .. "|" .. path(a), what .. "records move down whole")
  equal(shared[k.records].bound .. "," .. shared[k.count], "2,2", what .. "bound and count after removing")
  k.remove:click()
  equal(#k.list .. "," .. shared[k.count], "2,2", what .. "nothing highlighted, nothing removed")
  k.list:select(1) k.remove:click()
  k.list:select(0) k.remove:click()
  equal(k.remove.enabled or k.pick.enabled, false, what .. "removing the last disables")
  equal(#k.list .. "," .. shared[k.count] .. "," .. shared[k.records].bound, "0,0,0", what .. "all removed")
end

-- the terminating penalty
f.penaltyland:select(0)
pick(c) f.cdmaddP:click() f.cdmaddP:click() f.cdmaddP:click()
boxes()
local function terminating()
  local t = {}
  for i = 0, 2 do t[#t + 1] = shared.Tresty[i].Ukoncovaci end
  return table.concat(t, ",")
end
f.penaltylist:select(0)
f.cmdukon.value = 1
equal(boxes() .. f.cmdukon.value .. terminating(), "H11/ok/information00,0,0", "a higher limit does not terminate")
f.penaltylist:select(2)
f.cmdukon.value = 1
equal(boxes() .. f.cmdukon.value .. terminating(), "10,0,-1", "the lowest does")
equal(shared.ZadnaUkoncovaci, 0, "now one terminates")
f.penaltylist:select(1)
equal(f.cmdukon.value, 0, "another one is highlighted")
f.penaltylimit.text = "-30" -- as low as the third
f.cmdukon.value = 1
equal(boxes() .. f.cmdukon.value .. terminating(), "10,0,-1", "a second one is not stored, the box stays")
f.penaltylist:select(2)
f.cmdukon.value = 0
equal(terminating() .. shared.ZadnaUkoncovaci, "0,0,0-1", "unmarked")
f.penaltylist:select(1)
f.cmdukon.value = 1
equal(terminating(), "0,-1,0", "now the other may terminate")
f.penaltylist:select(1)
f.cmddelP:click()
equal(shared.ZadnaUkoncovaci, -1, "it was removed")
f.penaltylist:select(1)
f.cmdukon.value = 1
equal(shared.Tresty[1].Ukoncovaci, -1, "and another may terminate")
equal(boxes(), "", "no box")
f.cmdstorno:click()
equal(shared.ZadnaUkoncovaci .. "," .. #f.penaltylist, "-1,0", "a new run")

-- as many as the list takes
pick(a)
for _ = 1, 1001 do f.cmdaddA:click() end
equal(#f.awardlist, 1001, "1001 rows")
equal(boxes(), "", "without a word")
f.cmdaddA:click()
equal(boxes(), "Nelze přidat další položku. Byl přečerpán rozsah 1000/ok/critical", "no more")
equal(#f.awardlist .. "," .. shared.PocetOdmen, "1001,1001", "and none is added")

-- the numbers of the classes: by the row, with what was written
local folder = make_folder(work .. "/out")
frmmain.mnucampaignedit:click()
name_campaign(folder, "Řád")
for i = 0, 1000 do f.awardlist:mark(i, i < 12 or i == 98 or i >= 999) end
f.awardlist:mark(3, false)
proc.UlozKampanDescription(path(folder) .. "\\Description.ext")
local classes = {}
for class in read_file(folder .. "/Description.ext"):gmatch("    class (Award[^\r\n]*)\r\n    {") do classes[#classes + 1] = class end
equal(table.concat(classes, ","), "Award01,Award02,Award03,Award04,Award05,Award06,Award07,Award08,Award09,Award 10," ..
  "Award 11,Award 12,Award 12,Award 12", "blanks from the eleventh row on, the last number past a hundred")
