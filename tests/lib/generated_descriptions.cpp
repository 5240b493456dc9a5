#include "tests/lib/generated_descriptions.h"

#include "tests/lib/class_file.h"
#include "tests/test_home.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace tarvelin::test
{

namespace fs = std::filesystem;

namespace
{

/// What the program writes in a place of the tests although the game refuses it.
struct KnownRefusal
{
  std::string_view place;
  std::string_view reason;
};

// Each of them is what an author typed: values, titles and names go to the file as they stand, so a quote inside a
// title ends it, an empty field is no value, and a name with a blank or an accent is no name of a class.
constexpr std::array typed{
    KnownRefusal{"campaign/one-mission", "name goes on behind its closing quote"},
    KnownRefusal{"campaign/three-chapters", "name goes on behind its closing quote"},
    KnownRefusal{"campaign/three-chapters", "no name of a class or a member"}, // a ";" in the text of a link
    KnownRefusal{"mission/description/settings", "onloadintro goes on behind its closing quote"},
    KnownRefusal{"mission/description/settings", "avgScore has no value"},
    KnownRefusal{"mission/description/settings", "9 without ="}, // a ";" in the field of a number
    KnownRefusal{"mission/description/whole-catalogue", "onloadintro goes on behind its closing quote"},
    KnownRefusal{"mission/description/whole-catalogue", "avgScore has no value"},
    KnownRefusal{"mission/description/whole-catalogue", "bod without ="},
    KnownRefusal{"mission/description/addons", "class Prvn without {"},
    KnownRefusal{"mission/description/addons", "class A without {"},
    KnownRefusal{"mission/description/addons", "class Gran without {"},
    KnownRefusal{"mission/description_reader/settings", "onloadintro goes on behind its closing quote"},
    KnownRefusal{"mission/whole-road", "onloadintro goes on behind its closing quote"},
    KnownRefusal{"mission/whole-road", "empty item in an array"}, // a sound of an effect, its fields left empty
    KnownRefusal{"ClassSections.Radio", "class R without {"},
    KnownRefusal{"ClassSections.Radio", "name goes on behind its closing quote"},
    KnownRefusal{"ClassSections.Music", "no name of a class"},
    KnownRefusal{"ClassSections.Identities", "class row without {"},
    KnownRefusal{"ClassSections.Identities", "name goes on behind its closing quote"},
    KnownRefusal{"ClassSections.EnvironmentSoundsKeepTheWidthOfTheirNames", "class R without {"},
    KnownRefusal{"ClassSections.Effects", "class Pr without {"},
    KnownRefusal{"ClassSections.Titles", "text goes on behind its closing quote"},
    KnownRefusal{"CampaignDescription.MarkedIdentitiesHaveAClass", "name goes on behind its closing quote"},
    KnownRefusal{"CampaignDescription.RadioAndMusicNameTheMarkedAndGiveThemAClass", "class R without {"},
};

// A mission of a campaign is a class with the name of its folder, and folders have blanks and accents.
constexpr std::array folders{
    KnownRefusal{"campaign/bad-input", "class Pry without {"},         // Pryč.Abel
    KnownRefusal{"campaign/bad-input", "no name of a class"},          // Útok na most.Eden
    KnownRefusal{"campaign/one-mission", "class Dobyt without {"},     // Dobytí mostu.Eden
    KnownRefusal{"campaign/three-chapters", "class Obrana without {"}, // Obrana mostu.Abel
};

// The campaign's own ways, which campaigns in the wild have: the number of an award loses its "0" for a blank from the
// eleventh on, and a record or a row that is not there leaves a block without a head.
constexpr std::array own{
    KnownRefusal{"campaign/scores", "class Award without {"},
    KnownRefusal{"campaign/eleven-chapters", "no name of a class or a member"},
    KnownRefusal{"CampaignDescription.SoundsAreAllNamedAndTakeTheirClassFromTheMusic",
                 "no name of a class or a member"},
};

// The file with the bases is the author's to change, and these tests have none.
constexpr std::array basesGone{
    KnownRefusal{"ClassSections.Titles", "class Napis has an unknown base RSCTEXT"},
    KnownRefusal{"ClassSections.Titles", "class Obraz has an unknown base RSCTEXT"},
    KnownRefusal{"ClassSections.Titles", "class Obraz has an unknown base RSCPICTURE"},
};

/// True for a file that the program wrote, of a mission or of a campaign, and that no case wrote by hand.
bool isGenerated(std::string_view text)
{
  const bool ofMission =
      text.starts_with("//Description.ext pro konfiguraci mise\r\n") && text.ends_with("//Konec souboru\r\n");
  return ofMission || text.find("\r\nclass MissionDefault\r\n{\r\n    lives = ") != std::string_view::npos;
}

std::vector<std::string_view> linesOf(std::string_view text)
{
  std::vector<std::string_view> lines;
  for (std::size_t start = 0; start <= text.size();)
  {
    const std::size_t end = std::min(text.find("\r\n", start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

/// A mission without characters of its own ends their class all the same: a "};" between the sounds and the
/// environment.
bool isEndOfNoCharacters(const Refusal& refusal, const ClassFile& file, std::string_view text)
{
  const std::vector<std::string_view> lines = linesOf(text);
  const auto at = static_cast<std::size_t>(refusal.line);
  return refusal.reason == "} closes nothing" && !file.root().classes.contains("CFGIDENTITIES") &&
         lines.at(at - 1) == "};" && lines.at(at - 2).empty() && lines.at(at - 3) == "};" && lines.at(at).empty() &&
         lines.at(at + 1) == "class CfgEnvSounds";
}

/// Adds what the game refuses in `text` to `found`, and tells all of it when one of its reasons is not in `known`.
void check(std::string_view text, const std::set<std::string>& known, std::set<std::string>& found)
{
  const ClassFile file(text);
  bool isKnown = true;
  for (const Refusal& refusal : file.refusals())
  {
    if (isEndOfNoCharacters(refusal, file, text))
      continue;
    found.insert(refusal.reason);
    isKnown = isKnown && known.contains(refusal.reason);
  }
  EXPECT_TRUE(isKnown) << "The game refuses this Description.ext:\n" << told(file.refusals());
}

std::set<std::string> knownOf(std::string_view place)
{
  std::set<std::string> reasons;
  const auto add = [&](const auto& table)
  {
    for (const KnownRefusal& known : table)
    {
      if (known.place == place)
        reasons.emplace(known.reason);
    }
  };
  add(typed);
  add(folders);
  add(own);
  add(basesGone);
  return reasons;
}

} // namespace

int expectDescriptionsTaken(std::string_view place, const fs::path& folder)
{
  const std::set<std::string> known = knownOf(place);
  std::set<std::string> found;
  int checked = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
  {
    if (!entry.is_regular_file() || entry.path().extension() != ".ext")
      continue;
    const std::string text = readBytes(entry.path());
    if (!isGenerated(text))
      continue;
    check(text, known, found);
    ++checked;
  }
  EXPECT_EQ(found, known) << place << " is known for what it does not write";
  return checked;
}

void expectDescriptionTaken(std::string_view text)
{
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  const std::set<std::string> known = knownOf(std::string(test.test_suite_name()) + "." + test.name());
  std::set<std::string> found;
  check(text, known, found);
}

} // namespace tarvelin::test
