-- An empty catalogue: both combos empty, a count of 0, nothing selected.
write_file(home .. "/Bfdata/islands.dat", "")
start()
equal(shared.PocetOstrovu, 0, "count")
equal(shared.OstrovyJmena.bound, -1, "no names")
equal(shared.OstrovyKoncovky.bound, -1, "no suffixes")
for _, combo in ipairs{frmcamp3.penaltyland, frmcamp3.awardlend} do
  equal(#combo, 0, "rows of " .. combo.name)
  equal(combo.index, -1, "selected in " .. combo.name)
end
check(log():find("Načítání souboru s ostrovy, %d%d:%d%d:%d%d\r\nKonec načítání souboru s ostrovy\r\n"), "its two lines of log")
nothing_failed("no failure")
