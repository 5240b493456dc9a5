-- How a page is read, line by line.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local page = path(folder) .. "\\page.html"
local function read(text)
  write_file(folder .. "/page.html", text)
  local from = #log()
  frmmain.txtOverview.text = "before"
  proc.NactiOverview(page, frmmain.txtOverview)
  return log():sub(from + 1)
end
local function body(text) read(crlf("<BODY>\n" .. text .. "\n</BODY>\n")) return frmmain.txtOverview.text end

-- the body
read(crlf('before\n<BODY bgcolor="#FFFFFF">on its line\nfirst\nsecond</BODY>\nbehind\n'))
equal(frmmain.txtOverview.text, "firstsecond", "between the body tags; not what stands on the line of the first, but on the line of the last")
read("<body>\r\none\r\n</body>\r\ntwo\r\n")
equal(frmmain.txtOverview.text, "one", "tags in any case")
read("< B O D Y >\r\none\r\n< / B O D Y >\r\ntwo")
equal(frmmain.txtOverview.text, "one", "and with blanks")
read("<BODY></BODY>\r\none\r\n")
equal(frmmain.txtOverview.text, "", "both on one line: no body")
read("<BODY>\none\rtwo\r\nthree")
equal(frmmain.txtOverview.text, "onetwothree", "any line end")
equal(body("a <B>bold</B> word\n <P\n align=center> in a tag of two lines</P>\na > b"), "a bold word  in a tag of two linesa > b", "what stands outside of tags")
equal(body("5 < 6 and 7 > 3"), "5  3", "a sign that is no tag is one to the reader")
equal(body("\142lu\157ou\232k\253 \"k\249\242\"; &amp; \128"), "Žluťoučký \"kůň\"; &amp; €", "the code page; entities stay")

-- the name
frmmain.txtJmenoMise.text = "old"
equal(body('text\n<H2 align="center"><A name="Main">The <I>name</I></A></H2>\nmore'), "textmore", "the name is no part of the text")
equal(frmmain.txtJmenoMise.text, "The name", "the name, without tags")
read('<h2><a NAME = "main">one</a>\r\nText before any body tag\r\n')
equal(frmmain.txtJmenoMise.text, "one", "its anchor with blanks and in any case")
equal(frmmain.txtOverview.text, "Text before any body tag", "the anchor begins the body too")
read('<A name="Main">one</A>\r\n<A name="Main">two</A>\r\n')
equal(frmmain.txtJmenoMise.text, "two", "of several the last")
read("<A name='Main'>three</A>\r\n<A name=Main>four</A>\r\n")
equal(frmmain.txtJmenoMise.text, "two", "other quotes are another anchor: the name stays")
read('<A name="Main"></A>\r\n')
equal(frmmain.txtJmenoMise.text, "", "an empty name")

-- another field
frmmain.txtOverview.text = "mine"
write_file(folder .. "/page.html", "<BODY>\r\nother\r\n</BODY>\r\n")
proc.NactiOverview(page, frmmain.txtPoznamky)
equal(frmmain.txtPoznamky.text .. "/" .. frmmain.txtOverview.text, "other/mine", "the text goes to the field that was named")
equal(tmpfrm.tmptxt1.text, "", "reading builds no page")
