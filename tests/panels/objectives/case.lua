-- The list of objectives of a briefing for one side.
start()
local m = frmmain

local function add(text)
  m.txtUkol.text = text
  m.cmdpridat:click()
end

local function tags()
  local text = ""
  for i = 0, #m.List1 - 1 do text = text .. m.List1[i].tag end
  return text
end

local function texts()
  local all = {}
  for i = 0, shared.PocetUkolu - 1 do all[#all + 1] = shared.Ukoly[i].Text end
  return table.concat(all, "|")
end

-- txtUkol rules over the commands
m.txtUkol.text = ""
equal(m.cmdpridat.enabled or m.cmdodebrat.enabled or m.cmdsmazvse.enabled, false, "without a text they are disabled")
m.txtUkol:type("x")
equal(m.cmdpridat.enabled and m.cmdodebrat.enabled and m.cmdsmazvse.enabled, true, "with a text they are enabled")
m.cmdsmaztext:click()
equal(m.txtUkol.text, "", "cmdsmaztext")
equal(m.cmdsmazvse.enabled, false, "disables them, too")

-- adding
add("Ž \"a\"; <B>b</B>")
equal(rows(m.List1), "T112 1", "label of the first")
equal(m.List1[0].marked, true, "it is marked")
equal(shared.PocetUkolu, 1, "count")
equal(shared.Ukoly.bound, 1, "one spare record")
equal(shared.Ukoly[0].Text, "Ž \"a\"; <B>b</B>", "text as typed")
equal(shared.Ukoly[0].Pouzit, -1, "used")
equal(m.txtUkol.text, "", "txtUkol is emptied")
equal(m.List1.index, -1, "nothing is highlighted by adding")
add("two")
add("three")
add("four")
equal(rows(m.List1), "T112 1|T112 2|T112 3|T112 4", "labels")
equal(tags(), "0123", "tags")
equal(texts(), "Ž \"a\"; <B>b</B>|two|three|four", "records")

-- a click shows the record and takes the mark
m.List1:select(1)
equal(m.txtUkol.text, "two", "the text of the row")
m.List1:mark(1, false)
equal(shared.Ukoly[1].Pouzit, 0, "unmarked")
m.txtUkol.text = "changed"
equal(shared.Ukoly[1].Text, "two", "typing changes no record")
m.List1:mark(1, true)
equal(shared.Ukoly[1].Pouzit, -1, "marked")
equal(m.txtUkol.text, "two", "the text is back")
m.List1:mark(2, false)

-- removing: labels keep their numbers, records and tags close up
m.List1:select(1)
m.cmdodebrat:click()
equal(rows(m.List1), "T112 1|T112 3|T112 4", "labels keep their numbers")
equal(tags(), "012", "tags close up")
equal(marks(m.List1), "+-+", "marks stay with their rows")
equal(texts(), "Ž \"a\"; <B>b</B>|three|four", "records close up")
equal(shared.Ukoly[1].Pouzit, 0, "with their marks")
equal(shared.PocetUkolu, 3, "count")
equal(shared.Ukoly.bound, 3, "one spare record")
equal(m.List1.index, -1, "nothing is highlighted")
equal(m.txtUkol.text, "two", "txtUkol stays")

-- nothing highlighted: nothing is removed
m.cmdodebrat:click()
equal(rows(m.List1), "T112 1|T112 3|T112 4", "rows")
equal(texts(), "Ž \"a\"; <B>b</B>|three|four", "records")
equal(shared.PocetUkolu, 3, "count")

-- the next one is numbered by the count
add("five")
equal(rows(m.List1), "T112 1|T112 3|T112 4|T112 4", "a number may come twice")
equal(shared.Ukoly[3].Text, "five", "its record")

-- the page numbers anew
proc.UlozBriefing(path(work .. "/page.html"), "", "")
local page = read_file(work .. "/page.html")
in_order(page, {'<A name="OBJ_1"></A>\r\n\142 "a"; <B>b</B>\r\n', '<A name="OBJ_2"></A>\r\nfour\r\n', '<A name="OBJ_3"></A>\r\nfive\r\n'},
  "anchors without gaps")
lacks(page, "three", "an unmarked one is not written")

-- down to the last
for _ = 1, 4 do
  m.List1:select(0)
  m.cmdodebrat:click()
end
equal(#m.List1, 0, "the list is empty")
equal(shared.PocetUkolu, 0, "count")
equal(shared.Ukoly.bound, 0, "the spare record alone")
equal(m.cmdodebrat.enabled, true, "still enabled: txtUkol has a text")
m.cmdodebrat:click()
equal(shared.PocetUkolu, 0, "nothing to remove")

-- all at once
add("a")
add("b")
m.txtUkol.text = "c"
m.cmdsmazvse:click()
equal(#m.List1, 0, "cmdsmazvse empties the list")
equal(shared.PocetUkolu, 0, "the count")
equal(shared.Ukoly.bound, 0, "and the records")
equal(shared.Ukoly[0].Text, "", "the spare one, too")
equal(m.txtUkol.text, "c", "txtUkol stays")
m.cmdpridat:click()
equal(rows(m.List1) .. shared.Ukoly[0].Text, "T112 1c", "and begins anew")
