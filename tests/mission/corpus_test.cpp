// Missions that other people wrote, where they lie beside the project. Three of them with values read off by hand.

#include "app/assemble.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"
#include "mission/description_reader.h"
#include "mission/sqm_reader.h"
#include "platform/paths.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace tarvelin;
namespace fs = std::filesystem;

namespace
{

fs::path corpus()
{
  return fs::path(TARVELIN_ROOT) / ".." / "shared" / "corpus";
}

void read(const fs::path& mission)
{
  assembleProgram();
  shared.Texty.at(107) = "nobody";
  NactiSqm(platform::toProgram(fs::absolute(mission / "mission.sqm").lexically_normal().string()));
}

void everyMissionIsRead()
{
  int count = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(corpus()))
    if (fs::exists(entry.path() / "mission.sqm"))
    {
      read(entry.path());
      EXPECT_EQ(frmload.log.text(), "") << entry.path();
      EXPECT_EQ(frmmain.lblznackypocet.caption(), std::to_string(shared.PocetZnacek)) << entry.path();
      ++count;
    }
  EXPECT_GT(count, 20);
}

/// Two sensors, the first without a type.
void endingsOfAChain()
{
  read(corpus() / "demo_end_chain.Demo");
  ASSERT_EQ(shared.PocetSenzoru, 2);
  EXPECT_EQ(shared.Senzory.at(0).Type, "");
  EXPECT_EQ(shared.Senzory.at(0).Text, "\"StartEnd\"");
  EXPECT_EQ(shared.Senzory.at(0).Expcond, "\"true\"");
  EXPECT_EQ(shared.Senzory.at(1).Type, "\"END1\"");
  EXPECT_EQ(shared.Senzory.at(1).Text, "\"Konec E1\"");
  EXPECT_EQ(shared.Senzory.at(1).Expcond, "\"uplkonec\"");
  EXPECT_EQ(frmdebrief.lblpocetkoncu.caption(), "2");
  EXPECT_TRUE(frmdebrief.cmdnext.enabled());
  EXPECT_EQ(shared.PocetZnacek, 0);
}

/// Counts with decimals, a class of no markers in front of the sensors, some intel.
void countsWithDecimals()
{
  read(corpus() / "jeep_lock_regression.Demo");
  EXPECT_EQ(shared.Pocasi, "0.300000");
  EXPECT_EQ(shared.PredpovedPocasi, "0.300000");
  EXPECT_EQ(shared.Hodina, "12.000000");
  EXPECT_EQ(frmmain.lblHodina.caption(), "12");
  EXPECT_EQ(frmmain.lblPocasi.caption(), "0.300000");
  EXPECT_EQ(shared.Mesic, "");
  EXPECT_EQ(shared.PocetZnacek, 0);
  ASSERT_EQ(shared.PocetSenzoru, 1);
  EXPECT_EQ(shared.Senzory.at(0).Text, "\"unlocker\"");
  EXPECT_EQ(shared.Senzory.at(0).Expcond, "\"true\"");
  EXPECT_EQ(shared.Senzory.at(0).Type, "");
}

/// All intel on one line: every value is what stands behind the line's first equals sign.
void intelOnOneLine()
{
  read(corpus() / "perf_combat.eden");
  const std::string rest = "1985; month=6; day=21; hour=12; minute=0; }";
  EXPECT_EQ(shared.Mesic, rest);
  EXPECT_EQ(shared.Den, rest);
  EXPECT_EQ(shared.Hodina, rest);
  EXPECT_EQ(shared.Minuta, rest);
  EXPECT_EQ(frmmain.lblMesic.caption(), "1985");
  EXPECT_EQ(shared.PocetZnacek, 0);
  EXPECT_EQ(shared.PocetSenzoru, 0);
}

void readDescription(const fs::path& mission)
{
  assembleProgram();
  NactiDescription(platform::toProgram(fs::absolute(mission / "description.ext").lexically_normal().string()));
}

/// The lines of the log behind the one that names the file.
std::string descriptionLog()
{
  const std::string& log = frmload.log.text();
  return log.substr(log.find("\r\n") + 2);
}

/// Titles and numbers with a semicolon behind them, keys that are unknown, classes, line ends of other systems.
void descriptionsByHand()
{
  int count = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(corpus()))
    if (fs::exists(entry.path() / "description.ext"))
    {
      readDescription(entry.path());
      EXPECT_EQ(frmload.log.text().find("Nastala chyba"), std::string::npos) << entry.path();
      ++count;
    }
  EXPECT_GT(count, 10);

  readDescription(corpus() / "mp_horn.Demo");
  EXPECT_EQ(frmmain.onloadmission.text(), " MP Horn Replication Test;");
  EXPECT_TRUE(frmmain.respawn.checked());
  EXPECT_FALSE(frmmain.None.value());
  EXPECT_EQ(descriptionLog(), "OnLoadMission =  \"MP Horn Replication Test\";\r\n");

  readDescription(corpus() / "demo_end_ukonci.Demo");
  EXPECT_FALSE(frmmain.Debrifing.checked());
  EXPECT_EQ(descriptionLog(), "Debriefing =  0;\r\n");

  readDescription(corpus() / "sound_preload.Demo");
  EXPECT_EQ(descriptionLog(), "");
}

class CorpusTest : public testing::Test
{
public:
  explicit CorpusTest(void (*body)()) : m_body(body) {}
  void TestBody() override { m_body(); }

private:
  void (*m_body)();
};

const bool registered = []
{
  if (!fs::is_directory(corpus()))
    return false;
  const auto add = [](const char* name, void (*body)())
  {
    testing::RegisterTest("Corpus", name, nullptr, nullptr, __FILE__, __LINE__,
                          [body]() -> CorpusTest* { return new CorpusTest(body); });
  };
  add("EveryMissionIsRead", everyMissionIsRead);
  add("EndingsOfAChain", endingsOfAChain);
  add("CountsWithDecimals", countsWithDecimals);
  add("IntelOnOneLine", intelOnOneLine);
  add("DescriptionsByHand", descriptionsByHand);
  return true;
}();

} // namespace
