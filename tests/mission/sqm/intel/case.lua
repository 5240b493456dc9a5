-- Intel values: raw texts, found anywhere, in any case, the last one wins; what the labels show.
start()
local function scan(text)
  proc.NactiSqm(path(mission("m", text) .. "/mission.sqm"))
end
scan('class Mission\n{\n\tclass Intel\n\t{\n\t\tbriefingName="Ráno";\n\t\tbriefingDescription="Popis, dlouhý";\n\t\tresistanceWest=1;\n\t\tstartWeather=0.25;\n\t\tforecastWeather=0.5;\n\t\tstartFog=0.1;\n\t\tforecastFog=0.9;\n\t\tmonth=7;\n\t\tday=05;\n\t\thour=6.50;\n\t\tminute=45;\n\t};\n};\n')
-- the file is UTF-8 here, the machine's page is 1250: the bytes come as that page's letters
equal(shared.Mesic, "7", "month") equal(shared.Den, "05", "day") equal(shared.Hodina, "6.50", "hour") equal(shared.Minuta, "45", "minute")
equal(shared.Pocasi, "0.25", "weather") equal(shared.PredpovedPocasi, "0.5", "its forecast")
equal(shared.Mlha, "0.1", "fog") equal(shared.PredpovedMlhy, "0.9", "its forecast")
equal(shared.Spojenci, "T34", "allied to the west")
equal(frmmain.lblMesic.caption, "7", "label of the month")
equal(frmmain.lblDen.caption, "5", "the day as a number")
equal(frmmain.lblHodina.caption, "6.5", "the hour as a number")
equal(frmmain.lblPocasi.caption, "0.25", "raw text of the weather")
equal(frmmain.lblPredpovedPocasi.caption, "0.5", "of its forecast")
equal(frmmain.lblMlha.caption, "0.1", "of the fog")
equal(frmmain.lblPredpovedMlhy.caption, "0.9", "of its forecast")
equal(frmmain.txtSpojenci.text, "T34", "allies")

scan('\t\tBRIEFINGNAME = "A" ;\n\t\tbriefingname="B";\n\t\ttext="see you on Monday";\n\t\tname="StartFogHouse";\n')
equal(shared.BrifingJmeno, '"B"', "the last match wins")
equal(frmmain.txtBrifingJmeno.text, '"B"', "with its quotes")
equal(shared.Den, '"see you on Monday"', "a keyword inside a longer word counts")
equal(frmmain.lblDen.caption, "0", "its number is 0")
equal(shared.Mlha, '"StartFogHouse"', "inside a name too")
equal(shared.Mesic, "7", "what the file lacks stays")

scan("month=;\nday=\nhour\n")
equal(shared.Mesic, "", "an empty value")
equal(shared.Den, '"see you on Monday"', "nothing behind the equals sign: the statement fails and is skipped")
equal(shared.Hodina, "hou", "no equals sign: all but the last character")

-- one line, several keywords
scan("month=1; day=2; hour=3;\n")
equal(shared.Mesic, "1; day=2; hour=3", "each takes the text behind the first equals sign")
equal(shared.Den, "1; day=2; hour=3", "independently")
equal(shared.Hodina, "1; day=2; hour=3", "of the others")
equal(frmmain.lblHodina.caption, "1", "the number at its head")
-- letters of the machine's page
write_file(work .. "/m/mission.sqm", 'briefingName="\142lu\157";\r\n')
proc.NactiSqm(path(work .. "/m/mission.sqm"))
equal(shared.BrifingJmeno, '"Žluť"', "the file is in the machine's code page")
