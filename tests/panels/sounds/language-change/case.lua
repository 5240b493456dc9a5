-- The campaign's language combos are filled when its form loads and when the language changes.
start()
local function tags(combo)
  local numbers = {}
  for i = 0, #combo - 1 do numbers[#numbers + 1] = combo[i].tag end
  return table.concat(numbers, " ")
end
frmcamp5.radiojazyk:select(3)
shared.Texty[28] = "Španělsky"
proc.Jazyky2()
for _, combo in ipairs{frmcamp5.radiojazyk, frmcamp5.zvukyjazyk} do
  equal(rows(combo), "T31|T26|T27|Španělsky|T29|T30", combo.name .. ": cleared and filled anew")
  equal(tags(combo), "1 2 3 4 5 6", combo.name .. ": tags")
  equal(combo.index, 0, combo.name .. ": the first one is chosen")
end
equal(rows(frmmain.radiojazyk), "T31|T26|T27|T28|T29|T30", "the mission's panel is not touched")

-- another pack
local pack = read_file(home .. "/Bfdata/languages/Tv/Test.lng")
write_file(home .. "/Bfdata/languages/Tv/Nova.lng", (pack:gsub("T2(%d)\r\n", "N2%1\r\n")))
on.modal.frmloadsite = function(form)
  for i = 0, #form.List1 - 1 do
    if form.List1[i].text == "Nova.lng" then form.List1:select(i) end
  end
  form.Command1:click()
end
frmcamp5.zvukyjazyk:select(1)
frmmain.mnusetupLanguage:click()
equal(rows(frmcamp5.radiojazyk), "T31|N26|N27|N28|N29|T30", "radiojazyk in the new language")
equal(rows(frmcamp5.zvukyjazyk), "T31|N26|N27|N28|N29|T30", "zvukyjazyk in the new language")
equal(frmcamp5.zvukyjazyk.index, 0, "the first one is chosen again")
