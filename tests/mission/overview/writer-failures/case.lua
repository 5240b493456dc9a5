-- What fails is logged and the next step is run; nothing is shown.
local folder = mission("m.Eden")
write_file(work .. "/source.jpg", "source")
start("MISSION=" .. folder .. "/mission.sqm")
local asked = #events
local function failure(page, number) return "Nastala chyba při ukládání Overview.html do složky: " .. page .. ", " .. number .. "\r\n" end
local function write(page)
  local from = #log()
  proc.UlozOverview(page, "text")
  return log():sub(from + 1)
end
local page = path(folder) .. "\\page.html"

-- the picture is gone: its tag stays
shared.CestaObrazku = path(work) .. "\\gone.jpg"
shared.CilObrazku = path(folder) .. "\\pic.jpg"
equal(write(page), "Vytváření: " .. page .. "\r\n" .. failure(page, "53, File not found"), "a picture that is gone")
contains(read_file(folder .. "/page.html"), '\r\n<P align="center"><IMG src="pic.jpg" width="128" height="64">\r\n</P><BR><BR>\r\n<P>\r\ntext\r\n</P>\r\n', "leaves its tag")
shared.CestaObrazku = ""
contains(write(page), failure(page, "52, Bad file name or number"), "a picture that was never chosen")
contains(read_file(folder .. "/page.html"), '<IMG src="pic.jpg"', "leaves the tag too")

-- the page cannot be written: the picture is copied nevertheless
shared.CestaObrazku = path(work) .. "\\source.jpg"
local lost = path(work) .. "\\no folder\\Overview.html"
local lines = write(lost)
in_order(lines, {"Vytváření: " .. lost .. "\r\n", failure(lost, "76, Path not found")}, "a folder that is not there")
equal(read_file(folder .. "/pic.jpg"), "source", "the picture is copied")
equal(lines:gsub("Nastala chyba", ""):find("Nastala", 1, true), nil, "nothing else is logged")
equal(exists(work .. "/no folder"), false, "the folder is not made")

-- the writer copies over an older picture, but not over a protected one
write_file(work .. "/source.jpg", "newer")
write(page)
equal(read_file(folder .. "/pic.jpg"), "newer", "the picture is copied over an older one")
write_file(work .. "/source.jpg", "newest")
os.execute("chmod a-w '" .. folder .. "/pic.jpg'")
contains(write(page), failure(page, "70, Permission denied"), "a protected picture is a failure")
equal(read_file(folder .. "/pic.jpg"), "newer", "and stays")
equal(#events, asked, "nothing is shown")
