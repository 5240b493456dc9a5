-- UlozSqm: the skeleton byte for byte, its log, its failure.
start()
local target = path(work) .. "\\new.sqm"
local from = #log()
proc.UlozSqm(target)
check(log():sub(from + 1):match("^Vytváření Mission%.sqm do: .-new%.sqm, %d%d:%d%d:%d%d\r\nKonec vytváření Mission%.sqm\r\n$"), "log", log():sub(from + 1))
local function section(name, seed, last)
  return "class " .. name .. "\n{\n    addOns[]={};\n    randomSeed=" .. seed .. ".000000;\n    class Intel\n    {\n" .. last .. "\n};\n"
end
same(read_file(work .. "/new.sqm"), crlf("Version = 11.000000;\n" .. section("Mission", "6065155", "    };") .. section("Intro", "7186435", "     };")
  .. section("OutroWin", "1900035", "    };") .. section("OutroLoose", "3372035", "    };") .. "\n"), "33 lines and one more line end")
from = #log()
proc.UlozSqm(path(work) .. "\\nowhere\\new.sqm")
in_order(log():sub(from + 1), {"Vytváření Mission.sqm do: ", "Nastala chyba při ukládání mission.sqm do složky: " .. path(work) .. "\\nowhere\\new.sqm, 76, Path not found\r\n", "Konec vytváření Mission.sqm\r\n"}, "failure")
