-- Script files: opening, saving, new ones with their name prompt.
local folder = mission("Skripty čeština.Eden")
write_file(folder .. "/a.sqs", "DOMOVE ; DOMOVE\nlast")
write_file(folder .. "/b; rm.sqs", "\"x\"\r\n")
write_file(folder .. "/prázdný.sqs", "")
write_file(folder .. "/readme.txt", "no script")
write_file(home .. "/Bfdata/edit.dat", crlf("@PRIKAZY\ndoMove\n"))
start()
open_mission(folder)
local s, list = frmmain.skript, frmmain.otevreneskripty
equal(s.text, "T85", "the text of a new script")
equal(shared.CestaSkriptu, "", "no path yet")
equal(table.concat(list:names(), "|"), "a.sqs|b; rm.sqs|prázdný.sqs", "the scripts of the folder")
list:select("a.sqs")
equal(s.text, "doMove ; DOMOVE\r\nlast\r\n", "each line with CR LF, coloured")
equal(s:style(0).bold, true, "coloured")
equal(shared.CestaSkriptu, list.path .. "/a.sqs", "folder, slash, name")
frmmain.cmdsave:click()
equal(read_file(folder .. "/a.sqs"), "doMove ; DOMOVE\r\nlast\r\n\r\n", "the text and one more CR LF")
list:select("b; rm.sqs")
equal(s.text, "\"x\"\r\n", "a name with a blank and a semicolon")
list:select("prázdný.sqs")
equal(s.text, "", "an empty script")
equal(shared.PovolBarvy, -1, "colouring while typing is on")

-- a file that went away
list:select("a.sqs")
os.remove(folder .. "/b; rm.sqs")
list:select("b; rm.sqs")
equal(s.text, "", "nothing is read")
equal(shared.CestaSkriptu, list.path .. "/b; rm.sqs", "the rest is done")
equal(shared.PovolBarvy, -1, "and colouring is on again")

-- a new one
frmmain.cmdnew:click()
equal(s.text .. shared.CestaSkriptu, "", "empty, no path")
s.text = "nový"
local asked
on.prompt = function(text, title, default) asked = text .. "|" .. title .. "|" .. default end
frmmain.cmdsave:click()
equal(asked, "T90|T89|", "the prompt")
equal(listing(folder), "a.sqs mission.sqm prázdný.sqs readme.txt", "a cancelled prompt saves nothing")
equal(shared.CestaSkriptu, "", "and sets no path")
on.prompt = function() return "nový" end
frmmain.cmdsave:click()
equal(read_file(folder .. "/nový.sqs"), "nov\xFD\r\n", "written in the code page of the game")
equal(shared.CestaSkriptu, shared.CestaMise .. "/nový.sqs", "mission folder, slash, name")
equal(table.concat(list:names(), "|"), "a.sqs|nový.sqs|prázdný.sqs", "the list shows it")
asked = nil
on.prompt = function() asked = true end
frmmain.cmdsave:click()
equal(asked, nil, "now it has a name")
frmmain.cmdnew:click()
on.prompt = function() return "" end
frmmain.cmdsave:click()
equal(read_file(folder .. "/.sqs"), "\r\n", "an empty name is .sqs in the mission folder")

-- a name that no file can have
frmmain.cmdnew:click()
on.prompt = function() return "no/such" end
frmmain.cmdsave:click()
equal(exists(folder .. "/no"), false, "nothing is made")

-- the procedures
proc.UlozText(path(work) .. "\\plain.txt", "a\nž")
equal(read_file(work .. "/plain.txt"), "a\n\x9E\r\n", "UlozText")
tmpfrm.tmptxt.text = "head "
proc.NactiSkript(path(work) .. "\\plain.txt", tmpfrm.tmptxt)
equal(tmpfrm.tmptxt.text, "head a\r\nž\r\n", "NactiSkript adds to the text")
fails(function() proc.NactiSkript(path(work) .. "\\missing.sqs", tmpfrm.tmptxt) end, "run-time error 53", "a missing script")
