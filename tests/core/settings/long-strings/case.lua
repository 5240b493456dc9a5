-- Texts of every length come back; the 16-bit length holds 65,535 bytes.
start()
for _, size in ipairs{0, 1, 255, 256, 32767, 32768, 65535} do
  shared.Nastaveni.UzivatelJmeno = ("ž"):rep(size)
  shared.Nastaveni.UzivatelMail = "behind"
  proc.UlozNastaveni(path(work .. "/s.cfg"))
  proc.NactiNastaveni(path(work .. "/s.cfg"))
  equal(shared.Nastaveni.UzivatelJmeno == ("ž"):rep(size), true, size .. " characters")
  equal(shared.Nastaveni.UzivatelMail, "behind", "and what follows")
end
proc.UlozNastaveni(path(work .. "/nowhere/s.cfg"))
contains(log(), "Nastala chyba při ukládání nastavení do: " .. path(work) .. "\\nowhere\\s.cfg, 76Path not found\r\n", "a failure is logged")
