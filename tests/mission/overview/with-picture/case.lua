-- A page with a picture in its seven variants. The picture is called pic in the mission folder, with the case of its
-- own extension; the sizes are those of the two combos.
local pictures = make_folder(work .. "/obrázky a mapy")
write_file(pictures .. "/Mapa; žlutá.PAA", "not a real picture")
start("MISSION=" .. mission_folder .. "/mission.sqm")
equal(frmmain.Sirka.text .. " x " .. frmmain.Vyska.text, "128 x 64", "sizes at first")
frmmain.txtJmenoMise.text = ""
frmmain.txtOverview.text = ""
frmmain.Sirka:select(7)
frmmain.Vyska:select(0)
shared.CestaObrazku = path(pictures .. "/Mapa; žlutá.PAA")
shared.CilObrazku = path(mission_folder) .. "\\pic.PAA"
shared.JazykOverview = "All"
frmmain.seznamakci:select(1)
local from = #log()
frmmain.cmdvytvor:click()
local order = {}
for name in log():sub(from + 1):gmatch("Vytváření: [^\r]*\\([^\\\r]+)\r\n") do order[#order + 1] = name end
equal(table.concat(order, " "), "Overview.html Overview.German.html Overview.English.html Overview.Spanish.html Overview.Italian.html Overview.French.html Overview.Czech.html", "seven files in this order")
lacks(log():sub(from + 1), "Nastala chyba", "nothing failed")
