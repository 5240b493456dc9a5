-- Only the first 53 faces of the catalogue are looked for when an identity is shown again.
local lines = {}
for i = 0, 59 do lines[#lines + 1] = "Code" .. i .. "\r\nFace " .. i .. "\r\n" end
write_file(home .. "/Bfdata/Faces.dat", table.concat(lines))
-- voices out of order: the halving search passes some by
write_file(home .. "/Bfdata/Speakers.dat", "1\r\nZed\r\n2\r\nAdam\r\n3\r\nMia\r\n")
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
equal(#Form2.ksichty, 61, "all are offered")
for _, face in ipairs{52, 53} do
  Form2.cmdadd:click()
  Form2.ksichty:select(face)
end
equal(shared.Identity[0].Oblicej .. shared.Identity[1].Oblicej, "Code52Code53", "and can be chosen")
Form2.ksichty:select(59)
shared.Identity[1].Oblicej = "Code53"
Form2.seznamidentit:select(0)
equal(Form2.ksichty.text, "Face 52", "the 53rd is found again")
Form2.seznamidentit:select(1)
equal(Form2.ksichty.text .. "/" .. shared.Identity[1].Oblicej, "Face 52/Code53", "the 54th is not, but stays in the record")
Form2.hlasy:select(0)
Form2.seznamidentit:select(0)
Form2.seznamidentit:select(1)
equal(Form2.hlasy.index .. "/" .. shared.Identity[1].Hlas, "-1/Zed", "a voice that the search passes by stays in the record")

-- a code that stands twice: the later row is shown
write_file(home .. "/Bfdata/Faces.dat", "A\r\nfirst\r\nB\r\nother\r\nA\r\nsecond\r\n")
quit()
start("MISSION=" .. work .. "/m.Eden/mission.sqm")
Form2.cmdadd:click()
Form2.seznamidentit:select(0)
equal(Form2.ksichty.text, "second", "of two rows with one code the later")
