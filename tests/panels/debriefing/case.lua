-- The editor of the endings.
start()
local d = frmdebrief

local function add(title, text)
  d.txtjmeno.text = title
  d.txtdebrief.text = text
  d.cmdpridat:click()
end

local function records()
  local all = {}
  for i = 0, shared.PocetKoncu - 1 do all[#all + 1] = shared.Konce[i].Nadpis .. "=" .. shared.Konce[i].Text end
  return table.concat(all, "|")
end

local function tags()
  local text = ""
  for i = 0, #d.List1 - 1 do text = text .. d.List1[i].tag end
  return text
end

-- shown and closed
equal(d.visible, false, "not shown at first")
equal(d.txtjmeno.text .. d.txtdebrief.text, "T86T87", "texts of the language pack")
frmmain.cmddebrief:click()
equal(d.visible, true, "shown")
equal(d.modal, false, "beside the main window")
d.txtjmeno.text = "kept"
d.cmdOK:click()
equal(d.visible, false, "closed")
equal(frmmain.visible, true, "the main window is back")
frmmain.cmddebrief:click()
equal(d.txtjmeno.text, "kept", "the fields keep their texts")
d:close()
equal(d.visible, false, "closed by its window")
frmmain.cmddebrief:click()
equal(d.txtjmeno.text, "kept", "the fields keep their texts")

-- txtdebrief rules over the commands
d.txtdebrief.text = ""
equal(d.cmdpridat.enabled or d.cmdodebrat.enabled or d.cmdsmazvse.enabled, false, "without a text they are disabled")
d.txtjmeno.text = "a heading alone"
equal(d.cmdpridat.enabled, false, "a heading is not enough")
d.txtdebrief:type("x")
equal(d.cmdpridat.enabled and d.cmdodebrat.enabled and d.cmdsmazvse.enabled, true, "with a text they are enabled")

add("Vítězství; \"1\"", "first\r\nline")
equal(rows(d.List1), "T121 1", "label")
equal(d.List1[0].marked, true, "marked")
equal(records(), "Vítězství; \"1\"=first\r\nline", "record")
equal(shared.Konce.bound, 1, "one spare record")
equal(d.txtjmeno.text .. d.txtdebrief.text, "", "the fields are emptied")
equal(d.cmdpridat.enabled, false, "so nothing can be added")
equal(d.List1.index, -1, "nothing is highlighted by adding")
add("", "second")
add("Three", "third")
equal(rows(d.List1), "T121 1|T121 2|T121 3", "labels")
equal(tags(), "012", "tags")

-- a click shows the record; typing changes none
d.List1:select(2)
equal(d.txtjmeno.text .. "=" .. d.txtdebrief.text, "Three=third", "the record of the row")
d.txtdebrief.text = "changed"
equal(shared.Konce[2].Text, "third", "typing changes no record")
d.List1:mark(2, false)
equal(d.txtdebrief.text, "third", "the text is back")

-- removing from the middle
d.List1:select(1)
d.cmdodebrat:click()
equal(rows(d.List1), "T121 1|T121 3", "labels keep their numbers")
equal(tags(), "01", "tags close up")
equal(marks(d.List1), "+-", "marks stay with their rows")
equal(records(), "Vítězství; \"1\"=first\r\nline|Three=third", "records close up")
equal(shared.Konce.bound, 2, "one spare record")
d.cmdodebrat:click()
equal(shared.PocetKoncu .. #d.List1, "22", "with nothing highlighted nothing is removed")
add("Four", "fourth")
equal(rows(d.List1), "T121 1|T121 3|T121 3", "numbered by the count")
equal(tags(), "012", "tags")

-- the page: marked ones, without gaps
proc.UlozBriefing(path(work .. "/page.html"), "", "")
local page = read_file(work .. "/page.html")
in_order(page, {'<H2><A name="Debriefing: End1">V\xedt\xeczstv\xed; "1"</A></H2>\r\nfirst\r\nline\r\n</P>',
  '<H2><A name="Debriefing: End2">Four</A></H2>\r\nfourth\r\n</P>'}, "the page")
lacks(page, "third", "an unmarked one is not written")

-- all at once
d.txtdebrief.text = "x"
d.cmdsmazvse:click()
equal(#d.List1 .. "/" .. shared.PocetKoncu .. "/" .. shared.Konce.bound, "0/0/0", "cmdsmazvse")
equal(shared.Konce[0].Nadpis .. shared.Konce[0].Text, "", "the spare record is empty")
equal(d.txtdebrief.text, "x", "the text stays")
d.cmdpridat:click()
equal(rows(d.List1) .. tags(), "T121 10", "and begins anew")
d.List1:select(0)
d.cmdodebrat:click()
equal(shared.PocetKoncu .. "/" .. shared.Konce.bound, "0/0", "the last one is removed")

-- a new mission empties the window
add("Old", "ending")
open_mission(mission("next"))
equal(#d.List1 .. d.txtjmeno.text .. d.txtdebrief.text, "0", "nothing of the mission before")
equal(shared.PocetKoncu, 0, "no ending")
