-- Notes and plan: found by their anchors in any layout, the text outside tags alone, the lines run together.
start()

local function read_page(text)
  for _, side in ipairs{"Zapad", "Vychod", "Partyzani", "Civilisti"} do
    shared["Plan" .. side], shared["Poznamky" .. side] = "", ""
  end
  write_file(work .. "/page.html", crlf(text))
  proc.NactiBriefing(path(work .. "/page.html"))
  return frmmain.txtPoznamky.text, frmmain.txtBriefink.text
end

local notes, plan = read_page([[
<HTML>
<TITLE>nothing is read before an anchor</TITLE>
before <H3><A name="Main"></A></H3>
<P>First line
 second  line</P>
<A href="marker:start">link</A>
<B>bold</B><IMG
src="x.jpg"
alt="y">after
<h3><a   NAME = "plan"></a></h3>
Go <BR>east
</BODY>
behind
</HTML>]])
equal(notes, "before First line second  linelinkboldafter", "notes")
equal(plan, "Go eastbehind", "a section stays until the next anchor, also behind the end of the body")
equal(frmmain.chkvicestran.value, 0, "a page for one side")
equal(frmmain.strany.visible, false, "no choice of sides")
equal(frmmain.txtUkol.text, "", "txtUkol is emptied")
equal(shared.PlanZapad, "", "no side's plan")

notes, plan = read_page([[
<A name="Main.west"></A>
nw1
nw2
<A name="Main.east"></A>ne
<a name="main.guerrila"></a>ng
<A NAME="MAIN.CIVILIAN"></A>nc
<A name="Plan.west"></A>pw
<A name="Plan.east"></A>pe
<A name="Plan.guerrila"></A>pg
<A name="Plan.civilian"></A>pc
]])
equal(notes .. plan, "", "the fields are emptied and stay so")
equal(shared.PoznamkyZapad, "nw1nw2", "notes of the west")
equal(shared.PoznamkyVychod, "ne", "notes of the east")
equal(shared.PoznamkyPartyzani, "ng", "notes of the guerrillas")
equal(shared.PoznamkyCivilisti, "nc", "notes of the civilians")
equal(shared.PlanZapad .. shared.PlanVychod .. shared.PlanPartyzani .. shared.PlanCivilisti, "pwpepgpc", "plans")
equal(frmmain.chkvicestran.value, 1, "a page for several sides")
equal(frmmain.strany.visible and frmmain.strany3.visible, true, "the sides can be chosen")
frmmain.strany:select(1)
equal(frmmain.txtBriefink.text, "pe", "the plan of the chosen side")
frmmain.strany3:select(2)
equal(frmmain.txtPoznamky.text, "ng", "the notes of the chosen side")

notes = read_page('<A name="Main"></A>one<A name="Debriefing: End1"></A>\n')
equal(notes, "", "the ending is the last anchor of its line")
equal(frmmain.chkvicestran.value, 0, "an ending does not touch the check")

-- a page with both kinds follows the last anchor
read_page('<A name="Plan.east"></A>e\n<A name="Plan"></A>all\n')
equal(frmmain.chkvicestran.value, 0, "the last anchor is the common one")
equal(shared.PlanVychod, "e", "the side's plan is there all the same")
read_page('<A name="Plan"></A>all\n<A name="Plan.east"></A>e\n')
equal(frmmain.chkvicestran.value, 1, "the last anchor is a side's")
equal(frmmain.txtBriefink.text, "all", "the common plan is there all the same")

-- of several anchors on a line the plan's comes later, wherever it stands
notes, plan = read_page('<A name="Plan"></A>x<A name="Main"></A>y\n')
equal(notes .. "/" .. plan, "/xy", "two anchors on a line")

-- what is no anchor
notes, plan = read_page([[
<A name="Main"></A>a
<A name='Plan'></A>b
<A id="x" name="Plan"></A>c
<A name="Plan.north"></A>d
<A name="Plan"
></A>e
]])
equal(notes .. "/" .. plan, "abcde/", "other quotes, attributes, sides and an anchor that is cut by a line end")

-- angle brackets of the text itself: a stray < hides everything up to the next >, a stray > is text
notes = read_page([[
<A name="Main"></A>5 > 3
1 < 2
hidden
4 > 3 > 2
]])
equal(notes, "5 > 31  3 > 2", "angle brackets")

-- the page is of the other systems as well, and has Czech letters and no line end at its end
write_file(work .. "/page.html", '<A name="Main"></A>\x8elu\x9dou\xe8k\xfd\r k\xf9\xf2\n <BR>"p\xec\x9a\xed";')
proc.NactiBriefing(path(work .. "/page.html"))
equal(frmmain.txtPoznamky.text, 'Žluťoučký kůň "pěší";', "line ends and letters")
