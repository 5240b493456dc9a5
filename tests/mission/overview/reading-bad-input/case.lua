-- Pages that are missing, empty, binary, cut off or huge.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local page = path(folder) .. "\\page.html"
local function read()
  local from = #log()
  proc.NactiOverview(page, frmmain.txtOverview)
  return log():sub(from + 1)
end
frmmain.txtJmenoMise.text = "kept"
frmmain.txtOverview.text = "text"
in_order(read(), {"Nastala chyba při čtení Overview.html ze složky: " .. page .. ", 53, File not found\r\n", "Konec načítání overview\r\n", "Jméno mise: kept\r\nText Overview: \r\n\r\n"}, "a page that is not there")
equal(frmmain.txtOverview.text, "", "the text is emptied")
equal(frmmain.txtJmenoMise.text, "kept", "the name is not")
os.execute("mkdir '" .. folder .. "/page.html'")
contains(read(), "Nastala chyba při čtení Overview.html ze složky: ", "a folder of that name")
os.remove(folder .. "/page.html")
write_file(folder .. "/page.html", "")
lacks(read(), "Nastala chyba", "an empty page is no failure")

local whole = '<BODY>\r\n<A name="Main">name</A>\r\n<P align="center"><IMG src="pic.paa" width="256" height="8">\r\ntext\r\n</BODY>\r\n'
local prefix = shared.CestaMise .. "\\"
for cut = 0, #whole do
  write_file(folder .. "/page.html", whole:sub(1, cut))
  read()
  check(("nametext"):find(frmmain.txtOverview.text, 1, true), "cut at " .. cut, frmmain.txtOverview.text)
  check(shared.CestaObrazku == "" or shared.CestaObrazku == prefix .. "pic.paa", "picture of a page cut at " .. cut, shared.CestaObrazku)
end

local bytes = {}
for i = 0, 255 do bytes[#bytes + 1] = string.char(i) end
bytes = table.concat(bytes)
write_file(folder .. "/page.html", "<BODY>\r\n" .. bytes:rep(40) .. "\0\0")
read()
check(#frmmain.txtOverview.text > 1000, "a binary page is read like any other")

-- a page of some megabytes, in one line or in many, takes no time to speak of
local function seconds(text)
  write_file(folder .. "/page.html", text)
  local before = os.clock()
  read()
  return os.clock() - before
end
for what, line in pairs{["one line"] = "word <B>\232</B> ", ["many lines"] = "word <B>\232</B> \r\n"} do
  local took = seconds("<BODY>\r\n" .. line:rep(300000))
  equal(#frmmain.txtOverview.text, 300000 * #"word č ", what .. ": the whole text")
  check(took < 20, what .. ": is read at once", took .. " s")
end
