-- Endings: the line of the anchor is the heading, the lines behind it are the text.
start()

local function open_page(name, body)
  local folder = mission(name)
  write_file(folder .. "/Briefing.html", crlf(body))
  open_mission(folder, true)
end

open_page("three", [[
<P>
<H2><A name="Debriefing: End1">The <I>sweet</I> end</A></H2>
won
 again
</P>
<H2>no. <A NAME="debriefing:end9">x > y</A><IMG
src="a.jpg">two
<H2><A name="Debriefing: Loose">inside</A></H2>
<H2><A name="Debriefing: End3"></A></H2>
three
]])
equal(rows(frmdebrief.List1), "T121 1|T121 2|T121 3", "rows by counted anchors")
equal(marks(frmdebrief.List1), "+++", "marks")
equal(shared.PocetKoncu, 3, "count")
equal(shared.Konce.bound, 3, "one spare record")
for i, want in ipairs{{"The sweet end", "won again"}, {"no. x > y", "twoinside"}, {"", "three"}} do
  equal(shared.Konce[i - 1].Nadpis, want[1], "heading " .. i)
  equal(shared.Konce[i - 1].Text, want[2], "text " .. i)
  equal(frmdebrief.List1[i - 1].tag, i - 1, "tag " .. i)
end
equal(frmdebrief.List1.index, 0, "the first is highlighted")
equal(frmdebrief.txtjmeno.text, "The sweet end", "its heading is shown")
equal(frmdebrief.txtdebrief.text, "won again", "its text is shown")

-- between other sections
open_page("between", [[
<A name="OBJ_1"></A>
task
<H2><A name="Debriefing: End1">Head</A></H2>
body
<A name="Plan"></A>
plan
]])
equal(rows(frmdebrief.List1), "T121 1", "the rows of the mission before are gone")
equal(shared.Ukoly[0].Text, "task", "the heading is no part of the objective")
equal(shared.Konce[0].Nadpis .. "/" .. shared.Konce[0].Text, "Head/body", "the ending")
equal(frmmain.txtBriefink.text, "plan", "the plan behind it")

-- a heading without a text makes no row; what is read next keeps its own heading
open_page("textless", '<A name="Debriefing: End1">Lost</A>\n<A name="Debriefing: End2">Won</A>\nwell done\n')
equal(rows(frmdebrief.List1), "T121 2", "one row")
equal(shared.PocetKoncu, 2, "count")
equal(shared.Konce[0].Nadpis, "Lost", "first heading")
equal(shared.Konce[1].Nadpis .. "/" .. shared.Konce[1].Text, "Won/well done", "second ending")

-- no ending at all
open_page("none", '<A name="Main"></A>notes\n')
equal(#frmdebrief.List1, 0, "no row")
equal(shared.PocetKoncu, 0, "no ending")
