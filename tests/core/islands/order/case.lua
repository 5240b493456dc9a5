-- Islands in the file's order, with tags, arrays, log lines; an unpaired name has an empty suffix.
write_file(home .. "/Bfdata/islands.dat", "Zulu\r\nzz\r\nAlfa \r\n aa\r\nŽ\r\nlast\r\nalone\r\n")
start()
equal(shared.PocetOstrovu, 4, "count")
equal(shared.OstrovyJmena.bound, 3, "names")
equal(shared.OstrovyKoncovky.bound, 3, "suffixes")
equal(shared.OstrovyJmena[1], "Alfa ", "lines as they stand")
equal(shared.OstrovyKoncovky[1], " aa", "blanks and all")
equal(shared.OstrovyKoncovky[3], "", "the unpaired last name has none")
for _, combo in ipairs{frmcamp3.penaltyland, frmcamp3.awardlend} do
  equal(#combo, 4, "rows of " .. combo.name)
  equal(combo[0].text, "Zulu", "in the file's order")
  for i = 0, 3 do equal(combo[i].tag, i, "tag " .. i) end
  equal(combo.index, 0, "the first is selected")
end
in_order(log(), {"Načítání souboru s ostrovy, ", "Jméno ostrovu: Zulu\r\n", "Koncovka ostrovu: zz\r\n", "Jméno ostrovu: alone\r\n", "Koncovka ostrovu: \r\n", "Konec načítání souboru s ostrovy\r\n"}, "log")
