-- Files that nobody should have saved. Nothing crashes or hangs, and the log tells of a file that cannot be read.
start()
local function scan(bytes)
  write_file(work .. "/bad.sqm", bytes)
  proc.NactiSqm(path(work .. "/bad.sqm"))
end
shared.Mesic = "kept"
frmmain.txtBrifingJmeno.text = "kept"
proc.NactiSqm(path(work .. "/missing.sqm"))
contains(log(), "Nastala chyba při čtení mise z: " .. path(work) .. "\\missing.sqm, 53, File not found\r\n", "a missing file is logged")
equal(frmmain.txtBrifingJmeno.text, "kept", "and leaves the fields")
make_folder(work .. "/folder.sqm")
proc.NactiSqm(path(work .. "/folder.sqm"))
contains(log(), "Nastala chyba při čtení mise z: " .. path(work) .. "\\folder.sqm, 75, Path/File access error\r\n", "a folder in its place too")

scan("")
equal(shared.Mesic, "kept", "an empty file has no values")
equal(frmmain.txtBrifingJmeno.text, "", "and the fields show the values that there are")
scan(("\0\255\1{}\r\n=;"):rep(5000))
scan("class Mission\n{\nclass Markers\n{\nitems=2;\nclass Item0\n{\nname=\"cut")
equal(shared.Znacky[0].Name, '"cu', "cut in the middle: what stood there, but for the last character")

for _, row in ipairs{{"30000", 30000, 30000}, {"0", 0, 0}, {"abc", 0, 0}, {"2.5", 2, 2}, {"3.5", 4, 4}} do
  scan("class Markers\n{\nitems=" .. row[1] .. ";\nclass Item0\n{\nname=\"x\";\n};\n};\n")
  equal(shared.PocetZnacek, row[2], "count of items=" .. row[1])
  equal(shared.Znacky.bound, row[3], "bound of items=" .. row[1])
end
scan("class Markers\n{\nitems=1;\nclass Item0\n{\nname=\"x\";\n};\n};\n")
scan("class Markers\n{\nitems=-3;\nclass Item0\n{\nname=\"y\";\n};\n};\nmonth=9;\n")
equal(shared.PocetZnacek, -3, "a negative count")
equal(shared.Znacky.bound, 1, "cannot dimension the array")
equal(shared.Mesic, "kept", "and the items run to the end of the file")
scan("class Markers\n{\nitems=99999;\nclass Item0\n{\nname=\"z\";\n};\n};\n")
equal(shared.PocetZnacek, -3, "a count that 16 bits cannot hold is not taken")
scan("class Markers")
scan("class Markers\n{")
scan("class Markers\n{\nitems=5;")
scan(("{\n"):rep(20000))
scan("class Markers\n{\nitems=1;\nclass Item0\n" .. ("{\n"):rep(20000))
scan("class Mission\n{\nclass Sensors\n{\nitems=1;\nclass Item0\n" .. ("}\n"):rep(20000))
-- extra lines behind the last item are dropped
scan("class Markers\n{\nitems=1;\nclass Item0\n{\nname=\"one\";\n};\nname=\"extra\";\n};\n")
equal(shared.Znacky[0].Name, '"one"', "the item")
-- a line of megabytes, values in it
scan('briefingName="' .. ("ž"):rep(1000000) .. '";\nmonth=12;\n')
equal(#shared.BrifingJmeno > 2000000, true, "a long value is kept whole")
equal(shared.Mesic, "12", "and what follows is read")
-- line ends of every kind
for what, eol in pairs{crlf = "\r\n", lf = "\n", cr = "\r"} do
  scan("class Mission" .. eol .. "{" .. eol .. "month=1;" .. eol .. eol .. "day=2;" .. eol .. "hour=3;")
  equal(shared.Mesic .. shared.Den .. shared.Hodina, "123", "line ends: " .. what)
end
