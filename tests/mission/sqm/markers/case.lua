-- Markers: fields of the items, quotes kept, excluded keys, spare element, navigator.
start()
local function scan(text) proc.NactiSqm(path(mission("m", text) .. "/mission.sqm")) end
scan([[
class Mission
{
	class Markers
	{
		items=2;
		class Item0
		{
			position[]={1.000000,2.000000,3.000000};
			name="first";
			text="The first";
			type="Flag";
			colorName="ColorRed";
			fillName="Solid";
		};
		class Item1
		{
			position[]={1.000000,2.000000,3.000000};
			name="second";
			markerType="ELLIPSE";
			type="Empty";
			a=50.000000;
		};
	};
	month=3;
};
]])
equal(shared.PocetZnacek, 2, "count")
equal(shared.Znacky.bound, 2, "one spare element")
equal(shared.Znacky[0].Name, '"first"', "name with its quotes") equal(shared.Znacky[0].Text, '"The first"', "text")
equal(shared.Znacky[0].Type, '"Flag"', "type")
equal(shared.Znacky[1].Name, '"second"', "a colour's or a filling's name is none") equal(shared.Znacky[1].Text, "", "no text")
equal(shared.Znacky[1].Type, '"Empty"', "of type and markerType the last one counts")
equal(shared.Znacky[2].Name, "", "the spare element is empty")
equal(shared.Mesic, "3", "the reading goes on behind the class")
equal(frmmain.lblznackypocet.caption, "2", "number of markers")
equal(frmmain.lblJmenoZnacky.caption, '"first"', "the first is shown") equal(frmmain.lblPopisZnacky.caption, '"The first"', "its text")
equal(frmmain.lbltypZnacky.caption, '"Flag"', "its type")
equal(shared.AktualniZnacka, 0, "index")
equal(frmmain.cmdPrev.enabled, false, "none before") equal(frmmain.cmdnext.enabled, true, "one behind")

scan('class Markers\n{\nitems=1;\nclass Item0\n{\ntype="A";\nmarkerType="B";\n};\n};\n')
equal(shared.Znacky[0].Type, '"B"', "the other order")
equal(frmmain.cmdnext.enabled, false, "one marker has no next one")

-- a nested class inside of an item, a brace pair on one line
scan('class Markers\n{\nitems=2;\nclass Item0\n{\nname="a";\nclass Deep\n{\nx[]={1};\n};\ntext="t";\n};\nclass Item1\n{\nname="b";\n};\n};\n')
equal(shared.Znacky[0].Text, '"t"', "braces are counted") equal(shared.Znacky[1].Name, '"b"', "and the items told apart")

-- no markers
scan("class Mission\n{\n};\n")
equal(shared.PocetZnacek, 2, "a file without the class leaves the count of before, as no mission was closed")
