-- The last window: which file is shown, and what the PBO utility is given.
dofile(arg[1] .. "/campaign.lua")
start()
proc.ResetKampan()
local launches = {}
on.launch = function(program, arguments, folder)
  launches[#launches + 1] = program .. "|" .. arguments .. "|" .. folder
  return false -- nobody looks at it
end
shared.CestaKampane, shared.JmenoKampane = "\\kampaně moje", "Boj; o \"most\""
local f = frmcamp7
f.souborylist:scroll(1)
equal(f.ukaz.address, "\\kampaně moje\\Boj; o \"most\".Eden\\Stringtable.csv", "second file")
f.souborylist:scroll(0)
equal(f.ukaz.address, "\\kampaně moje\\Boj; o \"most\".Eden\\Description.ext", "first file")
f.souborylist:scroll(2)
equal(f.ukaz.address, "\\kampaně moje\\Boj; o \"most\".Eden\\Overview.html", "third file")

local function packed(template)
  shared.Nastaveni.ParametryPbo = template
  f.Command1:click()
  return launches[#launches]:match("^\\tools\\tarvpbou%.exe|(.*)|") or launches[#launches]
end
equal(packed("T92,T93,2"), "\\kampaně moje\\Boj; o \"most\".Eden\\mission.sqm,\\kampaně moje\\Boj; o \"most\".pbo,2", "as it comes")
equal(launches[1]:match("|([^|]*)$"), path(home), "started in the program's folder")
shared.CestaKampane, shared.JmenoKampane = "c:\\", "A"
equal(packed("T93,-x,T92"), "c:\\A.pbo,-x,c:\\A.Eden\\mission.sqm", "one backslash behind a drive")
f.souborylist:scroll(0)
equal(f.ukaz.address, "c:\\A.Eden\\Description.ext", "there too")
equal(packed("T92"), "c:\\A.Eden\\mission.sqm", "one token has no comma")
equal(packed("a,,T92,"), "a,,c:\\A.Eden\\mission.sqm,", "empty tokens")
equal(packed(" T92,t93"), " T92,t93", "other words go as they are")
equal(packed(""), "", "an empty template")
equal(#launches, 6, "each press starts it once")
equal(frmsettings.visible, false, "the settings are not asked for")
equal(boxes(), "", "nothing is said")

shared.Nastaveni.CestaPbo = ""
f.Command1:click()
equal(boxes(), "H13/ok/critical", "no utility is set")
equal(frmsettings.visible, true, "the settings are shown")
equal(#launches, 6, "nothing is started")
