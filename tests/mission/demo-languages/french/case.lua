-- home: fresh
-- The demo among the examples by an author who works in French.
language = "French"
dofile(case_folder .. "/../demo.lua")
