-- Packs of 0, 3 and 5,000 lines, of another encoding, binary, with other line ends, and none at all.
local folder = home .. "/Bfdata/languages/Tv/"
start()
proc.NactiJazyk("")
equal(shared.Texty[1], "T1", "an empty path changes nothing")
proc.NactiJazyk(path(folder) .. "missing.lng")
equal(shared.Texty[1], "T1", "a pack that cannot be opened changes nothing")
equal(shared.Nastaveni.ParametryPbo, "T92,T93,2", "not even the parameters")
proc.NactiJazyk(path(home) .. "\\Bfdata")
equal(shared.Texty[1], "T1", "nor does a folder")

frmmain.txtJmenoMise.text = "typed"
write_file(folder .. "three.lng", "A1\r\n  A2  \r\nA3\r\n")
proc.NactiJazyk(path(folder .. "three.lng"))
equal(shared.Texty[1], "A1", "three lines: the first")
equal(shared.Texty[2], "A2", "trimmed")
equal(shared.Texty[4], "T4", "what the pack lacks stays")
equal(shared.Hlasky[1], "H1", "in both tables")
equal(frmmain.cmdvytvor.caption, "C2", "and the captions")
equal(frmmain.txtJmenoMise.text, "T53", "the default texts are set all the same")

write_file(folder .. "empty.lng", "")
proc.NactiJazyk(path(folder .. "empty.lng"))
equal(shared.Texty[1], "A1", "an empty pack leaves everything")

local lines = {}
for i = 1, 5000 do lines[i] = "L" .. i end
write_file(folder .. "long.lng", table.concat(lines, "\n"))
proc.NactiJazyk(path(folder .. "long.lng"))
equal(shared.Texty[121], "L121", "LF alone ends a line too")
equal(frmdalsinast.Label4.caption, "L462", "line 462 is the last that counts")

write_file(folder .. "utf8.lng", "\239\187\191Žluť\r\n")
proc.NactiJazyk(path(folder .. "utf8.lng"))
equal(shared.Texty[1], "ď»żĹ˝luĹĄ", "another encoding is read as the machine's page, byte by byte")

write_file(folder .. "binary.lng", ("\0\1\2\255\r"):rep(1000))
proc.NactiJazyk(path(folder .. "binary.lng"))
equal(frmmain.visible, true, "binary: the program goes on")
equal(shared.Texty[1], "\0\1\2˙", "its bytes are its text")
