#include "core/forms/form2.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/logged_steps.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/class_sections.h"
#include "platform/codepage.h"
#include "platform/locale.h"
#include "platform/paths.h"
#include "tests/lib/generated_descriptions.h"
#include "tests/test_home.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tarvelin
{

namespace
{

std::string lines(std::string_view text)
{
  return replaced(text, "\n", crlf);
}

/// What stands in front of the section when all lists are empty.
constexpr std::string_view noRadio = "class CfgRadio\n{\n     sounds[]={};\n};\n\n";
constexpr std::string_view noMusic = "class CfgMusic\n{\n    tracks[]={};\n};\n\n";
constexpr std::string_view noSounds = "class CfgSounds\n{\n    sounds[]={};\n};\n\n";
constexpr std::string_view noIdentities = "};\n";
constexpr std::string_view noEnvironment = "\nclass CfgEnvSounds\n{\n   sounds[]={};\n\n};\n\n";
constexpr std::string_view noEffects = "class CfgSfx\n{\n   sounds[] = {};\n\n};\n";
constexpr std::string_view noTitles = "\nclass RscTitles\n{\n   titles[]={};\n\n};\n";

constexpr std::string_view emptySections[] = {noRadio,       noMusic,   noSounds, noIdentities,
                                              noEnvironment, noEffects, noTitles};

class ClassSections : public testing::Test
{
protected:
  ClassSections()
  {
    std::filesystem::create_directories(m_home / "Bfdata");
    setProgramFolder(platform::toProgram((m_home / "").string()));
    clear();
  }

  ~ClassSections() override
  {
    clear();
    setProgramFolder({});
  }

  static void clear()
  {
    for (List* const list : {&frmmain.seznamradia, &frmmain.seznamhudby, &frmmain.seznamzvuku, &Form2.seznamidentit,
                             &frmdalsinast.seznamrozzvuku, &frmdalsinast.List1, &frmdalsinast.List3})
      list->clear();
    Form2.chkpouzithrace.set(false);
    shared.Radia.erase();
    shared.Hudby.erase();
    shared.Zvuky.erase();
    shared.Identity.erase();
    shared.Okoli.erase();
    shared.Sfx.erase();
    shared.Tituly.erase();
  }

  /// A row for each character: "+" marked, "-" not; the tags count from `firstTag`.
  static void rows(List& list, std::string_view marks, int firstTag = 0)
  {
    for (const char mark : marks)
    {
      const int row = list.add("row " + std::to_string(list.count()), firstTag + list.count());
      list.mark(row, mark == '+');
    }
  }

  std::string write()
  {
    failures.clear();
    std::string text = "the text before\r\n";
    appendClassSections(text, LoggedSteps(
                                  [this](const Failure& failure)
                                  {
                                    failures += std::to_string(failure.number) + " ";
                                    return std::string();
                                  }));
    EXPECT_TRUE(text.starts_with("the text before\r\n"));
    text.erase(0, 17);
    test::expectDescriptionTaken(text);
    return text;
  }

  /// The whole text, in which `section` stands in the place of the empty one at `place`.
  void expectSection(std::size_t place, std::string_view section)
  {
    std::string want;
    for (std::size_t i = 0; i < std::size(emptySections); ++i)
      want += i == place ? section : emptySections[i];
    EXPECT_EQ(write(), lines(want));
  }

  void expectRadio(std::string_view section) { expectSection(0, section); }
  void expectMusic(std::string_view section) { expectSection(1, section); }
  void expectSounds(std::string_view section) { expectSection(2, section); }
  void expectIdentities(std::string_view section) { expectSection(3, section); }
  void expectEnvironment(std::string_view section) { expectSection(4, section); }
  void expectEffects(std::string_view section) { expectSection(5, section); }
  void expectTitles(std::string_view section) { expectSection(6, section); }

  std::string failures;
  test::Scratch m_home;
};

TEST_F(ClassSections, EmptyLists)
{
  expectRadio(noRadio);
  EXPECT_EQ(failures, "");
}

TEST_F(ClassSections, Radio)
{
  shared.Radia.redim(3);
  for (int i = 0; i < 3; ++i)
  {
    ZaznamRadia& radio = shared.Radia.at(i);
    radio.Jmeno = "Rádio" + std::to_string(i);
    radio.Nazev = "Moje \"Radio\"; " + std::to_string(i);
    radio.Soubor = "hlášení " + std::to_string(i) + ".ogg";
    radio.Hlasitost = "+10";
    radio.Hloubka = "1.0";
  }
  // the tag, not the place, names the record: the rows are records 2, 1 and 0
  rows(frmmain.seznamradia, "+-+");
  frmmain.seznamradia.setTag(0, 2);
  frmmain.seznamradia.setTag(2, 0);
  constexpr std::string_view both = R"(class CfgRadio
{
     sounds[]={ Rádio2,Rádio0};
    class Rádio2
    {
         name="Moje "Radio"; 2";
         sound[]={"\sound\hlášení 2.ogg",db+10,1.0};
         title=$STRM_Rádio2;
     };
    class Rádio0
    {
         name="Moje "Radio"; 0";
         sound[]={"\sound\hlášení 0.ogg",db+10,1.0};
         title=$STRM_Rádio0;
     };
};

)";
  expectRadio(both);
  frmmain.seznamradia.mark(0, false);
  frmmain.seznamradia.mark(2, false);
  expectRadio(noRadio);
}

TEST_F(ClassSections, Music)
{
  shared.Hudby.redim(2);
  shared.Hudby.at(0).Jmeno = "Hudba1";
  shared.Hudby.at(0).Nazev = "Pochod";
  shared.Hudby.at(0).Soubor = "pochod.ogg";
  shared.Hudby.at(0).Hlasitost = "+40";
  shared.Hudby.at(0).Hloubka = "0.9";
  shared.Hudby.at(1) = shared.Hudby.at(0);
  shared.Hudby.at(1).Jmeno = ""; // names are not checked
  rows(frmmain.seznamhudby, "++");
  expectMusic(R"(class CfgMusic
{
    tracks[]={ Hudba1,};
    class Hudba1
    {
        name="Pochod";
        sound[]={"\music\pochod.ogg",db+40,0.9};
    };
    class 
    {
        name="Pochod";
        sound[]={"\music\pochod.ogg",db+40,0.9};
    };
};

)");
}

TEST_F(ClassSections, SoundsNameTheUnmarkedToo)
{
  shared.Zvuky.redim(3);
  for (int i = 0; i < 3; ++i)
  {
    ZaznamZvuku& sound = shared.Zvuky.at(i);
    sound.Jmeno = std::string(1, static_cast<char>('A' + i));
    sound.Nazev = "zvuk " + sound.Jmeno;
    sound.Soubor = sound.Jmeno + ".wav";
    sound.Hlasitost = "-10";
    sound.Hloubka = "1.1";
  }
  shared.Zvuky.at(0).Titulky.redim(3);
  shared.Zvuky.at(0).Titulky.at(0).Zapnuto = -1;
  shared.Zvuky.at(0).Titulky.at(2).Zapnuto = -1;
  shared.Zvuky.at(2).Titulky.reset(); // cleared subtitles: the spare element alone
  rows(frmmain.seznamzvuku, "+-+");
  expectSounds(R"(class CfgSounds
{
    sounds[]={ A,B,C};
    class A
    {
         name="zvuk A";
         sound[]={"\sound\A.wav",db-10,1.1};
         titles[]=
         {
            0,$STRM_A1;
            2,$STRM_A2;
         };
    };
    class C
    {
         name="zvuk C";
         sound[]={"\sound\C.wav",db-10,1.1};
         titles[]=
         {
         };
    };
};

)");
}

TEST_F(ClassSections, Identities)
{
  shared.Identity.redim(2);
  for (int i = 0; i < 2; ++i)
    shared.Identity.at(i) = {"C:\\tvar.jpg", "custom", "Jan \"Žižka\"", "none", "Dan", "1.0" + std::to_string(i)};
  rows(Form2.seznamidentit, "-+", 7); // by place, whatever the tags are
  expectIdentities(noIdentities);
  Form2.chkpouzithrace.set(true);
  expectIdentities(R"(class CfgIdentities
{
    class row 1
    {
        name="Jan "Žižka"";
        face="custom";
        glasses="none";
        speaker="Dan";
        pitch=1.01;
    };
};
)");
  Form2.seznamidentit.mark(1, false);
  expectIdentities("class CfgIdentities\n{\n};\n");
}

TEST_F(ClassSections, EnvironmentSoundsKeepTheWidthOfTheirNames)
{
  const auto wide = [](const std::string& name) { return name + std::string(255 - length(name), ' '); };
  shared.Okoli.redim(3);
  shared.Okoli.at(0) = {wide("Ráno"), wide("Les ráno"), "C:\\zvuky\\den a.wav", "-1", "1.0", "C:\\zvuky\\noc.wav", "-2",
                        "0.9"};
  shared.Okoli.at(1) = {"Poledne", "", "den.wav", "0", "1", "", "", ""}; // not padded by an editor yet
  shared.Okoli.at(2).Nazev = wide("Noc");
  rows(frmdalsinast.seznamrozzvuku, "++-");
  const std::string a = wide("Ráno");
  const std::string b = wide("Poledne");
  expectEnvironment("\nclass CfgEnvSounds\n{\n   sounds[]={" + a + "," + b + ",};\n\n   class " + a +
                    "\n   {\n      name=\"" + wide("Les ráno") +
                    "\";\n"
                    "      sound[]={\"\\sound\\den a.wav\",db-1,1.0};\n"
                    "      soundNight[]={\"noc.wav\",db-2,0.9};\n   };\n   class " +
                    b + "\n   {\n      name=\"" + wide("") +
                    "\";\n"
                    "      sound[]={\"\\sound\\den.wav\",db0,1};\n"
                    "      soundNight[]={\"\",db,};\n   };\n};\n\n");
  frmdalsinast.seznamrozzvuku.mark(2, true);
  frmdalsinast.seznamrozzvuku.mark(0, false);
  frmdalsinast.seznamrozzvuku.mark(1, false);
  EXPECT_NE(write().find("   sounds[]={" + wide("Noc") + "};\r\n\r\n"), std::string::npos);
  shared.Okoli.at(2).Nazev = std::string(300, 'x'); // wider than the record
  EXPECT_NE(write().find("   class " + std::string(255, 'x') + "\r\n"), std::string::npos);
}

TEST_F(ClassSections, Effects)
{
  const auto sound = [](const std::string& file, Flag on)
  { return ZaznamSfxZvuku{file, "-5", "1.0", "0.5", "0.2", 10, -3, on}; };
  shared.Sfx.redim(2);
  ZaznamSfx& effect = shared.Sfx.at(0);
  effect.Nazev = "Strom";
  effect.Jmeno = "Šumění";
  effect.Zvuky.redim(3); // with the spare element behind the last sound
  effect.Zvuky.at(0) = sound("C:\\z\\a.wav", 0);
  effect.Zvuky.at(1) = sound("C:\\z\\b.wav", -1);
  effect.Zvuky.at(2) = sound("c.wav", -1);
  shared.Sfx.at(1).Nazev = "Prázdný";
  rows(frmdalsinast.List1, "++");
  expectEffects(R"(class CfgSfx
{
   sounds[] = {Strom,Prázdný};

   class Strom
   {
      name = "Šumění";
      sounds[] = {sound1,sound2,};
      sound1[]={"\sound\b.wav",db-5,1.0,0.5,0.2,10,-3};
      sound2[]={"\sound\c.wav",db-5,1.0,0.5,0.2,10,-3};
      empty[] = {};
   };
   class Prázdný
   {
      name = "";
      sounds[] = {};
      empty[] = {};
   };
};
)");
  frmdalsinast.List1.mark(1, false);
  effect.Zvuky.redimPreserve(2); // the last one is on and has the last place
  expectEffects(R"(class CfgSfx
{
   sounds[] = {Strom,};

   class Strom
   {
      name = "Šumění";
      sounds[] = {sound1,sound2};
      sound1[]={"\sound\b.wav",db-5,1.0,0.5,0.2,10,-3};
      sound2[]={"\sound\c.wav",db-5,1.0,0.5,0.2,10,-3};
      empty[] = {};
   };
};
)");
}

TEST_F(ClassSections, Titles)
{
  shared.Tituly.redim(3);
  for (int i = 0; i < 3; ++i)
  {
    ZaznamTitulu& title = shared.Tituly.at(i);
    title.Trida = " Titul" + std::to_string(i) + "  ";
    title.Nazev = "  jméno " + std::to_string(i) + " ";
  }
  shared.Tituly.at(0).Pohyb = 1;
  shared.Tituly.at(0).Doba = 10;
  shared.Tituly.at(2).Doba = 2.5F;
  Array<TitulPrvek>& controls = shared.Tituly.at(0).Prvky;
  controls.redim(2);
  TitulPrvek& caption = controls.at(0);
  caption.Trida = " Napis ";
  caption.Styl = "2";
  caption.Text = "C:\\není cesta \"ano\"";
  caption.X = 0.25F;
  caption.Y = 1.5F;
  caption.W = 1;
  caption.BarvaPozadi = {255, 1000, 1020, 50}; // red, blue, green, alpha
  caption.BarvaTextu = {1020, 0, 4, 100};
  caption.Velikost = 0.02F;
  caption.Pismo = "TahomaB24";
  caption.Zapnuto = -1;
  controls.at(1) = caption;
  controls.at(1).Zapnuto = 0;
  TitulPrvek& picture = controls.at(2);
  picture.Druh = 1;
  picture.Trida = "Obraz";
  picture.Styl = "48";
  picture.Text = "C:\\obrázky\\můj obraz.paa";
  picture.H = 2;
  picture.Velikost = 1;
  picture.Zapnuto = -1;
  rows(frmdalsinast.List3, "+-+", 9); // by place; the tags are counts of controls
  const std::string point = platform::decimalSeparator();
  const std::string title2 = "   class Titul2\n   {\n      idd=-2;\n      movingEnable=0;\n      duration=2" + point +
                             "5;\n      name=\"jméno 2\";\n      controls[]={};\n   };\n};\n";
  expectTitles(R"(

class RscTitles
{
   titles[]={Titul0,Titul2};

   class Titul0
   {
      idd=-1;
      movingEnable=1;
      duration=10;
      name="jméno 0";
      controls[]={Napis,Obraz};
      class Napis: RscText
      {
         style=2;
         text="C:\není cesta "ano"";
         x=0.25;
         y=1.5;
         w=1.1;
         h=0.0;
         colorBackground[]={0.255,1.02,1.00,0.5};
         colorText[]={1.02,0.004,0.00,1.00};
         font="TahomaB24";
         size=0)" +
               point + R"(02;
      };
      class Obraz: RscPicture
      {
         style=48;
         text="můj obraz.paa";
         x=0.0;
         y=0.0;
         w=0.0;
         h=2.2;
         colorBackground[]={0.00,0.00,0.00,0.00};
         colorText[]={0.00,0.00,0.00,0.00};
         font="";
         size=1;
      };
   };
)" + title2);

  // another kind than text and picture is a text whose path is cut
  controls.at(2).Druh = 2;
  const std::string other = write();
  EXPECT_NE(other.find("      class Obraz: RscText\r\n"), std::string::npos);
  EXPECT_NE(other.find("         text=\"můj obraz.paa\";\r\n"), std::string::npos);

  // the last element is off or spare: the comma stays
  controls.at(2).Zapnuto = 0;
  EXPECT_NE(write().find("      controls[]={Napis,};\r\n"), std::string::npos);
  controls.at(0).Zapnuto = 0;
  frmdalsinast.List3.mark(2, false);
  expectTitles(R"(

class RscTitles
{
   titles[]={Titul0,};

   class Titul0
   {
      idd=-1;
      movingEnable=1;
      duration=10;
      name="jméno 0";
      controls[]={};
   };
};
)");
  EXPECT_EQ(failures, "");
}

TEST_F(ClassSections, TheBasesOfTheTitlesComeFromTheirFile)
{
  test::writeBytes(m_home / "Bfdata/Rscdef.dat", "class RscText\n{\r\n  type=0;\r};\n\n// \xE8"); // any line ends
  expectTitles(noTitles);
  shared.Tituly.redim(1);
  rows(frmdalsinast.List3, "-"); // an unmarked title will do
  expectTitles("\nclass RscText\n{\n  type=0;\n};\n\n// " + platform::decode("\xE8") + "\n" + std::string(noTitles));
  test::writeBytes(m_home / "Bfdata/Rscdef.dat", "");
  expectTitles("\n" + std::string(noTitles));
  std::filesystem::remove(m_home / "Bfdata/Rscdef.dat");
  expectTitles("\n" + std::string(noTitles));
  EXPECT_EQ(failures, "");
}

TEST_F(ClassSections, ItemsWithoutARecordAreReportedAndLeftOut)
{
  shared.Radia.redim(1);
  shared.Radia.at(0).Jmeno = "R";
  rows(frmmain.seznamradia, "++");
  frmmain.seznamradia.setTag(0, 5);
  frmmain.seznamradia.setTag(1, 0);
  expectRadio(R"(class CfgRadio
{
     sounds[]={ R};
    class R
    {
         name="";
         sound[]={"\sound\",db,};
         title=$STRM_R;
     };
};

)");
  EXPECT_EQ(failures, "9 9 "); // in the list of names and in the classes
  clear();
  Form2.chkpouzithrace.set(true);
  for (List* const list : {&frmmain.seznamhudby, &frmmain.seznamzvuku, &Form2.seznamidentit,
                           &frmdalsinast.seznamrozzvuku, &frmdalsinast.List1, &frmdalsinast.List3})
    rows(*list, "+");
  EXPECT_EQ(write(),
            lines(std::string(noRadio) + std::string(noMusic) + std::string(noSounds) + "class CfgIdentities\n{\n};\n" +
                  std::string(noEnvironment) + std::string(noEffects) + "\n" + std::string(noTitles)));
  EXPECT_EQ(failures, "9 9 9 9 9 9 9 9 9 9 9 "); // twice each, the identities once
}

} // namespace

} // namespace tarvelin
