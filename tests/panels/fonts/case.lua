-- The fonts of the three editors: chosen, kept in the settings, there again at the next start.
start()
local fields = {[0] = frmmain.txtBriefink, frmmain.txtOverview, frmmain.txtPoznamky}

local function described(font)
  return table.concat({font.name, font.size, tostring(font.bold), tostring(font.italic), tostring(font.strikethrough),
    tostring(font.underline), font.color}, " ")
end

local function kept(i)
  local font = shared.Nastaveni.Pisma[i]
  return table.concat({font.Jmeno, font.Velikost, font.Tucne, font.Kurziva, font.Preskrtnute, font.Podtrzene, font.Barva}, " ")
end

-- cancelled
local before = described(fields[0].font)
frmmain.cmdF[0]:click()
equal(events[1].kind, "font", "the chooser was opened")
equal(described(fields[0].font), before, "the font stays")
equal(kept(0), " 0 0 0 0 0 0", "nothing is kept")

local choice
on.font = function() return choice end
choice = {name = "Courier New", size = 12, bold = true, italic = false, strikethrough = true, underline = false, color = 0x00FF8040}
frmmain.cmdF[1]:click()
equal(described(fields[1].font), "Courier New 12 true false true false 16744512", "the overview's font")
equal(kept(1), "Courier New 12 -1 0 -1 0 16744512", "it is kept")
choice = {name = "Psací písmo", size = 9, bold = false, italic = true, strikethrough = false, underline = true, color = 255}
frmmain.cmdF[2]:click()
equal(described(fields[2].font), "Psací písmo 9 false true false true 255", "the notes' font")
equal(kept(2), "Psací písmo 9 0 -1 0 -1 255", "it is kept")
equal(described(fields[0].font), before, "the plan's stays")
equal(kept(0), " 0 0 0 0 0 0", "its record, too")

-- the chooser begins with the font of its field, and a cancel keeps everything
choice = nil
frmmain.cmdF[1]:click()
equal(described(events[#events].current), "Courier New 12 true false true false 16744512", "what the chooser shows first")
equal(described(fields[1].font), "Courier New 12 true false true false 16744512", "cancelled")
equal(kept(1), "Courier New 12 -1 0 -1 0 16744512", "cancelled")

quit()
local settings = read_file(home .. "/Tarvinfo.cfg")
contains(settings, "\11\0Courier New\xff\xff\0\0\xff\xff\0\0\12\0\0\0\x40\x80\xff\0", "in the settings file")
contains(settings, "\11\0Psac\xed p\xedsmo\0\0\xff\xff\0\0\xff\xff\9\0\0\0\xff\0\0\0", "in the settings file")
start()
equal(described(frmmain.txtOverview.font), "Courier New 12 true false true false 16744512", "at the next start")
equal(described(frmmain.txtPoznamky.font), "Psací písmo 9 false true false true 255", "at the next start")
