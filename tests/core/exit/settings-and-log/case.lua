-- Every way out writes the settings and saves the log under a name made of the clock.
make_folder(home .. "/Bfdata/LogFiles")
start()
shared.Nastaveni.UzivatelMail = "nova@example.org"
shared.Nastaveni.KomentarBarva = 0x010203
frmmain:close()
local settings = read_file(home .. "/Tarvinfo.cfg")
contains(settings, "\16\0nova@example.org", "the settings are written")
equal(settings:sub(9, 12), "\3\2\1\0", "colours too")
local name = listing(home .. "/Bfdata/LogFiles")
local month, day, year, hour, minute, second = name:match("^TarvLogFile(%d+)_(%d+)_(%d+)_(%d+)_(%d+)_(%d+)%.fec$")
check(second ~= nil, "name of the log file", name)
for what, number in pairs{month = month, day = day, hour = hour, minute = minute, second = second} do
  equal(number, tostring(tonumber(number)), what .. " is not padded")
end
local now = os.date("*t")
equal(tonumber(year), now.year, "the year stands third")
equal(tonumber(month), now.month, "the month first")
local saved = read_file(home .. "/Bfdata/LogFiles/" .. name)
-- the log is in the machine's code page, one more CR LF behind it
equal(saved:sub(-4), "\r\n\r\n", "the whole text and one CR LF")
equal(#saved, #(log():gsub("[\128-\191]", "")) + 2, "nothing else")
contains(saved, "Za\232\237n\225 inicializace programu\r\n", "in the code page")
contains(log(), "Konec programu: ", "the last line")
