-- Captions that have no line of their own take the text of another one; which, was typed by hand.
start()
local function same_captions(form, from, ...)
  local want = from.caption
  check(want:match("^C%d+$"), from.name .. " has a line of its own", want)
  for _, to in ipairs{...} do
    local field = type(to) == "number" and form.Label1[to] or form[to]
    equal(field.caption, want, field.name .. " as " .. from.name)
  end
end
local m = frmmain
same_captions(m, m.cmdnacistradio, "cmdnacistzvuk", "cdmnactihudbu")
same_captions(m, m.cmdodebratradio, "cmdodebratzvuk", "cmdodebrathudbu")
same_captions(m, m.Label1[35], 26, 29, 32)
same_captions(m, m.Label1[36], 27, 30, 33)
same_captions(m, m.Label1[28], 31, 34)
same_captions(m, m.Label1[37], 41, 42)
same_captions(m, m.Label1[53], 0, 4) -- the label over the picture's name loses its own line to this one
same_captions(m, m.Label1[52], 54, 51)
equal(m.Label1[0].caption, "C108", "the later of two")
equal(m.Label1[20].caption, "C80", "of two lines for one label the later")
same_captions(frmcamp3, frmcamp3.cmddelA, "cmddelP")
same_captions(frmcamp3, frmcamp3.cmdaddA, "cdmaddP")
same_captions(frmcamp3, frmcamp3.Label3, "Label4")
same_captions(frmeditsetup, frmeditsetup.BFT, "BVT", "BK1T", "BK2T", "BOT", "BKT")
same_captions(frmeditsetup, frmeditsetup.BFK, "BVK", "BK1K", "BK2K", "BOK", "BKK")
same_captions(frmcamp5, frmcamp5.cmdnacistradio, "cmdnacistzvuk", "cdmnactihudbu")
same_captions(frmcamp5, frmcamp5.cmdodebratradio, "cmdodebratzvuk", "cmdodebrathudbu")
same_captions(frmcamp5, frmcamp5.Label1[37], 41, 42)
local d = frmdalsinast
for _, name in ipairs{"Command2", "cmdadd1", "cmdadd2", "cmdpridat1", "cmdpridat2"} do equal(d[name].caption, m.cmdpridat.caption, name) end
for _, name in ipairs{"Command3", "cmddel1", "cmddel2", "cmdodebrat1", "cmdodebrat2"} do equal(d[name].caption, m.cmdodebrat.caption, name) end
for _, name in ipairs{"Command4", "cmddelall1", "cmddelall2", "cmdelvse1", "cmdelvse2"} do equal(d[name].caption, m.cmdsmazvse.caption, name) end
equal(table.concat({m.cmdpridat.caption, m.cmdodebrat.caption, m.cmdsmazvse.caption}, " "), "C24 C25 C26", "their lines")
-- tabs in their order
local function tabs(strip) local t = {} for i = 0, #strip - 1 do t[#t + 1] = strip:caption(i) end return table.concat(t, " ") end
equal(tabs(m.SSTab1), "C22 C29 C36 C37 C57 C83 C101 C114", "tabs of the main form")
equal(tabs(m.SSTab2), "C115 C116 C117 C118", "tabs of the weapons")
equal(tabs(d.SSTab1), "C288 C294 C296 C313 C315 Readme", "tabs of further settings: the last has no line")
