-- The campaign's overview page: picture and size, text as it is, failures.
dofile(arg[1] .. "/campaign.lua")
local pictures = make_folder(work .. "/obrázky")
local jpeg = "\xff\xd8\xff\xc0\0\x0b\x08\0\x10\0\x20\x01\x01\x11\0\xff\xd9" -- 32 x 16
write_file(pictures .. "/mapa; 1.JPG", jpeg)
write_file(pictures .. "/foto.jpeg", "jpeg")
write_file(pictures .. "/mapa.paa", "paa")
write_file(pictures .. "/vadny.jpg", "no picture")
local folder = make_folder(work .. "/out")
local made = make_folder(folder .. "/Kampaň.Eden")
begin_campaign()
name_campaign(folder, "Kampaň")
local f = frmcampobr
frmcamp5.cmdnext:click()
local function choose(name)
  on.modal.Frmopen = function() shared.ObrazekKampane = name and path(pictures) .. "\\" .. name or "" end
  f.cmdopen:click()
end
local function page() return read_file(made .. "/Overview.html") end
local function write(text) proc.UlozKampanOverview(path(made) .. "\\Overview.html", text) end

-- choosing
on.modal.Frmopen = function()
  equal(shared.RezimOtevreni, 0, "no mode")
  equal(Frmopen.ProKampan, true, "the picker works for the campaign")
  shared.ObrazekKampane = path(pictures) .. "\\mapa; 1.JPG"
end
shared.RezimOtevreni = 9
f.cmdopen:click()
equal(f.imgnahled.path, path(pictures) .. "\\mapa; 1.JPG", "preview")
equal(f.imgnahled.width .. "x" .. f.imgnahled.height, "32x16", "its size")
equal(tmpfrm.tmpkamppic.width, 32, "and in the scratch field")
equal(f.lbljmeno.caption, "mapa; 1.JPG", "name")
f.Sirka:select(7)
f.Vyska:select(0)
write("Text")
same_as_kept(made, "Overview.html")
equal(read_file(made .. "/pic.JPG"), jpeg, "the picture lies beside the page")
nothing_failed("nothing fails")

-- a suffix of four letters loses one; no preview of it
choose("foto.jpeg")
equal(f.lbljmeno.caption .. "|" .. f.imgnahled.path, "foto.jpeg|" .. path(pictures) .. "\\mapa; 1.JPG", "the preview stays")
write("Text")
contains(page(), "<IMG src=\"pic.peg\"width=\"256\" height=\"2\">\r\n</P><BR><BR>\r\n", "three letters in the tag")
equal(read_file(made .. "/pic.peg"), "jpeg", "and of the file")
choose("mapa.paa")
write("Text")
equal(read_file(made .. "/pic.paa"), "paa", "a texture is copied as it is")
choose("vadny.jpg")
equal(f.lbljmeno.caption, "vadny.jpg", "a damaged picture is named")

-- a picture that cannot be copied keeps its tag
choose("chybi.jpg")
write("Text")
contains(page(), "<P align=\"center\">\r\n<IMG src=\"pic.jpg\"width=\"256\" height=\"2\">\r\n</P><BR><BR>\r\n", "the tag")
contains(log(), "Nastala chyba při vytváření overview pro kampaň do: " .. path(made) ..
  "\\Overview.html, 53, File not found\r\n", "and a line in the log")

-- no picture
f.cmdnoimage:click()
equal(shared.ObrazekKampane .. f.lbljmeno.caption .. f.imgnahled.path, "", "taken back")
equal(Frmopen.ProKampan, false, "the picker works for the mission again")
write("")
lacks(page(), "<P align", "no block for it")
contains(page(), "<BR><BR>\r\n<BR><BR>\r\n<P>\r\n\r\n</P>\r\n<BR><BR>\r\n</BODY>\r\n</HTML>\r\n", "an empty text is an empty line")
equal(page():sub(-9), "</HTML>\r\n", "one line end behind the page")

-- a folder that is missing costs the file, not the program
proc.UlozKampanOverview(path(work) .. "\\neni\\Overview.html", "Text")
contains(log(), "do: " .. path(work) .. "\\neni\\Overview.html, 76, Path not found\r\nKonec vytváření overview pro kampaň\r\n",
  "logged")
