-- Objectives: anchors are counted, not read; a record begins with the first character behind its anchor.
start()

local number = 0

local function open_page(body)
  number = number + 1
  local folder = mission("m" .. number)
  write_file(folder .. "/Briefing.html", crlf(body))
  open_mission(folder, true)
  return path(folder .. "/Briefing.html")
end

local function tags(list)
  local text = ""
  for i = 0, #list - 1 do text = text .. list[i].tag end
  return text
end

open_page([[
<P>
<A name="OBJ_7"></A>
First <B>task</B>
goes on
</P><BR><HR><BR>
<P>before <a  NAME = "obj_7"></a>
Second
</P>
]])
equal(rows(frmmain.List1), "T112 1|T112 2", "rows")
equal(tags(frmmain.List1), "01", "tags")
equal(marks(frmmain.List1), "++", "marks")
equal(shared.PocetUkolu, 2, "count")
equal(shared.Ukoly.bound, 2, "one spare record")
equal(shared.Ukoly[0].Text, "First taskgoes on", "text of several lines")
equal(shared.Ukoly[1].Text, "before Second", "text in front of the anchor on its line")
equal(shared.Ukoly[0].Pouzit, -1, "used")
equal(shared.Ukoly[2].Text .. shared.Ukoly[2].Pouzit, "0", "the spare record is empty")
equal(frmmain.List1.index, 0, "the first row is highlighted")
equal(frmmain.txtUkol.text, "First taskgoes on", "and shown")
equal(frmmain.chkvicestran.value, 0, "for all sides")

-- no text, no record: the next one takes its place
open_page('<A name="OBJ_1"></A>\n<BR>\n<A name="OBJ_2"></A>two\n<A name="OBJ_3"></A>\n')
equal(rows(frmmain.List1), "T112 2", "the row of the second anchor alone")
equal(shared.Ukoly[0].Text, "two", "in the first place")
equal(shared.PocetUkolu, 2, "the count is the anchor's")

open_page('<A name="OBJ_1"></A><A name="OBJ_2"></A>both\n')
equal(rows(frmmain.List1), "T112 1", "two anchors of a line count once")

-- the sides: their own counters, no rows
local page = open_page([[
<A name="OBJ_WEST_1"></A>w1
<A name="OBJ_WEST_2"></A>
<A name="OBJ_WEST_3"></A>w3
more
<A name="OBJ_EAST_1"></A>e1
<A name="OBJ_GUERRILA_1"></A>g1
<A name="OBJ_CIVILIAN_1"></A>c1
]])
equal(frmmain.chkvicestran.value, 1, "for several sides")
equal(#frmmain.List1, 0, "no rows")
equal(shared.PocetUkolu, 0, "no common objective")
equal(shared.PocetUkoluZapad, 3, "count of the west")
equal(shared.UkolyZapad.bound, 3, "one spare record")
equal(shared.UkolyZapad[0].Text, "w1", "first of the west")
equal(shared.UkolyZapad[1].Text, "", "the second has no text")
equal(shared.UkolyZapad[1].Pouzit, 0, "and is not used")
equal(shared.UkolyZapad[2].Text, "w3more", "third of the west")
equal(shared.UkolyZapad[2].Pouzit, -1, "used")
equal(shared.UkolyVychod[0].Text .. shared.UkolyPartyzani[0].Text .. shared.UkolyCivilisti[0].Text, "e1g1c1", "others")
equal(shared.PocetUkoluVychod + shared.PocetUkoluPartyzani + shared.PocetUkoluCivilisti, 3, "their counts")
local failure = "Nastala chyba při načítání brífingu z: " .. page .. ", 380, Invalid property value\r\n"
contains(log(), failure .. failure .. "Nalezen soubor Briefing.html", "no row to highlight: one line for each list")
frmmain.strany:select(1)
frmmain.strany:select(0)
equal(rows(frmmain.List1), "Ukol 1|Ukol 2|Ukol 3", "the side's rows")
equal(marks(frmmain.List1), "+-+", "marked as used")

-- a side's anchor counts as a common one too
open_page('<A name="OBJ_WEST_1"></A>west\n<A name="OBJ_1"></A>common\n')
equal(rows(frmmain.List1), "T112 2", "the second anchor that is a common one")
equal(shared.Ukoly[0].Text, "common", "its record is that of its row")
equal(shared.PocetUkolu, 2, "common count")
equal(frmmain.chkvicestran.value, 0, "the last anchor is the common one")

-- a count is a 16-bit number
local many = {}
for i = 1, 32769 do many[i] = '<A name="OBJ_1"></A>' .. i .. "\n" end
page = open_page(table.concat(many))
equal(shared.PocetUkolu, 32767, "the highest count")
equal(#frmmain.List1, 32767, "as many rows")
equal(shared.Ukoly[32766].Text, "327673276832769", "what follows goes to the last one")
failure = "Nastala chyba při načítání brífingu z: " .. page .. ", 6, Overflow\r\n"
contains(log(), failure .. failure, "each anchor too many is logged")
