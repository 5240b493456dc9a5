#include "app/assemble.h"
#include "core/desk.h"
#include "core/forms/form1.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"
#include "panels/sound_copy.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace tarvelin::test
{
namespace
{

/// Notes what the progress window shows each time the interface may run.
class WatchingDesk : public Desk
{
public:
  WatchingDesk() { setDesk(this); }
  ~WatchingDesk() override { setDesk(nullptr); }

  void showModal(Form&) override {}
  Answer box(std::string_view, Buttons, Icon) override
  {
    seen.emplace_back("a box");
    return Answer::ok;
  }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override
  {
    seen.push_back(Form1.lblstav.caption() + "|" + Form1.Label1.caption() + "|" + std::to_string(Form1.prubeh.value()) +
                   "/" + std::to_string(Form1.prubeh.maximum()) + (Form1.visible() ? "" : "|hidden"));
    if (pressStorno)
      Form1.Command1.click();
  }

  std::vector<std::string> seen;
  bool pressStorno = false;
};

class SoundCopy : public testing::Test
{
protected:
  void SetUp() override
  {
    assembleProgram();
    fs::create_directories(m_scratch / "mission");
    fs::create_directories(m_scratch / "source");
    shared.CestaMise = platform::toProgram((m_scratch / "mission").string()) + "\\";
    for (const int text : {81, 82, 83, 84, 105})
      shared.Texty.at(text) = "T" + std::to_string(text);
  }

  /// Makes a source file; gives its folder in the program's form.
  std::string source(const std::string& name)
  {
    writeBytes(m_scratch / "source" / name, "data of " + name);
    return platform::toProgram((m_scratch / "source").string());
  }

  std::string sourcePath(const std::string& name) { return source(name) + "\\" + name; }

  template <class Record> void addRow(List& list, Array<Record>& records, const std::string& name)
  {
    const int row = list.add(name, list.count());
    records.redimPreserve(row + 1);
    records.at(row).Cesta = source(name);
    records.at(row).Soubor = name;
  }

  void addEnvironment(bool marked, const std::string& day, const std::string& night)
  {
    const int row = frmdalsinast.seznamrozzvuku.add("sound");
    frmdalsinast.seznamrozzvuku.mark(row, marked);
    shared.Okoli.redimPreserve(row + 1);
    shared.Okoli.at(row).Den = day;
    shared.Okoli.at(row).Noc = night;
  }

  void addClass(const std::vector<std::string>& names)
  {
    const int row = frmdalsinast.List1.add("class", static_cast<int>(names.size()));
    shared.Sfx.redimPreserve(row + 1);
    shared.Sfx.at(row).Zvuky.redim(static_cast<int>(names.size()));
    for (int i = 0; i < static_cast<int>(names.size()); ++i)
      shared.Sfx.at(row).Zvuky.at(i).Soubor = sourcePath(names[static_cast<std::size_t>(i)]);
  }

  TitulPrvek& addControl(int title, std::int16_t kind, const std::string& text)
  {
    Array<TitulPrvek>& controls = shared.Tituly.at(title).Prvky;
    controls.redimPreserve(std::max(controls.bound(), 0) + 1);
    TitulPrvek& control = controls.at(controls.bound() - 1);
    control.Druh = kind;
    control.Text = text;
    return control;
  }

  /// Names under the mission's folder, ordered.
  std::vector<std::string> copied() const
  {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_scratch / "mission"))
      names.push_back(fs::relative(entry.path(), m_scratch / "mission").generic_string());
    std::ranges::sort(names);
    return names;
  }

  std::string content(const std::string& name) const { return readBytes(m_scratch / "mission" / name); }

  Scratch m_scratch;
  WatchingDesk m_desk;
};

TEST_F(SoundCopy, showsEachStageAndEachFile)
{
  addRow(frmmain.seznamradia, shared.Radia, "r1.ogg");
  addRow(frmmain.seznamradia, shared.Radia, "r2.ogg");
  addRow(frmmain.seznamzvuku, shared.Zvuky, "s.ogg");
  addRow(frmmain.seznamhudby, shared.Hudby, "m.ogg");
  addEnvironment(true, sourcePath("day.ogg"), sourcePath("night.ogg"));
  addEnvironment(false, sourcePath("off day.ogg"), sourcePath("off night.ogg"));
  addClass({"x1.ogg", "x2.ogg"});
  addClass({"y1.ogg"});
  shared.Tituly.redim(2);
  frmdalsinast.List3.mark(frmdalsinast.List3.add("title"), true);
  frmdalsinast.List3.add("unmarked title");
  addControl(0, 0, sourcePath("text.jpg")); // a text that reads like a path
  addControl(0, 1, sourcePath("obrázek 1;a.jpg"));
  addControl(0, 1, sourcePath("two.jpg"));
  addControl(1, 1, sourcePath("off.jpg"));

  KopirujZvuky();

  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{
                             "T81|T84 r1.ogg|0/2",
                             "T81|T84 r2.ogg|1/2",
                             "T82|T82 s.ogg|0/1",
                             "T83|T82 m.ogg|0/1",
                             "T105|T82 day.ogg|1/1",
                             "T105|T82 night.ogg|1/1",
                             "T105|T82 x1.ogg|0/2",
                             "T105|T82 x2.ogg|0/2",
                             "T105|T82 y1.ogg|1/2",
                             "T105|T82 obrázek 1;a.jpg|2/2",
                             "T105|T82 two.jpg|2/2",
                         }));
  EXPECT_EQ(copied(), (std::vector<std::string>{"music", "music/m.ogg", "obrázek 1;a.jpg", "sound", "sound/day.ogg",
                                                "sound/night.ogg", "sound/r1.ogg", "sound/r2.ogg", "sound/s.ogg",
                                                "sound/x1.ogg", "sound/x2.ogg", "sound/y1.ogg", "two.jpg"}));
  EXPECT_EQ(content("sound/night.ogg"), "data of night.ogg");
  EXPECT_EQ(content("obrázek 1;a.jpg"), "data of obrázek 1;a.jpg");
  EXPECT_FALSE(Form1.visible());
  EXPECT_EQ(frmload.log.text(), "");
}

TEST_F(SoundCopy, takesTheRecordThatARowsTagNames)
{
  addRow(frmmain.seznamradia, shared.Radia, "first.ogg");
  addRow(frmmain.seznamradia, shared.Radia, "second.ogg");
  frmmain.seznamradia.setTag(0, 1);

  KopirujZvuky();

  EXPECT_EQ(copied(), (std::vector<std::string>{"sound", "sound/second.ogg"}));
}

TEST_F(SoundCopy, bindsTheClassesOfEffectsToTheEnvironmentSounds)
{
  addClass({"x.ogg"});
  addClass({"y.ogg"});

  KopirujZvuky();
  EXPECT_EQ(copied(), (std::vector<std::string>{"sound"})); // the folder comes all the same

  addEnvironment(false, "", "");
  KopirujZvuky();
  EXPECT_EQ(copied(), (std::vector<std::string>{"sound", "sound/x.ogg"}));

  addEnvironment(false, "", "");
  addEnvironment(false, "", "");
  KopirujZvuky();
  EXPECT_EQ(copied(), (std::vector<std::string>{"sound", "sound/x.ogg", "sound/y.ogg"}));
  EXPECT_EQ(frmload.log.text(), "");
}

TEST_F(SoundCopy, logsWhatIsNotThereAndGoesOn)
{
  addEnvironment(true, "", sourcePath("night.ogg"));
  addClass({"x.ogg"});
  shared.Sfx.at(0).Zvuky.at(0).Soubor = source("y.ogg") + "\\gone.ogg";
  shared.Tituly.redim(1);
  frmdalsinast.List3.mark(frmdalsinast.List3.add("title"), true);
  frmdalsinast.List3.mark(frmdalsinast.List3.add("a title without controls"), true);
  addControl(0, 1, shared.CestaMise + "here.jpg");
  writeBytes(m_scratch / "mission" / "here.jpg", "lies there already");
  frmdalsinast.List3.mark(frmdalsinast.List3.add("a row without a record"), true);

  KopirujZvuky();

  EXPECT_EQ(copied(), (std::vector<std::string>{"here.jpg", "sound", "sound/night.ogg"}));
  EXPECT_EQ(content("here.jpg"), "lies there already");
  const std::string line = "Nastala chyba při kopírování zvuku do složky: " + shared.CestaMise + ", ";
  EXPECT_EQ(frmload.log.text(), line + "52, Bad file name or number\r\n" + line + "53, File not found\r\n" + line +
                                    "70, Permission denied\r\n" + line + "9, Subscript out of range\r\n");
  EXPECT_FALSE(Form1.visible());
}

TEST_F(SoundCopy, goesOnWhenItsWindowIsHidden)
{
  addRow(frmmain.seznamradia, shared.Radia, "r1.ogg");
  addRow(frmmain.seznamradia, shared.Radia, "r2.ogg");
  m_desk.pressStorno = true;

  KopirujZvuky();

  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"T81|T84 r1.ogg|0/2", "T81|T84 r2.ogg|1/2|hidden"}));
  EXPECT_EQ(copied(), (std::vector<std::string>{"sound", "sound/r1.ogg", "sound/r2.ogg"}));
}

TEST_F(SoundCopy, makesNoFolderForNothing)
{
  KopirujZvuky();
  EXPECT_TRUE(copied().empty());
  addRow(frmmain.seznamhudby, shared.Hudby, "m.ogg");
  KopirujZvuky();
  EXPECT_EQ(copied(), (std::vector<std::string>{"music", "music/m.ogg"}));
}

} // namespace
} // namespace tarvelin::test
