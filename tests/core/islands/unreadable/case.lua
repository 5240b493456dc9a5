-- A catalogue that cannot be read is logged, and the reading ends as usual.
start()
local from = #log()
proc.NactiOstrovy(path(home) .. "\\Bfdata\\nowhere.dat")
in_order(log():sub(from + 1), {
  "Načítání souboru s ostrovy, ",
  "Nastala chyba při načítání souboru s ostrovy z: " .. path(home) .. "\\Bfdata\\nowhere.dat, 53, File not found\r\n",
  "Konec načítání souboru s ostrovy\r\n"}, "log")
equal(shared.PocetOstrovu, 0, "the count is that of this reading")
