-- What fails is logged, the number twice and no words; the rest is written and nobody is asked.
start("MISSION=" .. mission_folder .. "/mission.sqm")
local m = frmmain
local function failed(path, number)
  return "Nastala chyba při ukládání Description.ext do složky: " .. path .. ", " .. number .. ", " .. number .. "\r\n"
end
local from = #log()
local nowhere = path(work .. "/není tu/Description.ext")
proc.UlozDescription(nowhere)
local lines = log():sub(from + 1)
in_order(lines, {"Vytváření: " .. nowhere .. "\r\n", failed(nowhere, 76),
  "Vytváření: " .. shared.CestaMise .. "Stringtable.csv\r\n"}, "no folder: the table is written all the same")
check(exists(mission_folder .. "/Stringtable.csv"), "the table of the mission")
check(not exists(mission_folder .. "/Description.ext"), "no description")

-- a folder of that name
make_folder(work .. "/taken")
from = #log()
proc.UlozDescription(path(work .. "/taken"))
check(log():sub(from + 1):find("Nastala chyba při ukládání Description.ext do složky: " .. path(work .. "/taken") .. ", ", 1, true),
  "a folder in the way")

-- a list with more items than records
for row = 0, 1 do
  m.cmdaddweapon:click()
  m.seznamzbrani:select(row)
  m.Text1[0].text = "Z" .. row
  m.Text1[1].text = "Trida" .. row
  m.Text1[3].text = "1"
  m.Text1[4].text = "1"
  m.seznamzbrani:mark(row, true)
end
m.cmdaddweapon:click()
m.seznamzbrani:select(2)
m.cmddelweapon:click()
m.cmddelweapon:click() -- nothing is highlighted: the records move down, the items stay
equal(#m.seznamzbrani, 2, "two items")
equal(shared.Zbrane.bound, 0, "one record")
local target = path(work .. "/Description.ext")
from = #log()
proc.UlozDescription(target)
lines = log():sub(from + 1)
in_order(lines, {"Vytváření: " .. target .. "\r\n", failed(target, 9), failed(target, 9)}, "once for each pool")
contains(read_file(work .. "/Description.ext"), crlf[[
class Weapons
{
class Trida1
   {count = 1;};
};

class Magazines
{
class Trida1
   {count = 1;};
};

class CfgRadio
]], "the record that is there")
equal(#events, 0, "nobody was asked")
