-- Pages that are missing, empty, cut off, binary, huge: what can be read is read, failures are logged.
start()

local function failure(page, words)
  return "Nastala chyba při načítání brífingu z: " .. page .. ", " .. words .. "\r\n"
end

local function read_page(name, bytes)
  write_file(work .. "/" .. name, bytes)
  proc.NactiBriefing(path(work .. "/" .. name))
  return frmmain.txtPoznamky.text
end

-- missing
frmmain.txtBriefink.text, frmmain.txtPoznamky.text, frmmain.txtUkol.text = "a", "b", "c"
local missing = path(work .. "/no such; \"page\".html")
local before = #log()
proc.NactiBriefing(missing)
local no_row = failure(missing, "380, Invalid property value")
equal(log():sub(before + 1), failure(missing, "53, File not found") .. no_row .. no_row, "what a missing page logs")
equal(frmmain.txtBriefink.text .. frmmain.txtPoznamky.text .. frmmain.txtUkol.text, "", "the fields are emptied")

-- a folder
proc.NactiBriefing(path(work))
contains(log(), failure(path(work), "75, Path/File access error"), "a folder is no page")

equal(read_page("empty.html", ""), "", "an empty page")
lacks(log(), failure(path(work .. "/empty.html"), "53, File not found"), "an empty page can be opened")

-- names of any kind
equal(read_page("Můj 'brífing'; \"1\".html", '<A name="Main"></A>here'), "here", "a name with blanks and quotes")

-- cut off inside a tag, and inside an anchor
equal(read_page("cut.html", '<A name="Main"></A>text<B'), "text", "cut inside a tag")
equal(read_page("cut.html", '<A name="Main"></A>text\r\n<A name="Pl'), "text", "cut inside an anchor")

-- every byte there is: two are line ends, three are a tag
local bytes = {}
for i = 0, 255 do bytes[#bytes + 1] = string.char(i) end
local notes = read_page("binary.html", '<A name="Main"></A>' .. table.concat(bytes))
equal(utf8.len(notes), 256 - 2 - 3, "characters of a binary page")
equal(notes:sub(1, 5), "\0\1\2\3\4", "it begins with a zero byte")

-- a page in one line, and one in many: the work grows with the size alone
local line = "<B>ab</B> \xe8 "
local text = '<A name="Main"></A>' .. line:rep(400000)
local clock = os.clock()
notes = read_page("line.html", text)
equal(utf8.len(notes), 400000 * 5, "a line of five megabytes")
equal(notes:sub(1, 12), "ab č ab č ", "its text")
notes = read_page("lines.html", (text:gsub("</B>", "</B>\r\n")))
equal(utf8.len(notes), 400000 * 5, "four hundred thousand lines")
check(os.clock() - clock < 20, "the time that both took", os.clock() - clock .. " s")
notes = read_page("brackets.html", '<A name="Main"></A>' .. ("<"):rep(3000000) .. ">end")
equal(notes, "end", "brackets alone")
