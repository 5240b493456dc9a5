#include "core/desk.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnahled.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/stringtable_writer.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace tarvelin
{

namespace
{

constexpr std::string_view header = "LANGUAGE,Czech,English,German,French,Italian,Spanish,Comment\r\n";

/// Remembers the boxes; `whenAsked` runs while one is shown.
class BoxDesk : public Desk
{
public:
  std::vector<std::string> boxes;
  std::function<void()> whenAsked = [] {};

  void showModal(Form&) override {}
  Answer box(std::string_view text, Buttons, Icon icon) override
  {
    boxes.push_back((icon == Icon::information ? "information: " : "other: ") + std::string(text));
    whenAsked();
    return Answer::ok;
  }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override {}
};

class Stringtable : public testing::Test
{
protected:
  Stringtable()
  {
    setProgramFolder("\\program");
    setDesk(&desk);
    clear();
  }

  ~Stringtable() override
  {
    clear();
    setDesk(nullptr);
    setProgramFolder({});
  }

  static void clear()
  {
    for (List* const list : {&frmmain.seznamradia, &frmmain.seznamzvuku, &frmcamp5.seznamradia, &frmcamp5.seznamzvuku})
      list->clear();
    frmdalsinast.txtstringtable.set({});
    frmnahled.setCaption("Náhledy souborů");
    frmnahled.nahledbrowser.navigate({});
    shared.Hlasky.at(22).clear();
    shared.Radia.erase();
    shared.Zvuky.erase();
    shared.RadiaKampane.erase();
    shared.ZvukyKampane.erase();
  }

  static void fill(List& radioList, Array<ZaznamRadia>& radios, List& soundList, Array<ZaznamZvuku>& sounds,
                   const std::string& side)
  {
    radios.redim(2);
    for (int i = 0; i < 2; ++i)
    {
      ZaznamRadia& radio = radios.at(i);
      radio.Jmeno = side + "R" + std::to_string(i);
      radio.Postava = "aP" + std::to_string(i);
      radio.TextCs = "cs";
      radio.TextEn = "en \"x\"";
      radio.TextDe = "de";
      radio.TextFr = "fr";
      radio.TextEs = "es";
      radio.TextIt = "it, a";
    }
    radioList.mark(radioList.add("one", 1), true); // the tag names the record
    radioList.mark(radioList.add("two", 0), true);
    sounds.redim(3);
    for (int i = 0; i < 3; ++i)
    {
      sounds.at(i).Jmeno = side + "S" + std::to_string(i);
      sounds.at(i).Titulky.redim(3);
      sounds.at(i).Titulky.at(0) = {"cs", "en", "de", "fr", "es", "it", -1};
      sounds.at(i).Titulky.at(1) = {"off", "", "", "", "", "", 0};
      sounds.at(i).Titulky.at(2) = {"third", "", "", "", "", "", -1};
    }
    sounds.at(2).Titulky.erase();
    soundList.mark(soundList.add("one", 0), true);
    soundList.add("two", 1); // not marked
    soundList.mark(soundList.add("three", 2), true);
  }

  static std::string filled(const std::string& side)
  {
    return std::string(header) + "STRM_" + side + "R1,\"cs\",\"en \"x\"\",\"de\",\"fr\",\"it, a\",\"es\",aP1\r\n" +
           "STRM_" + side + "R0,\"cs\",\"en \"x\"\",\"de\",\"fr\",\"it, a\",\"es\",aP0\r\n" + "\r\n" + //
           "STRM_" + side + "S01,\"cs\",\"en\",\"de\",\"fr\",\"it\",\"es\",\r\n" +                     //
           "STRM_" + side + "S03,\"third\",\"\",\"\",\"\",\"\",\"\",\r\n" + "\r\n";
  }

  std::string write(Flag campaign = 0)
  {
    const std::size_t from = frmload.log.text().size();
    UlozStringtable(path, campaign);
    log = frmload.log.text().substr(from);
    return test::readBytes(file);
  }

  test::Scratch scratch;
  std::filesystem::path file = scratch / "Stringtable.csv";
  std::string path = platform::toProgram(file.string());
  std::string log;
  BoxDesk desk;
};

TEST_F(Stringtable, Empty)
{
  test::writeBytes(file, std::string(5000, 'x'));
  EXPECT_EQ(write(), std::string(header) + "\r\n\r\n\r\n\r\n");
  EXPECT_EQ(log, "Vytváření: " + path + "\r\n");
}

TEST_F(Stringtable, MissionAndCampaignReadTheirOwnLists)
{
  fill(frmmain.seznamradia, shared.Radia, frmmain.seznamzvuku, shared.Zvuky, "M");
  fill(frmcamp5.seznamradia, shared.RadiaKampane, frmcamp5.seznamzvuku, shared.ZvukyKampane, "K");
  frmdalsinast.txtstringtable.set("STRM_OWN,\"a\"\r\n$STRM_X");
  EXPECT_EQ(write(), filled("M") + "STRM_OWN,\"a\"\r\n$STRM_X\r\n\r\n");
  EXPECT_EQ(write(-1), filled("K") + "STRM_OWN,\"a\"\r\n$STRM_X\r\n\r\n");
  EXPECT_EQ(write(1), filled("K") + "STRM_OWN,\"a\"\r\n$STRM_X\r\n\r\n"); // any flag but 0
}

TEST_F(Stringtable, ThePreviewLeavesTheFileFirst)
{
  frmnahled.setCaption("Náhled souborů: StringTable.csv");
  frmnahled.nahledbrowser.navigate(path);
  shared.Hlasky.at(22) = "the help is shown";
  test::writeBytes(file, "before");
  std::string whileAsked;
  desk.whenAsked = [&]
  { whileAsked = test::readBytes(file) + "|" + frmnahled.caption() + "|" + frmnahled.nahledbrowser.address(); };
  write();
  EXPECT_EQ(desk.boxes, std::vector<std::string>{"information: the help is shown"});
  EXPECT_EQ(whileAsked, "before|Náhled souborů: Nápověda|\\program\\Bfdata\\dokumentace\\index.html");
  write(); // the preview shows the help now
  EXPECT_EQ(desk.boxes.size(), 1U);
}

TEST_F(Stringtable, AnotherPreviewStays)
{
  frmnahled.setCaption("Náhled souborů: Description.ext");
  frmnahled.nahledbrowser.navigate("\\m\\Description.ext");
  write();
  EXPECT_TRUE(desk.boxes.empty());
  EXPECT_EQ(frmnahled.caption(), "Náhled souborů: Description.ext");
  EXPECT_EQ(frmnahled.nahledbrowser.address(), "\\m\\Description.ext");
}

TEST_F(Stringtable, FailuresAreLoggedAndTheRestIsWritten)
{
  fill(frmmain.seznamradia, shared.Radia, frmmain.seznamzvuku, shared.Zvuky, "M");
  frmmain.seznamradia.mark(frmmain.seznamradia.add("no record", 7), true);
  EXPECT_EQ(write(), filled("M") + "\r\n\r\n");
  const std::string line =
      "Nastala chyba při ukládání Stringtable.csv do složky: " + path + ", 9, Subscript out of range\r\n";
  EXPECT_EQ(log, "Vytváření: " + path + "\r\n" + line);

  clear();
  path = platform::toProgram((scratch / "no folder" / "Stringtable.csv").string());
  write();
  EXPECT_EQ(log, "Vytváření: " + path + "\r\nNastala chyba při ukládání Stringtable.csv do složky: " + path +
                     ", 76, Path not found\r\n");
  EXPECT_TRUE(desk.boxes.empty());
}

} // namespace

} // namespace tarvelin
