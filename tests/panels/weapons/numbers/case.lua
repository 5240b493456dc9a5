-- Number fields keep digits and blanks up to the first other character, and shared numbers go to the rifles.
start("")
local m = frmmain
local fields = {}
for name, text in ([[M16pocet=1 M16naboje=4 M16GLpocet=1 M4pocet=1 M4naboje=4 HKpocet=1 HKnaboje=4 M60pocet=1 M60naboje=4
  M21pocet=1 M21naboje=4 LLpocet=1 LLnaboje=4 CGLpocet=1 CGLnaboje=4 AALpocet=1 AALnaboje=4 Ak74pocet=1 Ak74naboje=4
  Ak74SUpocet=1 Ak74Sunaboje=4 Ak74GLpocet=1 Ak47pocet=1 Ak47naboje=4 Ak47CZpocet=1 Ak47CZnaboje=4 Ak47GLpocet=1
  SVDDpocet=1 SVDDnaboje=4 Pkpocet=1 Pknaboje=4 RPGLpocet=1 RPGLnaboje=4 AT4Lpocet=1 AT4Lnaboje=4 K32Lpocet=1
  K32Lnaboje=4 kozliceshell=1 kozliceball=4 HGpocet=20 PBpocet=6 Mpocet=6 Mortarpocet=5 Flarepocet=10 SSpocet=10
  FRpocet=10 SSRpocet=10 Bpocet=5 NVpocet=5 txtM16zas=4 txtAk74zas=4 txtAk47zas=4 txtGrenade=4]]):gmatch("(%w+)=(%d+)") do
  equal(m[name].text, text, name .. " at the start")
  fields[#fields + 1] = name
end
for _, name in ipairs{"M16Glnaboje", "Ak74GLnaboje", "Ak47GLnaboje"} do equal(m[name].text, "4", name .. " at the start") end
equal(#fields, 53, "fields")
for _, name in ipairs(fields) do
  for typed, kept in pairs{
    ["12"] = "12", ["12a34"] = "12", ["-5"] = "", [" 1 2 "] = " 1 2 ", ["3,5"] = "3", ["7.5"] = "7", ["čtyři"] = "",
    ["4č4"] = "4", ["1\t2"] = "1", ["9/8"] = "9", ["00700"] = "00700", ["   "] = "   ", ["٣"] = "", [""] = "",
  } do
    m[name].text = typed
    equal(m[name].text, kept, name .. " " .. typed)
  end
end

-- a letter in the middle takes what stands behind it along
m.M4pocet.text = "1234"
m.M4pocet.selstart = 2
m.M4pocet:type("x")
equal(m.M4pocet.text, "12", "typed in the middle")

-- the fields of "n/m"
for _, name in ipairs{"M16Glnaboje", "Ak74GLnaboje", "Ak47GLnaboje"} do
  m[name].text = "4/8 nebo víc"
  equal(m[name].text, "4/8 nebo víc", name .. " stays")
end

-- shared numbers
m.txtGrenade.text = "9"
for _, rifle in ipairs{{"txtM16zas", "M16naboje", "M16Glnaboje"}, {"txtAk74zas", "Ak74naboje", "Ak74GLnaboje"},
  {"txtAk47zas", "Ak47naboje", "Ak47GLnaboje"}} do
  m[rifle[1]].text = "12 x"
  equal(m[rifle[2]].text, "12 ", rifle[2])
  equal(m[rifle[3]].text, "12 /9", rifle[3])
  m[rifle[1]].text = ""
  equal(m[rifle[2]].text, "", rifle[2] .. " emptied")
  equal(m[rifle[3]].text, "/9", rifle[3] .. " emptied")
end
m.txtM16zas.text, m.txtAk47zas.text, m.txtAk74zas.text = "1", "2", "3"
m.M16naboje.text = "77"
m.txtGrenade.text = "5b"
equal(m.M16Glnaboje.text .. " " .. m.Ak47GLnaboje.text .. " " .. m.Ak74GLnaboje.text, "1/5 2/5 3/5", "grenades")
equal(m.M16naboje.text, "77", "grenades are not for the plain rifle")

-- the procedure itself, on any text
m.txtJmenoMise.text = "3. mise"
proc.FiltrujCislo(m.txtJmenoMise)
equal(m.txtJmenoMise.text, "3", "FiltrujCislo")
proc.FiltrujCislo(m.txtJmenoMise)
equal(m.txtJmenoMise.text, "3", "FiltrujCislo again")
