-- home: fresh
-- The demo among the examples by an author who works in German.
language = "German"
dofile(case_folder .. "/../demo.lua")
