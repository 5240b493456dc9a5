-- Shared values: names, records, arrays, bounds, and what can be written.
start()
equal(shared.CestaMise, "", "a text")
shared.CestaMise = "\\x\\"
equal(shared.CestaMise, "\\x\\", "written")
shared.RezimOtevreni = 7
equal(shared.RezimOtevreni, 7, "a number")
fails(function() shared.RezimOtevreni = 40000 end, "run-time error 6: Overflow", "a number that 16 bits cannot hold")
shared.PovolBarvy = false
equal(shared.PovolBarvy, 0, "a flag may be written as a boolean")
shared.PovolBarvy = true
equal(shared.PovolBarvy, -1, "true is all bits set")
equal(shared.Nastaveni.UzivatelJmeno, "Karel", "a field of a record")
shared.Nastaveni.UzivatelJmeno = "Eva"
equal(shared.Nastaveni.UzivatelJmeno, "Eva", "written")
equal(shared.Texty[33], "T33", "an element")
equal(shared.Texty.bound, 121, "an upper bound")
equal(shared.Zvuky.bound, -1, "never dimensioned")
equal(shared.Texty[66 / 2], "T33", "an index that was computed") -- 33.0, which is the same key in a table of Lua
fails(function() return shared.Texty[0.5] end, "whole number expected", "half an index")
fails(function() return shared.Texty[122] end, "run-time error 9: Subscript out of range", "out of bounds")
fails(function() return shared.Texty[-1] end, "run-time error 9: Subscript out of range", "below 0")
fails(function() return shared.Zvuky[0].Titulky end, "run-time error 9: Subscript out of range", "in an empty array")
fails(function() return shared.Neni end, "no value shared.Neni", "a name that does not exist")
fails(function() return shared.Nastaveni.Neni end, "no value shared.Nastaveni.Neni", "in a record")
fails(function() shared.Texty = {} end, "cannot be written as a whole", "an array as a whole")
equal(shared.Nastaveni.Pisma[1].Velikost, 0, "a record in an array in a record")
shared.Nastaveni.Pisma[1].Velikost = 12
equal(shared.Nastaveni.Pisma[1].Velikost, 12, "written")
shared.CestaProfilu = "\\one"
equal(shared.SlozkaUzivatele, "\\one", "two names of one value")
-- a reference that was kept sees what is there now
local texts = shared.Texty
shared.Texty[5] = "new"
equal(texts[5], "new", "a kept reference")
