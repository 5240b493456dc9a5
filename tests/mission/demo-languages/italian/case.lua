-- home: fresh
-- The demo among the examples by an author who works in Italian.
language = "Italian"
dofile(case_folder .. "/../demo.lua")
