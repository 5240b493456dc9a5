-- Sensors: only those of the mission, their fields, excluded keys, what the debriefing form shows.
start()
local function scan(text) proc.NactiSqm(path(mission("m", text) .. "/mission.sqm")) end
local sensors = [[
	class Sensors
	{
		items=2;
		class Item0
		{
			position[]={1,2,3};
			activationType="EAST D";
			type="END1";
			text="Trigger";
			expCond="this && x";
			class Effects
			{
				titleText="never";
			};
		};
		class Item1
		{
			type="LOOSE";
			EXPCOND="not alive vojak";
		};
	};
]]
scan("class Mission\n{\n" .. sensors .. "};\nclass Intro\n{\n" .. sensors:gsub("END1", "INTRO") .. "};\n")
equal(shared.PocetSenzoru, 2, "count") equal(shared.Senzory.bound, 2, "one spare element")
equal(shared.Senzory[0].Type, '"END1"', "type, of the mission") equal(shared.Senzory[0].Text, '"Trigger"', "text, not the title's")
equal(shared.Senzory[0].Expcond, '"this && x"', "condition")
equal(shared.Senzory[1].Type, '"LOOSE"', "second") equal(shared.Senzory[1].Expcond, '"not alive vojak"', "its condition, key in any case")
equal(frmdebrief.lblpocetkoncu.caption, "2", "number") equal(frmdebrief.lbltyp.caption, '"END1"', "the first is shown")
equal(frmdebrief.lbltext.caption, '"Trigger"', "its text") equal(frmdebrief.lblpodminka.caption, '"this && x"', "its condition")
equal(shared.AktualniSenzor, 0, "index")
equal(frmdebrief.cmdprev.enabled, false, "none before") equal(frmdebrief.cmdnext.enabled, true, "one behind")
-- before any section line the flag is down
shared.PocetSenzoru = 0
scan(sensors)
equal(shared.PocetSenzoru, 0, "sensors outside of class Mission are not read")
