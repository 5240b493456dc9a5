-- Plan, notes and objectives of four sides; variants of the pages' languages.
start()
local m = frmmain
local west, east, guerrilla, civilian = 0, 1, 2, 3

local function add(text)
  m.txtUkol.text = text
  m.cmdpridat:click()
end

-- one side: the combos are hidden and do nothing
add("common")
m.txtBriefink.text = "common plan"
equal(m.strany.visible or m.strany3.visible, false, "hidden at first")
m.strany:select(east)
m.strany3:select(east)
equal(rows(m.List1), "T112 1", "the list stays")
equal(m.txtBriefink.text, "common plan", "the plan stays")
equal(m.txtPoznamky.text, "T9", "the notes stay")
equal(shared.PlanVychod .. shared.PoznamkyVychod, "", "nothing is kept for a side")

-- several sides
m.chkvicestran.value = 1
equal(m.strany.visible and m.strany3.visible, true, "shown")
equal(m.txtBriefink.text, "common plan", "nothing changes before a side is chosen")
m.List1:select(0)
equal(m.txtUkol.text, "", "a row of the common ones has no record of the side's")
m.txtBriefink.text = "for the east"
equal(shared.PlanVychod, "for the east", "the field now writes for the side that the combo names")
m.strany:select(west)
equal(#m.List1, 0, "the west has no objectives")
equal(m.txtBriefink.text, "", "and no plan")
m.txtBriefink:type("Zá")
equal(shared.PlanZapad, "Zá", "kept while typing")
m.strany3:select(guerrilla)
equal(m.txtPoznamky.text, "", "no notes")
m.txtPoznamky.text = "hide; \"quiet\""
m.strany3:select(civilian)
m.txtPoznamky.text = "stay"
m.strany3:select(guerrilla)
equal(m.txtPoznamky.text, "hide; \"quiet\"", "notes come back")
equal(shared.PoznamkyPartyzani .. "/" .. shared.PoznamkyCivilisti, "hide; \"quiet\"/stay", "kept for each side")
equal(shared.PoznamkyZapad .. shared.PoznamkyVychod, "", "and for no other")
equal(shared.PlanZapad, "Zá", "notes and plan choose their sides apart")

-- an emptied field keeps the old text
m.txtBriefink.text = ""
equal(shared.PlanZapad, "Zá", "the plan is kept")
m.strany:select(east)
m.strany:select(west)
equal(m.txtBriefink.text, "Zá", "and comes back")
m.txtPoznamky.text = ""
m.strany3:select(civilian)
m.strany3:select(guerrilla)
equal(m.txtPoznamky.text, "hide; \"quiet\"", "the notes as well")

-- objectives of the sides
add("w1")
add("w2")
equal(rows(m.List1), "T112 1|T112 2", "labels of the language pack")
m.strany:select(civilian)
equal(#m.List1, 0, "none")
add("c1")
m.strany:select(guerrilla)
add("g1")
m.strany:select(east)
add("e1")
m.strany:select(west)
equal(rows(m.List1), "Ukol 1|Ukol 2", "labels of a list that is shown again")
equal(marks(m.List1), "++", "marks")
equal(m.List1[1].tag, 1, "tags")
m.List1:mark(0, false)
equal(m.txtUkol.text, "w1", "the text of the side's record")
equal(shared.UkolyZapad[0].Pouzit, 0, "the mark goes to the side's record")
m.strany:select(east)
m.strany:select(west)
equal(marks(m.List1), "-+", "the mark comes back")
add("w3")
equal(rows(m.List1), "Ukol 1|Ukol 2|T112 3", "a new one")
m.List1:select(0)
m.cmdodebrat:click()
equal(rows(m.List1), "Ukol 2|T112 3", "removed")
equal(shared.PocetUkoluZapad, 2, "count of the west")
equal(shared.UkolyZapad.bound, 2, "one spare record")
equal(shared.UkolyZapad[0].Text .. shared.UkolyZapad[1].Text, "w2w3", "records of the west")
equal(shared.PocetUkoluVychod .. shared.PocetUkoluPartyzani .. shared.PocetUkoluCivilisti, "111", "others keep theirs")
equal(shared.UkolyVychod[0].Text .. shared.UkolyPartyzani[0].Text .. shared.UkolyCivilisti[0].Text, "e1g1c1", "records")
equal(shared.PocetUkolu .. shared.Ukoly[0].Text, "1common", "the common ones are untouched")

-- in a language whose sides are called otherwise all cannot be deleted
m.txtUkol.text = "x"
m.cmdsmazvse:click()
equal(#m.List1, 2, "the list stays")
equal(shared.PocetUkoluZapad, 2, "the count stays")

-- no side: nothing is added
m.strany:select(3)
shared.Texty[36] = "renamed"
m.txtUkol.text = "nobody's"
m.cmdpridat:click()
equal(m.txtUkol.text, "nobody's", "no side of that name: nothing happens")
equal(shared.PocetUkoluCivilisti, 1, "no record")
m.txtBriefink.text = "nobody's plan"
equal(shared.PlanCivilisti, "", "no plan is kept")
shared.Texty[36] = "T36"

-- back to one side
m.chkvicestran.value = 0
equal(m.strany.visible or m.strany3.visible, false, "hidden again")
m.txtBriefink.text = "all of them"
equal(shared.PlanVychod, "for the east", "no side takes it")

-- variants
local briefing, overview = {}, {}
for i = 0, 7 do
  m.jazykbrif:select(i)
  briefing[i + 1] = shared.JazykBrifing
end
for i = 7, 0, -1 do
  m.jazykover:select(i)
  overview[8 - i] = shared.JazykOverview
end
equal(table.concat(briefing, "|"), "|German|English|Spanish|Italian|French|Czech|All", "variants of the briefing")
equal(table.concat(overview, "|"), "All|Czech|French|Italian|Spanish|English|German|", "variants of the overview")
equal(shared.JazykBrifing, "All", "one does not touch the other")
equal(m.txtBriefink.text, "all of them", "a variant changes no text")
