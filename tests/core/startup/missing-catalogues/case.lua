-- A missing catalogue adds its line with the full path, and the start goes on.
for _, name in ipairs{"islands.dat", "commands.dat", "edit.dat"} do os.remove(home .. "/Bfdata/" .. name) end
start()
in_order(log(), {
  "Chybí: " .. path(home) .. "\\Bfdata\\islands.dat\r\n",
  "Chybí: " .. path(home) .. "\\bfdata\\commands.dat\r\n",
  "Chybí: " .. path(home) .. "\\bfdata\\edit.dat\r\n",
  "Konec Inicializace programu\r\n",
}, "the missing files in the order of the start")
lacks(log(), "Chybí: " .. path(home) .. "\\Bfdata\\addons.dat", "add-on weapons are no catalogue that must be there")
equal(shared.PocetOstrovu, 0, "no islands")
equal(#frmmain.prikazy, 0, "no commands")
equal(frmmain.visible, true, "the program runs")
