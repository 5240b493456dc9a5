-- The demo-like file cut at every place: nothing crashes, whatever the rest was.
start()
local text = crlf([[
version=11;
class Mission
{
	addOns[]=
	{
		"bis",
		"apac"
	};
	class Intel
	{
		briefingName="Name";
		month=7;
	};
	class Markers
	{
		items=1;
		class Item0
		{
			position[]={1,2,3};
			name="m";
		};
	};
	class Sensors
	{
		items=1;
		class Item0
		{
			type="END1";
		};
	};
};
]])
for length = 0, #text do
  write_file(work .. "/cut.sqm", text:sub(1, length))
  proc.NactiSqm(path(work .. "/cut.sqm"))
end
equal(shared.Senzory[0].Type, '"END1"', "the whole file")
