-- A settings file of every length from 0 to whole: what is there is read, the rest is cleared, the start goes on.
local whole = read_file(home .. "/Tarvinfo.cfg")
local fields = {} -- name, offset behind the field, value
do
  local at = 1
  local function take(name, format)
    local value, next_at = string.unpack("<" .. format, whole, at)
    at = next_at
    fields[#fields + 1] = {name, at - 1, value}
  end
  for _, group in ipairs{"Funkce", "Komentar", "Konst1", "Konst2", "Operator", "Vybaveni"} do
    take(group .. "Barva", "I4") take(group .. "Tucne", "h") take(group .. "Kurziva", "h")
  end
  take("SouborJazyka", "s2") take("CestaPbo", "s2") take("ParametryPbo", "s2")
  take("UkazovatBarvy", "h") take("UkazovatTipy", "h") take("UzivatelJmeno", "s2") take("UzivatelMail", "s2")
  equal(at - 1 + 3 * 18, #whole, "the fonts end the file")
end
start()
for length = 0, #whole do
  write_file(work .. "/cut.cfg", whole:sub(1, length))
  proc.NactiNastaveni(path(work .. "/cut.cfg"))
  for _, field in ipairs(fields) do
    local name, last, value = field[1], field[2], field[3]
    local want = value
    if length < last then want = type(value) == "string" and "" or 0 end
    local got = shared.Nastaveni[name]
    if got ~= want then equal(got, want, name .. " of a file of " .. length .. " bytes") end
  end
end
equal(shared.Nastaveni.UzivatelMail, "karel@example.org", "the whole file")
