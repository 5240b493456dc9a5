-- The picture of a page that is read, and its size.
dofile(arg[1] .. "/pictures.lua")
local folder = mission("m.Eden")
write_file(folder .. "/Mapa žlutá; 1.JpG", jpeg(64, 32))
write_file(folder .. "/broken.jpg", "no picture")
start("MISSION=" .. folder .. "/mission.sqm")
local page = path(folder) .. "\\page.html"
local function read(line)
  write_file(folder .. "/page.html", line .. "\r\n")
  local from = #log()
  proc.NactiOverview(page, frmmain.txtOverview)
  return log():sub(from + 1)
end
local failure = "Nastala chyba při čtení Overview.html ze složky: " .. page .. ", "
local function known() return shared.CestaObrazku .. "|" .. frmmain.lbljmeno.caption .. "|" .. frmmain.Picnahled.path end
local function picture(name) return shared.CestaMise .. "\\" .. name end

-- the name between the first two quotes
lacks(read('<P><img SRC="Mapa \158lut\225; 1.JpG" alt="a map" width="64">'), failure, "a picture is read")
equal(known(), picture("Mapa žlutá; 1.JpG") .. "|" .. picture("Mapa žlutá; 1.JpG") .. "|" .. picture("Mapa žlutá; 1.JpG"), "path, label and preview")
read('text without a picture, src="other.jpg">')
equal(known(), picture("Mapa žlutá; 1.JpG") .. "|" .. picture("Mapa žlutá; 1.JpG") .. "|" .. picture("Mapa žlutá; 1.JpG"), "a line without the tag changes nothing")
read('<IMG  SRC="other.jpg"><IMG src = "other.jpg">')
equal(shared.CestaObrazku, picture("Mapa žlutá; 1.JpG"), "nor does a tag in another spelling")
read('<IMG src="pic.paa">')
equal(known(), picture("pic.paa") .. "|" .. picture("pic.paa") .. "|", "a .paa has no preview")
read('<IMG src="Mapa \158lut\225; 1.JpG">')
contains(read('<IMG src="gone.jpg">'), failure .. "53, File not found\r\n", "a picture that is not there is logged")
equal(known(), picture("gone.jpg") .. "|" .. picture("gone.jpg") .. "|" .. picture("Mapa žlutá; 1.JpG"), "the preview stays")
contains(read('<IMG src="broken.jpg">'), failure .. "481, Invalid picture\r\n", "one that is broken too")
read('<IMG src="two lines')
equal(shared.CestaObrazku, picture("broken.jpg"), "a name that does not end on its line: nothing changes")
equal(read('<IMG src=""'):find(failure, 1, true), nil, "an empty name is no failure")
equal(known(), picture("") .. "|" .. picture("") .. "|", "but the bare folder")
for _, line in ipairs{'<IMG src=pic.jpg>', '<IMG src="pic.jpg>', '<IMG src="a>b.jpg">', '<IMG src=>"pic.jpg"'} do
  read('<IMG src="Mapa \158lut\225; 1.JpG">')
  read(line)
  equal(known(), "||", "no picture: " .. line)
end
shared.CilObrazku = "somewhere"
read('<IMG src="pic.paa">')
equal(shared.CilObrazku, "somewhere", "the place in the mission is left alone")

-- the size
local function sizes() return frmmain.Sirka.index .. " " .. frmmain.Vyska.index end
local function size(line)
  frmmain.Sirka:select(6)
  frmmain.Vyska:select(5)
  local lines = read(line)
  return sizes(), lines
end
for _, r in ipairs{
  {'<IMG src="pic.paa" width="256" height="2">', "7 0", "quoted"},
  {"<IMG src=pic.paa WIDTH=300 Height=16>", "7 3", "plain; 300 falls to 256"},
  {'<TD width ="64" height =8 >', "5 2", "a blank before the sign, any tag"},
  {'<IMG width="3" height="7">', "0 1", "3 falls to 2, 7 to 4"},
  {'<IMG src="pic.paa">', "6 5", "no size: the combos stay"},
  {'<IMG width = 64 height = "16" >', "5 3", "blanks on both sides of the sign"},
  {'<IMG width= 32 height=" 4">', "4 1", "a blank where the number should be"},
  {"<IMG width=32", "4 5", "a number at the end of the line"},
  {'<IMG width="32"', "4 5", "nothing but a quote behind it"},
  {'<IMG width="1""6">', "3 5", "quotes do not count"},
  {"width=4 width=8 ", "1 5", "of two on a line the first"},
} do equal(size(r[1]), r[2], r[3]) end
for _, r in ipairs{
  {'<IMG width="1" height="4">', "6 1", "380, Invalid property value", "a width of 1"},
  {'<IMG width="" height="4">', "6 1", "5, Invalid procedure call or argument", "no number"},
  {'<IMG height="4" width=', "6 1", "5, Invalid procedure call or argument", "the line ends behind the sign"},
  {'<IMG width="0" height="4">', "6 1", "5, Invalid procedure call or argument", "zero"},
  {'<IMG width="512" height="4">', "6 1", "380, Invalid property value", "more than the combos have"},
  {'<IMG width="99999999999999999999" height="4">', "6 1", "380, Invalid property value", "far more"},
  {'<IMG width="50%" height="1">', "4 5", "380, Invalid property value", "a height of 1"},
} do
  local got, lines = size(r[1])
  equal(got, r[2], r[4])
  contains(lines, failure .. r[3] .. "\r\n", r[4])
end
