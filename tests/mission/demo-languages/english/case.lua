-- home: fresh
-- The demo among the examples by an author who works in English.
language = "English"
dofile(case_folder .. "/../demo.lua")
