-- The steps of the start in the run log, what they leave behind, and that nothing is asked when settings exist.
start()
equal(#events, 0, "nothing is asked")
local text = log()
local date, clock = text:match("^Start programu: (%d%d%d%d%-%d%d%-%d%d), (%d%d:%d%d:%d%d)\r\n")
check(date ~= nil and clock ~= nil, "the first line has date and time", text:sub(1, 60))
in_order(text, {
  "Start programu: ", "\r\nZačíná inicializace programu\r\n",
  "Načítání souboru s ostrovy, ", "Jméno ostrovu: Everon\r\nKoncovka ostrovu: Eden\r\n", "Konec načítání souboru s ostrovy\r\n",
  "Konec Inicializace programu\r\n",
}, "the lines in their order")
equal(text:sub(-2), "\r\n", "each line ends in CR LF")

equal(frmmain.SSTab1.enabled, false, "the tabs wait for a mission")
equal(frmmain.seznamakci.enabled, false, "so does the combo of what is written")
equal(frmmain.cmdvytvor.enabled, false, "and Vytvoř")
equal(frmmain.Frame6.visible, false, "the handler of respawn ran")
equal(frmmain.Frame7.visible, false, "the handler of Skore ran")
equal(rows(frmmain.Sirka), "2|4|8|16|32|64|128|256", "picture widths")
equal(rows(frmmain.Vyska), "2|4|8|16|32|64|128|256", "picture heights")
for i = 0, 7 do
  equal(frmmain.Sirka[i].tag, tonumber(frmmain.Sirka[i].text), "tag of width " .. i)
  equal(frmmain.Vyska[i].tag, tonumber(frmmain.Vyska[i].text), "tag of height " .. i)
end
equal(frmmain.Sirka.text, "128", "width at first")
equal(frmmain.Vyska.text, "64", "height at first")
equal(rows(frmmain.seznamakci), "T21|T22|T23|T24", "what Vytvoř writes")
for i = 0, 3 do equal(frmmain.seznamakci[i].tag, i + 1, "its tag " .. i + 1) end
equal(frmmain.seznamakci.index, 3, "all is chosen")
equal(shared.PosledniZbran, -1, "no addons.dat: no add-on weapon")
equal(shared.PovolBarvy, -1, "colouring is allowed at the end of the start")
equal(frmmain.visible, true, "the main form is shown")
equal(frmtips.visible, false, "tips are off")
equal(frmopenmission.chknacist.value, 1, "companion files are read unless the user says otherwise")
