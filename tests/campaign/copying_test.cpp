#include "app/assemble.h"
#include "campaign/campaign_reset.h"
#include "campaign/copying.h"
#include "campaign/description_writer.h"
#include "campaign/overview.h"
#include "core/desk.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcopy.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"
#include "tests/platform/scratch.h"
#include "tests/platform/small_disk.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace tarvelin::tests
{
namespace
{

/// Notes the progress each time the interface may run, and does what the test says meanwhile.
class BreathingDesk : public Desk
{
public:
  BreathingDesk() { setDesk(this); }
  ~BreathingDesk() override { setDesk(nullptr); }

  void showModal(Form&) override {}
  Answer box(std::string_view, Buttons, Icon) override { return Answer::no; }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override
  {
    seen.push_back(frmcopy.lblmise.caption() + "|" + frmcopy.lbljmeno.caption() + "|" +
                   std::to_string(frmcopy.prubeh1.value()) + "/" + std::to_string(frmcopy.prubeh1.maximum()) + "|" +
                   std::to_string(frmcopy.prubeh2.value()) + "/" + std::to_string(frmcopy.prubeh2.maximum()));
    if (meanwhile)
      meanwhile();
  }

  std::vector<std::string> seen;
  std::function<void()> meanwhile;
};

class Copying : public testing::Test
{
protected:
  void SetUp() override
  {
    assembleProgram();
    ResetKampan();
    for (int text = 76; text <= 84; ++text)
      shared.Texty.at(text) = "T" + std::to_string(text);
    shared.JmenoKampane = "K";
  }
  void TearDown() override { assembleProgram(); }

  /// Every path below a folder, folders with "/" behind, sorted.
  std::string tree(std::string_view folder) const
  {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(m_scratch.native(folder)))
      names.push_back(fs::relative(entry.path(), m_scratch.native(folder)).generic_string() +
                      (entry.is_directory() ? "/" : ""));
    std::ranges::sort(names);
    std::string all;
    for (const std::string& name : names)
      all += name + " ";
    return all;
  }

  void copy(std::string_view from, std::string_view to) { KopirujSlozku(m_scratch.path(from), m_scratch.path(to)); }

  static bool logged(const std::string& text) { return frmload.log.text().find(text) != std::string::npos; }

  /// One chapter with one mission, as the tree leaves it.
  void addMission(const std::string& folder)
  {
    frmcamp4.campfiles.add("", "PART1", "1");
    frmcamp4.campfiles.add("PART1", "PART1MISSION1", "1");
    shared.PocetKapitol = 1;
    shared.Kapitoly.at(0).Mise.redim(0);
    shared.Kapitoly.at(0).Mise.at(0).Cesta = folder;
  }

  Scratch m_scratch;
  BreathingDesk m_desk;
};

TEST_F(Copying, AFolderIsCopiedWholeOverWhatIsThere)
{
  m_scratch.put("zdroj/mission.sqm", "nová");
  m_scratch.put("zdroj/pod složka/ř;\"1\".sqs", std::string("\0\xff\r\n", 4));
  fs::create_directories(m_scratch.native("zdroj/prazdna"));
  m_scratch.put("cil/MISSION.SQM", "stará mise");
  m_scratch.put("cil/navic.txt", "n");
  copy("zdroj", "cil");
  EXPECT_EQ(tree("cil"), "MISSION.SQM navic.txt pod složka/ pod složka/ř;\"1\".sqs prazdna/ ");
  EXPECT_EQ(m_scratch.bytes("cil/MISSION.SQM"), "nová");
  EXPECT_EQ(m_scratch.bytes("cil/pod složka/ř;\"1\".sqs"), std::string("\0\xff\r\n", 4));
  EXPECT_FALSE(logged("Nastala chyba"));
}

TEST_F(Copying, AFileThatFailsCostsThatFileOnly)
{
  m_scratch.put("zdroj/a.txt", "a");
  m_scratch.put("zdroj/b.txt", "b");
  m_scratch.put("zdroj/c.txt", "c");
  fs::create_directories(m_scratch.native("cil/b.txt")); // a folder of that name
  copy("zdroj", "cil");
  EXPECT_EQ(tree("cil"), "a.txt b.txt/ c.txt ");
  EXPECT_TRUE(logged("Nastala chyba při kopírování souboru: " + m_scratch.path("zdroj") +
                     " do: " + m_scratch.path("cil") + " , 75, Path/File access error\r\n"));
  EXPECT_EQ(frmcopy.prubeh2.value(), 3);
}

TEST_F(Copying, AMissingFolderIsLoggedOnce)
{
  copy("neni", "cil");
  const std::string line =
      "Nastala chyba při kopírování souboru: " + m_scratch.path("neni") + " do: " + m_scratch.path("cil") + " , 76, ";
  const std::size_t first = frmload.log.text().find(line);
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(frmload.log.text().find(line, first + 1), std::string::npos);
  KopirujSlozku("", m_scratch.path("cil"));
  EXPECT_TRUE(logged("Nastala chyba při kopírování souboru:  do: " + m_scratch.path("cil") + " , 52, "));
  EXPECT_EQ(tree("cil"), "");
}

TEST_F(Copying, LinksThatLeadBackAreNotFollowed)
{
  m_scratch.put("zdroj/pod/a.txt", "a");
  m_scratch.put("jinde/b.txt", "b");
  fs::create_directory_symlink(m_scratch.native("zdroj"), m_scratch.native("zdroj/pod/nahoru"));
  fs::create_directory_symlink(m_scratch.native("zdroj/pod"), m_scratch.native("zdroj/pod/sem"));
  fs::create_directory_symlink(m_scratch.native(), m_scratch.native("zdroj/nad"));
  fs::create_directory_symlink("/", m_scratch.native("zdroj/disk"));
  fs::create_directory_symlink(m_scratch.native("jinde"), m_scratch.native("zdroj/odkaz"));
  fs::create_symlink(m_scratch.native("neni"), m_scratch.native("zdroj/nikam"));
  copy("zdroj", "cil");
  EXPECT_EQ(tree("cil"), "odkaz/ odkaz/b.txt pod/ pod/a.txt ");
}

TEST_F(Copying, FoldersThatLinkToEachOtherDoNotGrowWithoutEnd)
{
  constexpr int folders = 12;
  for (int from = 0; from < folders; ++from)
  {
    const std::string folder = "zdroj/d" + std::to_string(from);
    m_scratch.put(folder + "/f", std::to_string(from));
    for (int to = 0; to < folders; ++to)
      fs::create_directory_symlink(m_scratch.native("zdroj/d" + std::to_string(to)),
                                   m_scratch.native(folder + "/l" + std::to_string(to)));
  }
  copy("zdroj", "cil");
  for (int from = 0; from < folders; ++from)
    for (int to = 0; to < folders; ++to)
    {
      const std::string file = "cil/d" + std::to_string(from) + "/l" + std::to_string(to) + "/f";
      EXPECT_EQ(m_scratch.has(file), from != to) << file;
    }
  const std::string all = tree("cil");
  constexpr int direct = folders + folders * (folders - 1); // each folder, and each through each other's link
  constexpr int chain = folders - 2; // the first link was followed on to those that had not been seen yet
  std::ptrdiff_t files = 0;
  for (std::size_t at = all.find("/f "); at != std::string::npos; at = all.find("/f ", at + 1))
    ++files;
  EXPECT_EQ(files, direct + chain);
}

TEST_F(Copying, ATargetInTheSourceIsNotCopiedIntoItself)
{
  m_scratch.put("mise/a.txt", "a");
  m_scratch.put("mise/kampan/jiny.txt", "j");
  copy("mise", "mise/kampan/cil");
  EXPECT_EQ(tree("mise/kampan/cil"), "a.txt kampan/ kampan/jiny.txt ");
  copy("mise", "mise/kampan/cil");
  EXPECT_EQ(tree("mise/kampan/cil"), "a.txt kampan/ kampan/jiny.txt ");
  copy("mise", "mise"); // over itself: nothing changes
  EXPECT_EQ(m_scratch.bytes("mise/a.txt"), "a");
}

TEST_F(Copying, TheInterfaceRunsAfterEachFileAndFolder)
{
  m_scratch.put("zdroj/pod/a.txt", "a");
  m_scratch.put("zdroj/b.txt", "b");
  m_scratch.put("zdroj/c.txt", "c");
  copy("zdroj", "cil");
  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"|T84 a.txt|0/100|1/1", "|T84 a.txt|0/100|1/1",
                                                   "|T84 b.txt|0/100|1/2", "|T84 c.txt|0/100|2/2"}));
}

TEST_F(Copying, SoundsAreCopiedMarkedOrNot)
{
  m_scratch.put("zvuky/r 1.ogg", "radio");
  m_scratch.put("zvuky/z.ogg", "zvuk");
  m_scratch.put("zvuky/h.ogg", "hudba");
  shared.RadiaKampane.redim(2);
  shared.RadiaKampane.at(0).Cesta = shared.RadiaKampane.at(1).Cesta = m_scratch.path("zvuky");
  shared.RadiaKampane.at(0).Soubor = "chybí.ogg";
  shared.RadiaKampane.at(1).Soubor = "r 1.ogg";
  shared.ZvukyKampane.redim(1);
  shared.ZvukyKampane.at(0).Cesta = m_scratch.path("zvuky");
  shared.ZvukyKampane.at(0).Soubor = "z.ogg";
  shared.HudbyKampane.redim(1);
  shared.HudbyKampane.at(0).Cesta = m_scratch.path("zvuky");
  shared.HudbyKampane.at(0).Soubor = "h.ogg";
  frmcamp5.seznamradia.add("chybí", 0);
  frmcamp5.seznamradia.add("r", 1);
  frmcamp5.seznamzvuku.add("z", 0);
  frmcamp5.seznamhudby.add("h", 0);
  frmcamp5.seznamhudby.add("bez záznamu", 7);
  m_scratch.put("out/K.Eden/DtaExt/sound/r 1.ogg", "starý");
  KopirujKampan(m_scratch.path("out"));
  EXPECT_EQ(
      tree("out/K.Eden"),
      "DtaExt/ DtaExt/music/ DtaExt/music/h.ogg DtaExt/sound/ DtaExt/sound/r 1.ogg DtaExt/sound/z.ogg Missions/ ");
  EXPECT_EQ(m_scratch.bytes("out/K.Eden/DtaExt/sound/r 1.ogg"), "radio");
  const std::string failed = "Nastala chyba při kopírování souborů kampaně do složky: " + m_scratch.path("out");
  EXPECT_TRUE(logged(failed + "Soubor: chybí.ogg, 53, File not found\r\n"));
  EXPECT_TRUE(logged(failed + "Soubor: h.ogg, 9, Subscript out of range\r\n"));
  EXPECT_TRUE(logged(failed + "Soubor: , 75, ")); // DtaExt was there
  EXPECT_EQ(m_desk.seen, (std::vector<std::string>{"T81|T84 chybí.ogg|1/2|1/100", "T81|T84 r 1.ogg|2/2|2/100",
                                                   "T82|T84 z.ogg|1/1|3/100", "T83|T80 h.ogg|1/2|4/100",
                                                   "T83|T80 h.ogg|2/2|5/100"}));
}

TEST_F(Copying, ACampaignIsNotEnteredTwice)
{
  m_scratch.put("mise/A.Eden/mission.sqm", "a");
  m_scratch.put("mise/A.Eden/b.sqs", "b");
  addMission(m_scratch.path("mise/A.Eden"));
  bool shownInside = true;
  bool runsInside = false;
  m_desk.meanwhile = [&]
  {
    runsInside = campaignIsCopied();
    KopirujKampan(m_scratch.path("jinam"));
    frmmain.mnucampaignedit.click();
    shownInside = frmcamp1.visible();
    EXPECT_TRUE(frmcopy.visible());
  };
  KopirujKampan(m_scratch.path("out"));
  EXPECT_TRUE(runsInside);
  EXPECT_FALSE(shownInside);
  EXPECT_FALSE(m_scratch.has("jinam"));
  EXPECT_FALSE(campaignIsCopied());
  EXPECT_FALSE(frmcopy.visible());
  EXPECT_EQ(m_desk.seen,
            (std::vector<std::string>{"T76 1 T771|T84 b.sqs|0/1|1/2", "T76 1 T771|T84 mission.sqm|0/1|2/2"}));
  EXPECT_EQ(frmcopy.prubeh1.value(), 1);
  m_desk.meanwhile = nullptr;
  frmmain.mnucampaignedit.click();
  EXPECT_TRUE(frmcamp1.visible());
}

TEST_F(Copying, AResetMeanwhileLosesWhatIsNotCopiedYet)
{
  m_scratch.put("mise/A.Eden/mission.sqm", "a");
  m_scratch.put("mise/A.Eden/pod/b.sqs", "b");
  addMission(m_scratch.path("mise/A.Eden"));
  m_desk.meanwhile = [] { ResetKampan(); };
  KopirujKampan(m_scratch.path("out"));
  EXPECT_EQ(tree("out/K.Eden/Missions"), "A.Eden/ A.Eden/mission.sqm A.Eden/pod/ A.Eden/pod/b.sqs ");
}

TEST_F(Copying, AFullDiskCostsTheFilesThatDoNotFit)
{
  m_scratch.put("mise/A.Eden/a.sqs", "a");
  m_scratch.put("mise/A.Eden/mission.sqm", std::string(100000, 'm'));
  m_scratch.put("mise/A.Eden/z.sqs", "z");
  addMission(m_scratch.path("mise/A.Eden"));
  shared.CestaKampane = m_scratch.path("out");
  {
    const SmallDisk disk(64);
    KopirujKampan(m_scratch.path("out"));
    UlozKampanDescription(m_scratch.path("out/K.Eden") + "\\Description.ext");
    UlozKampanOverview(m_scratch.path("out/K.Eden") + "\\Overview.html", "");
  }
  EXPECT_EQ(m_scratch.bytes("out/K.Eden/Missions/A.Eden/a.sqs"), "a");
  EXPECT_EQ(m_scratch.bytes("out/K.Eden/Missions/A.Eden/z.sqs"), "z");
  EXPECT_FALSE(m_scratch.has("out/K.Eden/Missions/A.Eden/mission.sqm")); // no half of it
  EXPECT_TRUE(logged("Nastala chyba při kopírování souboru: " + m_scratch.path("mise/A.Eden") +
                     " do: " + m_scratch.path("out/K.Eden/Missions/A.Eden") + " , 61, Disk full\r\n"));
  EXPECT_TRUE(logged("Nastala chyba při vytváření Description.ext pro kampaň do složky: " +
                     m_scratch.path("out/K.Eden/Description.ext") + ", 61, Disk full\r\n"));
  EXPECT_TRUE(logged("Nastala chyba při vytváření overview pro kampaň do: " +
                     m_scratch.path("out/K.Eden/Overview.html") + ", 61, Disk full\r\n"));
}

TEST_F(Copying, FoldersAboveAreNotMade)
{
  KopirujKampan(m_scratch.path("neni/out"));
  EXPECT_EQ(m_scratch.count(), 0u);
  EXPECT_TRUE(logged("Soubor: , 76, Path not found\r\n"));
  KopirujKampan(m_scratch.path("out") + "\\"); // two backslashes are one
  EXPECT_EQ(tree("out"), "K.Eden/ K.Eden/DtaExt/ K.Eden/Missions/ ");
}

} // namespace
} // namespace tarvelin::tests
