-- Every check of the two pools on, each with a number of its own, score and respawn on, some switches off, add-ons of
-- every sort. Values go to the file as they were typed.
start("MISSION=" .. mission_folder .. "/mission.sqm")
local m = frmmain
m.Skore.value = 1
m.minScore.text = "-5"
m.avgScore.text = ""
m.maxScore.text = "mnoho; bodů"
m.respawn.value = 1
m.Bird.value = true
m.Side.value = true
m.txtcekat.text = "7,5"
m.Debrifing.value = 0
m.showMap.value = 0
m.showWatch.value = 0
m.onloadintro.text = 'Bitva o "Lipany"; část 1'
m.onloadmission.text = "  Poloostrov  "
for name in ([[M16 M16GrenadeLauncher M4 HK M60 M21 LawLauncher CarlGustavLauncher AALauncher Ak74 Ak74SU
  Ak74GrenadeLauncher Ak47 Ak47CZ Ak47GrenadeLauncher SVDDragunov PK RPGLauncher AT4Launcher KLauncher Kozlice
  HandGrenade PipeBomb Mine Mortar Flare SmokeShell FlareRed SmokeShellRed Binocular NVGoggles M16zasobniky
  Ak74zasobniky Ak47zasobniky GrenadeLauncher]]):gmatch("%S+") do m[name].value = 1 end
local number = 100
for name in ([[M16pocet M16GLpocet M4pocet HKpocet M21pocet M60pocet LLpocet CGLpocet AALpocet Ak74pocet Ak74SUpocet
  Ak74GLpocet Ak47pocet Ak47CZpocet Ak47GLpocet SVDDpocet Pkpocet RPGLpocet AT4Lpocet K32Lpocet Bpocet NVpocet
  kozliceshell txtM16zas txtGrenade M4naboje HKnaboje M21naboje M60naboje LLnaboje CGLnaboje AALnaboje txtAk74zas
  Ak74Sunaboje txtAk47zas Ak47CZnaboje SVDDnaboje Pknaboje RPGLnaboje AT4Lnaboje K32Lnaboje HGpocet PBpocet Mpocet
  Mortarpocet Flarepocet SSpocet FRpocet SSRpocet kozliceball]]):gmatch("%S+") do
  m[name].text = tostring(number)
  number = number + 1
end
local function addon(row, class, count, magazines, grenades, marked)
  m.cmdaddweapon:click()
  m.seznamzbrani:select(row)
  m.Text1[1].text = class
  m.Text1[4].text = count
  m.Text1[3].text = magazines
  if grenades then
    m.Check1.value = 1
    m.Text1[5].text = grenades
  end
  if marked then m.seznamzbrani:mark(row, true) end
end
addon(0, "Obycejna", "5", "6", nil, true)
addon(1, "Odlozena", "5", "6", nil, false)
addon(2, "BezKusu", "", "3", nil, true)
addon(3, "BezZasobniku", "2", "0", nil, true)
addon(4, "Granat", "1", "4/8", "VelkyGranat", true)
addon(5, "GranatDruhy", "1", "9/11", "VelkyGranat", true)
addon(6, "GranatHry", "1", "2/3", "GrenadeLauncher", true)
addon(7, "Slovo", "1", "hodne", nil, true)
frmdalsinast.txtstringtable.text = "STRM_Kůň,\"ž, š\"\r\n$STRM_X"
m.seznamakci:select(2)
m.cmdvytvor:click()
