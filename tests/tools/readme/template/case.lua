-- Tags of the readme template.
start()
local function fill(template)
  write_file(work .. "/t.txt", template)
  proc.NactiReadme(path(work .. "/t.txt"), frmdalsinast.txtdokument)
  return frmdalsinast.txtdokument.text
end
frmmain.txtJmenoMise.text = "Útok <1>"
shared.Nastaveni.UzivatelJmeno = "Žofie"
shared.Nastaveni.UzivatelMail = "z@example.org"
equal(fill("no tags; \"a, b\"\r\n"), "no tags; \"a, b\"\r\n", "a line without tags")
equal(fill("a<MISSION>b<mail>c<Name>d"), "aÚtok <1>bz@example.orgcŽofied\r\n", "tags in any case, several on a line")
equal(fill("x<B>y</B>z< NAME >w<>\r\n"), "xyzw\r\n", "any other tag is dropped")
equal(fill("a < b\r\n<NAME>\r\n"), "a \r\nŽofie\r\n", "an open one takes the rest of its line and no more")
equal(fill("a<b<NAME>c > d\r\n"), "ac > d\r\n", "an open one within a tag belongs to it; a lone > is text")
equal(fill("\xC8\xE1ra\n\nb"), "Čára\r\n\r\nb\r\n", "code page and line ends")
equal(fill("-<ADDONS>-"), "--\r\n", "no add-ons")
equal(fill(""), "", "an empty template")
equal(fill("a\0<NAME>\x81"), "a\0Žofie\u{81}\r\n", "odd bytes")
equal(#fill(("line <NAME>\r\n"):rep(20000)), #"line Žofie\r\n" * 20000, "a long one")

frmdalsinast.txtdokument.text = "old"
local missing = path(work) .. "\\none.txt"
proc.NactiReadme(missing, frmdalsinast.txtdokument)
equal(frmdalsinast.txtdokument.text, "", "a missing template empties the field")
contains(log(), "Chyba pri nacitani Readme z: " .. missing .. ", 53, File not found\r\n", "and is logged")
