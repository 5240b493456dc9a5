#include "app/assemble.h"
#include "core/desk.h"
#include "core/forms/frmload.h"
#include "core/forms/frmopen2.h"
#include "core/forms/frmsettings.h"
#include "core/program.h"
#include "core/shared.h"
#include "panels/sound_tools.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace tarvelin::test
{
namespace
{

/// Acts on the picker, and notes boxes and starts.
class PickingDesk : public Desk
{
public:
  PickingDesk() { setDesk(this); }
  ~PickingDesk() override { setDesk(nullptr); }

  void showModal(Form&) override
  {
    if (act)
      act();
  }
  Answer box(std::string_view text, Buttons, Icon icon) override
  {
    seen.push_back(std::string(icon == Icon::critical ? "critical: " : "box: ") + std::string(text));
    if (boxFails)
      throw Failure(Fault::invalidCall);
    return Answer::ok;
  }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view program, std::string_view arguments, std::string_view) override
  {
    seen.push_back("start: " + std::string(program) + " " + std::string(arguments));
    return true;
  }
  bool browse(std::string_view) override { return false; }
  void breathe() override
  {
    ++breaths;
    if (onBreath)
      onBreath();
  }

  std::function<void()> act;
  std::function<void()> onBreath;
  std::vector<std::string> seen;
  int breaths = 0;
  bool boxFails = false;
};

class SoundTools : public testing::Test
{
protected:
  void SetUp() override
  {
    assembleProgram();
    m_folderBefore = fs::current_path();
    m_programBefore = programFolder();
    fs::create_directories(m_scratch / "home/Bfdata/oggwav");
    fs::create_directories(m_scratch / "source");
    for (const char* const name : {"a.ogg", "b.exe", "c.BAT", "d.com", "e.wav"})
      writeBytes(m_scratch / "source" / name, name);
    setProgramFolder(platform::toProgram((m_scratch / "home").string()));
    for (const int text : {1, 2, 98, 99, 100})
      shared.Texty.at(text) = "T" + std::to_string(text);
    for (const int text : {1, 2, 3, 4, 15})
      shared.Hlasky.at(text) = "H" + std::to_string(text);
  }

  void TearDown() override
  {
    fs::current_path(m_folderBefore);
    setProgramFolder(m_programBefore);
  }

  std::string source() const { return platform::toProgram((m_scratch / "source").string()); }

  void show(std::int16_t mode, std::function<void()> act)
  {
    shared.RezimOtevreni = mode;
    m_desk.act = std::move(act);
    frmopen2.showModal();
  }

  Scratch m_scratch;
  PickingDesk m_desk;
  fs::path m_folderBefore;
  std::string m_programBefore;
};

TEST_F(SoundTools, choosesAFolder)
{
  show(6, [] {});
  show(4,
       [&]
       {
         EXPECT_EQ(frmopen2.caption(), "T2");
         EXPECT_EQ(frmopen2.File1.pattern(), "*.wav*"); // the last one
         EXPECT_FALSE(frmopen2.File1.enabled());
         frmopen2.Dir1.userSetPath(source());
         EXPECT_EQ(frmopen2.File1.path(), source());
         frmopen2.cmdOk.click();
         EXPECT_FALSE(frmopen2.visible());
       });
  EXPECT_EQ(shared.SlozkaKampane, source());
  EXPECT_EQ(shared.CestaKampane, source());
  show(4,
       [&]
       {
         frmopen2.Dir1.userSetPath(source() + "\\..");
         frmopen2.Command1.click();
       });
  EXPECT_EQ(shared.SlozkaKampane, source());
  EXPECT_EQ(shared.CestaKampane, source());
  EXPECT_TRUE(m_desk.seen.empty());
}

TEST_F(SoundTools, choosesAProgram)
{
  writeBytes(m_scratch / "source" / "f.exe.txt", "");
  frmsettings.Text1.set("Karel");
  show(4, [] {});
  m_desk.act = [&]
  {
    EXPECT_EQ(shared.RezimOtevreni, 7);
    EXPECT_EQ(frmopen2.caption(), "T100");
    EXPECT_EQ(frmopen2.File1.pattern(), "*.exe;*.bat;*.com*");
    EXPECT_TRUE(frmopen2.File1.enabled());
    frmopen2.Dir1.userSetPath(source());
    EXPECT_EQ(frmopen2.File1.names(), (std::vector<std::string>{"b.exe", "c.BAT", "d.com"}));
    frmopen2.File1.userSelect("c.BAT");
    EXPECT_EQ(frmsettings.txtcesta.text(), source() + "\\c.BAT");
    frmopen2.cmdOk.click();
  };
  chooseProgram(frmsettings.txtcesta);
  EXPECT_EQ(frmsettings.txtcesta.text(), source() + "\\c.BAT");
  EXPECT_EQ(frmopen2.Soubor.value, "c.BAT");
  EXPECT_EQ(frmopen2.Slozka.value, source());
  EXPECT_FALSE(frmopen2.visible());
  m_desk.act = [] { frmopen2.Command1.click(); };
  chooseProgram(frmsettings.txtpbopath);
  EXPECT_EQ(frmsettings.txtpbopath.text(), "");
  EXPECT_EQ(frmsettings.txtcesta.text(), source() + "\\c.BAT"); // another one asked
  chooseProgram(frmsettings.txtcesta);
  EXPECT_EQ(frmsettings.txtcesta.text(), "");
  EXPECT_EQ(frmopen2.Soubor.value, "");
  EXPECT_EQ(frmsettings.Text1.text(), "Karel");
  EXPECT_TRUE(m_desk.seen.empty());

  show(2, [&] { EXPECT_EQ(frmopen2.File1.names(), (std::vector<std::string>{"e.wav"})); });
}

TEST_F(SoundTools, choosesAnOggFile)
{
  show(5, [] {});
  show(8,
       [&]
       {
         EXPECT_EQ(frmopen2.caption(), "T98"); // of the last showing
         EXPECT_EQ(frmopen2.File1.pattern(), "*.ogg*");
         frmopen2.Dir1.userSetPath(source());
         frmopen2.File1.userSelect("a.ogg");
         frmopen2.cmdOk.click();
       });
  EXPECT_EQ(frmopen2.Slozka.value + "\\" + frmopen2.Soubor.value, source() + "\\a.ogg");
  show(8, [] { frmopen2.Command1.click(); });
  EXPECT_EQ(frmopen2.Slozka.value + frmopen2.Soubor.value, "");
  EXPECT_TRUE(m_desk.seen.empty());
}

TEST_F(SoundTools, seesTheFilesOfEachShowingAnew)
{
  show(2, [&] { frmopen2.Dir1.userSetPath(source()); });
  writeBytes(m_scratch / "source" / "new.wav", "");
  fs::create_directories(m_scratch / "source" / "folder");
  show(2,
       []
       {
         EXPECT_EQ(frmopen2.File1.names(), (std::vector<std::string>{"e.wav", "new.wav"}));
         EXPECT_EQ(frmopen2.Dir1.names(), (std::vector<std::string>{"folder"}));
       });
}

TEST_F(SoundTools, waitsForTheCopy)
{
  frmopen2.Soubor = "late.wav";
  frmopen2.Slozka = source();
  m_desk.onBreath = [&]
  {
    EXPECT_TRUE(m_desk.seen.empty());
    if (m_desk.breaths == 3)
      writeBytes(m_scratch / "home/Bfdata/oggwav/late.wav", "late");
  };
  SpustAkci("oggenc.exe");
  EXPECT_EQ(m_desk.breaths, 3);
  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"start: oggenc.exe late.wav"}));
}

TEST_F(SoundTools, complainsAboutACopyThatDoesNotComeAndStartsTheTool) // half a minute
{
  frmopen2.Soubor = "never.wav";
  frmopen2.Slozka = source();
  SpustAkci("wssdec.exe");
  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"critical: H2H3H4" + programFolder() + "\\Bfdata\\oggwav\\\r\nH15",
                                                   "start: wssdec.exe never.wav"}));
  EXPECT_TRUE(fs::is_empty(m_scratch / "home/Bfdata/oggwav"));
  EXPECT_TRUE(fs::equivalent(fs::current_path(), m_scratch / "home/Bfdata/oggwav"));
}

/// A view that breaks while the form hides.
class BrokenView : public FormObserver
{
public:
  void formChanged(Form&) override { throw Failure(Fault::outOfMemory); }
  void formRefreshed(Form&) override {}
};

TEST_F(SoundTools, losesTheLogWhenOkFails)
{
  frmload.log.set("a whole run\r\n");
  m_desk.boxFails = true; // what the action itself cannot do is skipped
  show(2, [] { frmopen2.cmdOk.click(); });
  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"box: H1"}));
  EXPECT_EQ(frmload.log.text(), "a whole run\r\n");

  BrokenView view;
  show(8,
       [&]
       {
         frmopen2.observe(&view);
         frmopen2.cmdOk.click();
         frmopen2.observe(nullptr);
       });
  EXPECT_EQ(frmload.log.text(), "False");
}

} // namespace
} // namespace tarvelin::test
