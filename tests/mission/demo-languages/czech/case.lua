-- home: fresh
-- The demo among the examples by an author who works in Czech.
language = "Czech"
dofile(case_folder .. "/../demo.lua")
