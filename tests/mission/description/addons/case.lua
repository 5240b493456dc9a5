-- Add-on weapons in the two pools: which are written, numbers that are rounded, grenades that were declared before.
start("MISSION=" .. mission_folder .. "/mission.sqm")
local m = frmmain
m.seznamakci:select(2)
local errors
local function pools()
  local from = #log()
  m.cmdvytvor:click()
  errors = {}
  for number in log():sub(from + 1):gmatch("Nastala chyba při ukládání Description.ext do složky: [^\r]-, (%d+, %d+)\r\n") do
    errors[#errors + 1] = number
  end
  errors = table.concat(errors, "; ")
  local text = read_file(mission_folder .. "/Description.ext")
  return text:match("\r\nclass Weapons\r\n{\r\n(.-)};\r\n\r\nclass Magazines\r\n{\r\n(.-)};\r\n\r\nclass CfgRadio\r\n")
end
for row, class in ipairs{"První zbraň", "Druha"} do
  m.cmdaddweapon:click()
  m.seznamzbrani:select(row - 1)
  m.Text1[1].text = class
end
m.seznamzbrani:select(0)
m.Text1[4].text = "3"
m.Text1[3].text = "  12 kusů"
local weapons, magazines = pools()
equal(weapons .. magazines, "", "a new weapon is not marked")
m.seznamzbrani:mark(0, true)
m.seznamzbrani:mark(1, true)
weapons, magazines = pools()
equal(weapons, "class Prvn\237 zbra\242\r\n   {count = 3;};\r\n", "the second has no pieces")
equal(magazines, "class Prvn\237 zbra\242\r\n   {count =   12 kus\249;};\r\n", "the magazines as they stand")

-- with a launcher
m.seznamzbrani:select(0)
m.Text1[1].text = "A"
m.Check1.value = 1
m.Text1[5].text = "Gran"
for _, case in ipairs{
  {"4/8", "4", "8", ""},
  {"2.5/3.5", "2", "4", ""},
  {" 7 / 9 ", "7", "9", ""},
  {"32767/0", "32767", "0", ""},
  {"4/", "4", nil, "13, 13"},
  {"4x/8", nil, "8", "13, 13"},
  {"40000/8", nil, "8", "6, 6"},
  {"4/8/2", "4", nil, "13, 13"},
  {"5", nil, "5", "5, 5"}, -- no part before the stroke, and what follows it is all
} do
  local text, n, k, wanted = case[1], case[2], case[3], case[4]
  m.Text1[3].text = text
  weapons, magazines = pools()
  equal(magazines, "class A\r\n" .. (n and "   {count = " .. n .. ";};\r\n" or "") .. "class Gran\r\n" ..
    (k and "   {count = " .. k .. ";};\r\n" or ""), "magazines " .. text)
  equal(errors, wanted, "log of " .. text)
end
m.Text1[3].text = "0/8"
weapons, magazines = pools()
equal(magazines, "", "no magazines, no grenades")

-- the second weapon has the same grenades; the names are compared whole and ignoring case
m.Text1[3].text = "4/8"
m.seznamzbrani:select(1)
m.Text1[1].text = "B"
m.Text1[3].text = "1/2"
m.Check1.value = 1
local first = "class A\r\n   {count = 4;};\r\nclass Gran\r\n   {count = 8;};\r\nclass B\r\n   {count = 1;};\r\n"
for grenades, declared in pairs{Gran = "", GRAN = "", GrenadeLauncher = "", Gra = "class Gra\r\n   {count = 2;};\r\n"} do
  m.Text1[5].text = grenades
  weapons, magazines = pools()
  equal(magazines, first .. declared, "grenades " .. grenades)
end
