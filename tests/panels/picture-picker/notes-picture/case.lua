-- The picture beside the notes is one of the folder's, by chance; what cannot be shown is skipped.
dofile(arg[1] .. "/pictures.lua")
start()
equal(frmmain.Ostrovy.path, "", "an empty folder: no picture")
local folder = home .. "/Bfdata/pic"
write_file(folder .. "/a.jpg", jpeg(8, 8))
proc.NactiObrazek()
local first = path(home) .. "\\bfdata\\pic\\a.jpg"
equal(frmmain.Ostrovy.path, first, "the only one")
for _, name in ipairs{"b.jpg", "c.jpg", "d.jpg"} do write_file(folder .. "/" .. name, jpeg(8, 8)) end
local seen = {}
for _ = 1, 400 do
  proc.NactiObrazek()
  seen[frmmain.Ostrovy.path:match("[^\\]*$")] = true
end
check(seen["a.jpg"] and seen["b.jpg"] and seen["c.jpg"] and seen["d.jpg"], "each of four is drawn some time")
os.execute("rm '" .. folder .. "'/*.jpg")
write_file(folder .. "/notes.txt", "no picture")
local before = frmmain.Ostrovy.path
proc.NactiObrazek()
equal(frmmain.Ostrovy.path, before, "what is no picture leaves the old one")
os.execute("rm -r '" .. folder .. "'")
local from = #log()
proc.NactiObrazek()
equal(frmmain.Ostrovy.path .. log():sub(from + 1), before, "a folder that is gone too, without a word")
