-- home: fresh
-- The demo among the examples by an author who works in Spanish.
language = "Spanish"
dofile(case_folder .. "/../demo.lua")
