-- Each row of the two pools alone: its class, its number, its blanks, and nothing else.
start("MISSION=" .. mission_folder .. "/mission.sqm")
local m = frmmain
m.seznamakci:select(2)
local FOUR, THREE = "    ", "   "
local checks = {}
for name in ([[M16 M16GrenadeLauncher M4 HK M60 M21 LawLauncher CarlGustavLauncher AALauncher Ak74 Ak74SU
  Ak74GrenadeLauncher Ak47 Ak47CZ Ak47GrenadeLauncher SVDDragunov PK RPGLauncher AT4Launcher KLauncher Kozlice
  HandGrenade PipeBomb Mine Mortar Flare SmokeShell FlareRed SmokeShellRed Binocular NVGoggles M16zasobniky
  Ak74zasobniky Ak47zasobniky GrenadeLauncher]]):gmatch("%S+") do checks[#checks + 1] = name end

local function only(wanted)
  if wanted then m[wanted].value = 1 end
  for _, name in ipairs(checks) do
    if name ~= wanted then m[name].value = 0 end
  end
end

local function pools()
  m.cmdvytvor:click()
  local text = read_file(mission_folder .. "/Description.ext")
  return text:match("\r\nclass Weapons\r\n{\r\n(.-)};\r\n\r\nclass Magazines\r\n{\r\n(.-)};\r\n\r\nclass CfgRadio\r\n")
end

local function entry(class, blanks, count)
  return class and "class " .. class .. "\r\n" .. blanks .. "{count = " .. count .. ";};\r\n" or ""
end

-- check, class and number field in the weapons, class and number field in the magazines, blanks there
local rows = {
  {"M16", "M16", "M16GLpocet"},
  {"M16zasobniky", nil, nil, "M16", "txtM16zas"},
  {"M16GrenadeLauncher", "M16GrenadeLauncher", "M16GLpocet", "GrenadeLauncher", "txtGrenade"},
  {"M4", "M4", "M4pocet", "M4", "M4naboje"},
  {"HK", "HK", "HKpocet", "HK", "HKnaboje"},
  {"M21", "M21", "M21pocet", "M21", "M21naboje"},
  {"M60", "M60", "M60pocet", "M60", "M60naboje"},
  {"LawLauncher", "LawLauncher", "LLpocet", "LawLauncher", "LLnaboje"},
  {"CarlGustavLauncher", "CarlGustavLauncher", "CGLpocet", "CarlGustavLauncher", "CGLnaboje"},
  {"AALauncher", "AALauncher", "AALpocet", "AALauncher", "AALnaboje"},
  {"Ak74", "Ak74", "Ak74pocet"},
  {"Ak74zasobniky", nil, nil, "Ak74", "txtAk74zas"},
  {"Ak74SU", "Ak74SU", "Ak74SUpocet", "Ak74SU", "Ak74Sunaboje"},
  {"Ak74GrenadeLauncher", "Ak74GrenadeLauncher", "Ak74GLpocet"}, -- no grenades: only the two other launchers bring them
  {"Ak47", "Ak47", "Ak47pocet"},
  {"Ak47zasobniky", nil, nil, "Ak47", "txtAk47zas"},
  {"Ak47CZ", "Ak47CZ", "Ak47CZpocet", "Ak47CZ", "Ak47CZnaboje"},
  {"Ak47GrenadeLauncher", "Ak47GrenadeLauncher", "Ak47GLpocet", "GrenadeLauncher", "txtGrenade"},
  {"SVDDragunov", "SVDDragunov", "SVDDpocet", "SVDDragunov", "SVDDnaboje"},
  {"PK", "PK", "Pkpocet", "PK", "Pknaboje"},
  {"RPGLauncher", "RPGLauncher", "RPGLpocet", "RPGLauncher", "RPGLnaboje"},
  {"AT4Launcher", "AT4Launcher", "AT4Lpocet", "AT4Launcher", "AT4Lnaboje"},
  {"KLauncher", "9K32Launcher", "K32Lpocet", "9K32Launcher", "K32Lnaboje"},
  {"Kozlice", "Kozlice", "kozliceshell", "Kozlice", "kozliceball"},
  {"Binocular", "Binocular", "Bpocet"},
  {"NVGoggles", "NVGoggles", "NVpocet"},
  {"HandGrenade", nil, nil, "HandGrenade", "HGpocet"},
  {"PipeBomb", nil, nil, "PipeBomb", "PBpocet"},
  {"Mine", nil, nil, "Mine", "Mpocet"},
  {"Mortar", nil, nil, "Mortar", "Mortarpocet"},
  {"Flare", nil, nil, "Flare", "Flarepocet"},
  {"SmokeShell", nil, nil, "SmokeShell", "SSpocet", THREE},
  {"FlareRed", nil, nil, "FlareRed", "FRpocet"},
  {"SmokeShellRed", nil, nil, "SmokeShellRed", "SSRpocet"},
  {"GrenadeLauncher"}, -- the check of the grenades alone writes nothing
}
for i, row in ipairs(rows) do
  local check, weapon, pieces, magazine, number, blanks = row[1], row[2], row[3], row[4], row[5], row[6] or FOUR
  only(check)
  if pieces then m[pieces].text = tostring(1000 + i) end
  if number then m[number].text = tostring(2000 + i) end
  local weapons, magazines = pools()
  equal(weapons, entry(weapon, FOUR, 1000 + i), check .. ": weapons")
  equal(magazines, entry(magazine, blanks, 2000 + i), check .. ": magazines")
end

-- the class is the caption of the check, and an empty field stays empty
only("M16")
m.M16pocet.text = "99"
m.M16GLpocet.text = ""
equal((pools()), "class M16\r\n    {count = ;};\r\n", "an empty number")
only(nil)
local weapons, magazines = pools()
equal(weapons .. magazines, "", "nothing on")
