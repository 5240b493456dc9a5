-- Jazyky: rows, tags and first selections; strany3 grows with each run.
start()
local function tags(field) local t = {} for i = 0, #field - 1 do t[#t + 1] = field[i].tag end return table.concat(t, "|") end
for _, name in ipairs{"jazykbrif", "jazykover"} do
  equal(rows(frmmain[name]), "T25|T26|T27|T28|T29|T30|T31|T32", name)
  equal(tags(frmmain[name]), "1|2|3|4|5|6|7|8", "tags of " .. name)
  equal(frmmain[name].index, 0, "selected in " .. name)
end
for _, name in ipairs{"radiojazyk", "zvukyjazyk"} do
  equal(rows(frmmain[name]), "T31|T26|T27|T28|T29|T30", name)
  equal(tags(frmmain[name]), "1|2|3|4|5|6", "tags of " .. name)
  equal(frmmain[name].index, 0, "selected in " .. name)
end
equal(rows(frmmain.strany), "T33|T34|T35|T36", "strany")
equal(rows(frmmain.strany3), "T33|T34|T35|T36", "strany3")
equal(frmmain.strany.index, 0, "selected in strany")
proc.Jazyky()
proc.Jazyky()
equal(#frmmain.strany, 4, "strany is cleared each time")
equal(#frmmain.strany3, 12, "strany3 never")
equal(frmmain.strany3.index, 0, "its first row is selected")
