-- One side: notes, plan, objectives without gaps, ends; the texts go in as they were typed.
start("MISSION=" .. mission_folder .. "/mission.sqm")
frmmain.txtBriefink.text = 'Go to the <A href="marker:cil">target</A>.\r\nSecond line & "quotes" <B>žluť</B>'
frmmain.txtPoznamky.text = "Notes"
shared.PlanZapad = "never, as there is one side"
-- three objectives with their panel, the middle one unmarked
for _, text in ipairs{"First", "Second", "Third"} do frmmain.txtUkol.text = text frmmain.cmdpridat:click() end
shared.Ukoly[1].Pouzit = 0
for _, text in ipairs{"Won", "Never", "Lost"} do
  frmdebrief.txtjmeno.text = text .. " head"
  frmdebrief.txtdebrief.text = text .. " body\r\nof two lines"
  frmdebrief.cmdpridat:click()
end
frmdebrief.List1:mark(1, false)
frmmain.seznamakci:select(0)
frmmain.cmdvytvor:click()
equal(tmpfrm.tmptxt.text:sub(1, 8), "<HTML>\r\n", "the page stands in its hidden field")
