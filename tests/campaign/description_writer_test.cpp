#include "app/assemble.h"
#include "campaign/campaign_reset.h"
#include "campaign/description_writer.h"
#include "core/forms/form2.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmload.h"
#include "core/forms/tmpfrm.h"
#include "core/identity_rows.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/codepage.h"
#include "tests/lib/generated_descriptions.h"
#include "tests/platform/scratch.h"

#include <gtest/gtest.h>
#include <string>

namespace tarvelin::tests
{
namespace
{

/// Rows of the lists and their records, as the panels leave them. `tag` is the index of the record.
class CampaignDescription : public testing::Test
{
protected:
  void SetUp() override
  {
    assembleProgram();
    ResetKampan();
    shared.KampanMod = -1;
    showIdentityRows();
    shared.PocetOstrovu = 0;
    shared.JmenoKampane = "K";
    for (int word = 45; word <= 48; ++word)
      shared.Texty.at(word) = "T" + std::to_string(word);
  }
  void TearDown() override
  {
    ResetKampan();
    assembleProgram();
  }

  static void addRow(List& list, std::string_view text, int tag, bool marked)
  {
    const int row = list.add(text, tag);
    list.mark(row, marked);
  }

  template <class Record> static void fill(Record& record, const std::string& name, const std::string& file)
  {
    record.Jmeno = name;
    record.Nazev = "Název " + name;
    record.Soubor = file;
    record.Hlasitost = "+10";
    record.Hloubka = "1.0";
  }

  void write()
  {
    UlozKampanDescription(m_scratch.path("Description.ext"));
    test::expectDescriptionTaken(tmpfrm.tmpcamp.text());
  }

  /// What lies between two texts of the file, the first one included.
  static std::string section(std::string_view from, std::string_view to = {})
  {
    const std::string& text = tmpfrm.tmpcamp.text();
    const std::size_t start = text.find(from);
    return start == std::string::npos ? std::string()
                                      : text.substr(start, to.empty() ? to.npos : text.find(to, start) - start);
  }

  static std::size_t failures(const std::string& number)
  {
    std::size_t count = 0;
    const std::string line = "Description.ext, " + number + ", ";
    for (std::size_t at = frmload.log.text().find(line); at != std::string::npos;
         at = frmload.log.text().find(line, at + 1))
      ++count;
    return count;
  }

  static std::string crlfText(std::string_view text) { return replaced(text, "\n", "\r\n"); }

  Scratch m_scratch;
};

TEST_F(CampaignDescription, MarkedIdentitiesHaveAClass)
{
  shared.IdentityKampane.redim(2);
  shared.IdentityKampane.at(0) = {"", "Face1", "Jiří \"Žižka\"", "None", "Adam", "1"};
  shared.IdentityKampane.at(1) = {"", "custom", "Druhý; muž", "Sunglasses", "Dan", "0.9"};
  addRow(Form2.seznamidentit, "Zizka", 0, true);
  addRow(Form2.seznamidentit, "Druhy", 0, true); // identities go by their row
  addRow(Form2.seznamidentit, "Nikdo", 1, false);
  addRow(Form2.seznamidentit, "Bez", 3, true);
  write();
  EXPECT_EQ(section("class CfgIdentities", "class Awards"), crlfText(R"(class CfgIdentities
{
    class Zizka
    {
        name = "Jiří "Žižka"";
        face = "Face1";
        glasses = "None";
        speaker = "Adam";
        pitch = 1;
     };
    class Druhy
    {
        name = "Druhý; muž";
        face = "custom";
        glasses = "Sunglasses";
        speaker = "Dan";
        pitch = 0.9;
     };
    class Bez
    {
     };
};

)"));
  EXPECT_EQ(failures("9"), 6u); // five lines of the row without a record, and the empty chapter's first mission
}

TEST_F(CampaignDescription, RadioAndMusicNameTheMarkedAndGiveThemAClass)
{
  shared.RadiaKampane.redim(3);
  fill(shared.RadiaKampane.at(0), "Rádio1", "rozkaz 1.ogg");
  fill(shared.RadiaKampane.at(1), "Nic", "nic.ogg");
  fill(shared.RadiaKampane.at(2), "Radio3", "a.wss");
  addRow(frmcamp5.seznamradia, "c", 2, true);
  addRow(frmcamp5.seznamradia, "b", 1, false);
  addRow(frmcamp5.seznamradia, "a", 0, true);
  shared.HudbyKampane.redim(1);
  fill(shared.HudbyKampane.at(0), "Hudba1", "píseň.ogg");
  shared.HudbyKampane.at(0).Hlasitost = "-5";
  addRow(frmcamp5.seznamhudby, "h", 0, true);
  write();
  EXPECT_EQ(section("class CfgRadio", "class CfgSounds"), crlfText(R"(class CfgRadio
{
    sounds[]={ Radio3,Rádio1};
    class Radio3
    {
        name="Název Radio3";
        sound[]={"\DtaExt\sound\a.wss",db+10,1.0};
        title=$STRM_Radio3;
     };
    class Rádio1
    {
        name="Název Rádio1";
        sound[]={"\DtaExt\sound\rozkaz 1.ogg",db+10,1.0};
        title=$STRM_Rádio1;
     };
};

class CfgMusic
{
    tracks[]={ Hudba1};
    class Hudba1
    {
         name="Název Hudba1";
         sound[]={"\DtaExt\music\píseň.ogg",db-5,1.0};
    };
};

)"));
}

TEST_F(CampaignDescription, ListsWithNothingMarkedLoseTheirBlank)
{
  shared.RadiaKampane.redim(1);
  fill(shared.RadiaKampane.at(0), "R", "r.ogg");
  addRow(frmcamp5.seznamradia, "r", 0, false);
  write();
  EXPECT_EQ(section("class CfgRadio"), crlfText(R"(class CfgRadio
{
    sounds[]={};
};

class CfgMusic
{
    tracks[]={};
};

class CfgSounds
{
    sounds[]={};
};
)"));
}

TEST_F(CampaignDescription, SoundsAreAllNamedAndTakeTheirClassFromTheMusic)
{
  shared.ZvukyKampane.redim(3);
  fill(shared.ZvukyKampane.at(0), "Zvuk1", "1.ogg");
  fill(shared.ZvukyKampane.at(1), "Zvuk2", "2.ogg");
  fill(shared.ZvukyKampane.at(2), "Zvuk3", "3.ogg");
  shared.ZvukyKampane.at(0).Titulky.redim(2);
  shared.ZvukyKampane.at(1).Titulky.redim(0);
  shared.ZvukyKampane.at(2).Titulky.redim(1);
  for (int i = 0; i < 3; ++i)
    addRow(frmcamp5.seznamzvuku, "z", i, i != 1);
  shared.HudbyKampane.redim(1);
  fill(shared.HudbyKampane.at(0), "Hudba", "h.ogg");
  addRow(frmcamp5.seznamhudby, "h", 1, false); // row 0 leads to Zvuk2; there is no row 2
  // the mission's sound 0: its first subtitle is off, it has no third one; there is no sound 2
  shared.Zvuky.redim(0);
  shared.Zvuky.at(0).Titulky.redim(1);
  shared.Zvuky.at(0).Titulky.at(1).Zapnuto = -1;
  write();
  EXPECT_EQ(section("class CfgSounds"), crlfText(R"(class CfgSounds
{
    sounds[]={ Zvuk1,Zvuk2,Zvuk3};
    class Zvuk2
    {
        name="Název Zvuk1";
        sound[]={"\DtaExt\sound\1.ogg",db+10,1.0};
        titles[]=
        {
            1,$STRM_Zvuk11;
            2,$STRM_Zvuk12;
        };
     };
    {
        name="Název Zvuk3";
        sound[]={"\DtaExt\sound\3.ogg",db+10,1.0};
        titles[]=
        {
            0,$STRM_Zvuk31;
            1,$STRM_Zvuk32;
        };
     };
};
)"));
  EXPECT_EQ(failures("9"), 4u); // subtitles that the mission does not have, and the chapter's first mission
  EXPECT_EQ(failures("5"), 1u); // the music list has no row 2
}

TEST_F(CampaignDescription, ACampaignWithoutChaptersHasAnEmptyOne)
{
  write();
  EXPECT_EQ(section("class Campaign", "class CfgRadio"), crlfText(R"(class Campaign
{
    name = "K";
    firstBattle = PART1;


    class PART1
    {
        name = "";
        cutscene = ;
        end1 = ;
        end2 = ;
        end3 = ;
        end4 = ;
        end5 = ;
        end6 = ;
        lost = ;

     };
};

)"));
}

TEST_F(CampaignDescription, NamesBelowFiveCharactersAreMissing)
{
  const auto firstMission = [&](const std::string& folder)
  {
    shared.Kapitoly.at(0).Mise.redim(0);
    shared.Kapitoly.at(0).Mise.at(0).Cesta = folder;
    write();
    return section("        firstMission", "        end1");
  };
  EXPECT_EQ(firstMission("\\m\\Řeka.Eden"), "        firstMission = Řeka;\r\n");
  EXPECT_EQ(firstMission("\\m\\čtyři"), "        firstMission = ;\r\n"); // five characters, none left
  EXPECT_EQ(failures("5"), 0u);
  EXPECT_EQ(firstMission("\\m\\čtyř"), "");
  EXPECT_EQ(failures("5"), 1u);
  EXPECT_EQ(firstMission("Reka.Eden"), ""); // no backslash, no name
  EXPECT_EQ(failures("5"), 2u);
}

TEST_F(CampaignDescription, TheFileIsTheTextAndOneLineEnd)
{
  shared.JmenoKampane = "Žluťoučký kůň";
  write();
  EXPECT_EQ(platform::decode(m_scratch.bytes("Description.ext"), 1250), tmpfrm.tmpcamp.text() + "\r\n");
  EXPECT_TRUE(tmpfrm.tmpcamp.text().ends_with("    sounds[]={};\r\n};\r\n"));
}

TEST_F(CampaignDescription, AFileThatCannotBeWrittenIsLogged)
{
  UlozKampanDescription(m_scratch.path("neni") + "\\Description.ext");
  EXPECT_EQ(failures("76"), 1u);
  EXPECT_NE(frmload.log.text().find("Konec ukládání description.ext pro kampaň,"), std::string::npos);
}

} // namespace
} // namespace tarvelin::tests
