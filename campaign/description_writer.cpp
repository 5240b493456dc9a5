// The Description.ext of a campaign. It has the classes of a mission's file, but a spacing of its own.
#include "campaign/description_writer.h"

#include "campaign/links.h"
#include "campaign/path_names.h"
#include "campaign/tree.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/tmpfrm.h"
#include "core/identity_rows.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/clock.h"

#include <functional>
#include <vector>

namespace tarvelin
{

namespace
{

/// The text as it grows.
struct Output
{
  std::string text;
  const LoggedSteps& steps;

  void line(std::string_view line) { addLine(text, line); }

  /// A line made by `compose`; it is missing when that fails.
  template <class Compose> void attemptLine(Compose&& compose)
  {
    steps([&] { addLine(text, compose()); });
  }
};

std::string quoted(const std::string& text)
{
  return "\"" + text + "\"";
}

void addIdentities(Output& out)
{
  const auto record = [](int row) -> const ZaznamIdentity& { return shared.IdentityKampane.at(row); };
  out.line("class CfgIdentities");
  out.line("{");
  const std::vector<Row> rows = identityRows(IdentitySide::campaign);
  for (int row = 0; row < static_cast<int>(rows.size()); ++row)
  {
    const Row& shown = rows[static_cast<std::size_t>(row)];
    if (!shown.marked)
      continue;
    out.line("    class " + shown.text);
    out.line("    {");
    out.attemptLine([&] { return "        name = " + quoted(record(row).Jmeno) + ";"; });
    out.attemptLine([&] { return "        face = " + quoted(record(row).Oblicej) + ";"; });
    out.attemptLine([&] { return "        glasses = " + quoted(record(row).Bryle) + ";"; });
    out.attemptLine([&] { return "        speaker = " + quoted(record(row).Hlas) + ";"; });
    out.attemptLine([&] { return "        pitch = " + record(row).VyskaHlasu + ";"; });
    out.line("     };");
  }
  out.line("};");
  out.line("");
}

/// Numbers the classes of awards and penalties. The form goes by the row, the number by the rows that were written: the
/// tenth is 010, those behind it have a blank, and past a hundred the last number stays.
class ClassSuffix
{
public:
  const std::string& next(int row)
  {
    ++m_written;
    if (row <= 9)
      m_suffix = "0" + std::to_string(m_written);
    else if (row <= 99)
      m_suffix = " " + std::to_string(m_written);
    return m_suffix;
  }

private:
  int m_written = 0;
  std::string m_suffix;
};

void addScore(Output& out, const std::string& name, const List& list, const Array<ZaznamHodnoceni>& records, int row)
{
  const auto record = [&]() -> const ZaznamHodnoceni& { return records.at(list.tag(row)); };
  out.line("    class " + name);
  out.line("    {");
  out.attemptLine([&] { return "        limit = " + std::to_string(record().Limit) + ";"; });
  for (int island = 0; island < shared.PocetOstrovu; ++island)
    out.attemptLine(
        [&] {
          return "        " + shared.OstrovyKoncovky.at(island) + " = " + JmenoZCesty(record().Soubory.at(island)) +
                 ";";
        });
  out.line("    };");
}

void addAwards(Output& out)
{
  const List& list = frmcamp3.awardlist;
  out.line("class Awards");
  out.line("{");
  ClassSuffix suffix;
  for (int row = 0; row < list.count(); ++row)
    if (list.marked(row))
      addScore(out, "Award" + suffix.next(row), list, shared.Odmeny, row);
  out.line("};");
  out.line("");
}

bool endsCampaign(int row)
{
  return shared.Tresty.at(frmcamp3.penaltylist.tag(row)).Ukoncovaci != 0;
}

/// The first penalty that ends the campaign, marked or not; the count of rows when there is none.
int terminatingPenalty(const Output& out)
{
  int row = 0;
  bool found = false;
  while (row < frmcamp3.penaltylist.count())
  {
    out.steps([&] { found = endsCampaign(row); });
    if (found)
      break;
    ++row;
  }
  return row;
}

void addPenalties(Output& out)
{
  const List& list = frmcamp3.penaltylist;
  out.line("class Penalties");
  out.line("{");
  ClassSuffix suffix;
  for (int row = 0; row < list.count(); ++row)
    out.steps(
        [&]
        {
          if (list.marked(row) && !endsCampaign(row))
            addScore(out, "Penalty" + suffix.next(row), list, shared.Tresty, row);
        });
  const int terminating = terminatingPenalty(out);
  if (terminating < list.count())
    addScore(out, "PenaltyGameOver", list, shared.Tresty, terminating);
  out.line("};");
  out.line("");
  if (list.index() >= 0)
    out.attemptLine([&]
                    { return "exitScore = " + std::to_string(shared.Tresty.at(list.tag(terminating)).Limit) + ";"; });
}

void addMissionDefault(Output& out)
{
  out.line("class MissionDefault");
  out.line("{");
  out.line("    lives = " + std::to_string(shared.Zivoty) + ";");
  out.line("    lost = ;");
  for (int end = 1; end <= 6; ++end)
    out.line("    end" + std::to_string(end) + " = ;");
  out.line("};");
  out.line("");
}

/// What the two words of a link mean for one chapter or mission. The names are looked up when a link asks for them.
struct Words
{
  int next;
  int same;
  std::string_view sixthOfSame; ///< key of the sixth ending when it leads to the same one
  std::function<std::string()> nextName;
  std::function<std::string()> sameName;
};

std::string endLine(std::size_t number, const std::string& link, const Words& words)
{
  const std::string key = "end" + std::to_string(number);
  if (link == Texty(words.next))
    return key + " = " + words.nextName();
  if (link == Texty(words.same))
    return (number == 6 ? std::string(words.sixthOfSame) : key) + " = " + words.sameName();
  return key + " = " + link;
}

/// The last of its kind has no next one: the word goes out as it is.
std::string lostName(const std::string& link, const Words& words, bool last)
{
  if (link == Texty(words.same))
    return words.sameName();
  return !last && link == Texty(words.next) ? words.nextName() : link;
}

/// The links of a chapter or a mission; the endings of the last one lead nowhere.
template <class Record>
void addLinks(Output& out, std::string_view blanks, const std::function<const Record&()>& record, const Words& words,
              bool last)
{
  for (std::size_t end = 1; end <= endLinks<Record>.size(); ++end)
    out.attemptLine(
        [&]
        {
          const auto link = endLinks<Record>.at(end - 1);
          const std::string line = last ? "end" + std::to_string(end) + " = " : endLine(end, record().*link, words);
          return std::string(blanks) + line + ";";
        });
  out.attemptLine([&] { return std::string(blanks) + "lost = " + lostName(record().Lost, words, last) + ";"; });
}

/// The class of a mission: its folder without the suffix of the island. Throws 5 for a name below five characters.
std::string missionClass(int chapter, int mission)
{
  const std::string folder = JmenoZCesty(shared.Kapitoly.at(chapter).Mise.at(mission).Cesta);
  return left(folder, static_cast<int>(length(folder)) - 5);
}

void addMission(Output& out, int chapter, int mission, bool last)
{
  const auto record = [=]() -> const MiseKampane& { return shared.Kapitoly.at(chapter).Mise.at(mission); };
  const Words words{nextMission, sameMission, "end6", [=] { return missionClass(chapter, mission + 1); },
                    [=] { return missionClass(chapter, mission); }};
  out.attemptLine([&] { return "        class " + missionClass(chapter, mission) + ": MissionDefault"; });
  out.line("        {");
  addLinks<MiseKampane>(out, "            ", record, words, last);
  out.attemptLine([&] { return "            template = " + JmenoZCesty(record().Cesta) + ";"; });
  out.line("        };");
}

std::string chapterClass(int chapter)
{
  return "PART" + std::to_string(chapter + 1);
}

void addChapterLinks(Output& out, int chapter, bool last)
{
  const auto record = [=]() -> const Kapitola& { return shared.Kapitoly.at(chapter); };
  // "en6": generated campaigns have always had it so
  const Words words{nextChapter, sameChapter, "en6", [=] { return chapterClass(chapter + 1); },
                    [=] { return chapterClass(chapter); }};
  addLinks<Kapitola>(out, "        ", record, words, last);
}

void addChapter(Output& out, int chapter, bool last)
{
  const auto record = [=]() -> const Kapitola& { return shared.Kapitoly.at(chapter); };
  out.line("    class " + chapterClass(chapter));
  out.line("    {");
  out.attemptLine([&] { return "        name = " + quoted(record().Jmeno) + ";"; });
  out.attemptLine([&] { return "        cutscene = " + JmenoZCesty(record().Cutscena) + ";"; });
  out.attemptLine([&] { return "        firstMission = " + missionClass(chapter, 0) + ";"; });
  addChapterLinks(out, chapter, last);
  out.line("");
  const int lastMission = SpocitejMise(chapter + 1) - 1;
  for (int mission = 0; mission <= lastMission; ++mission)
    addMission(out, chapter, mission, mission == lastMission);
  out.line("     };");
}

void addCampaign(Output& out)
{
  out.line("class Campaign");
  out.line("{");
  out.line("    name = " + quoted(shared.JmenoKampane) + ";");
  out.line("    firstBattle = PART1;");
  out.line("");
  out.line("");
  const int lastChapter = shared.Kapitoly.bound();
  for (int chapter = 0; chapter <= lastChapter; ++chapter)
    addChapter(out, chapter, chapter == lastChapter);
  out.line("};");
  out.line("");
}

enum class Named
{
  marked,
  all,
};

/// The list of class names, its last character cut: a comma, or the blank when there is no name.
template <class Record>
void addNames(Output& out, std::string_view key, const List& list, const Array<Record>& records, Named named)
{
  out.text += key;
  for (int row = 0; row < list.count(); ++row)
    if (named == Named::all || list.marked(row))
      out.steps([&] { out.text += records.at(list.tag(row)).Jmeno + ","; });
  out.text.pop_back();
  out.line("};");
}

template <class Record>
void addFile(Output& out, std::string_view blanks, std::string_view folder, const List& list,
             const Array<Record>& records, int row)
{
  const auto record = [&]() -> const Record& { return records.at(list.tag(row)); };
  out.attemptLine([&] { return std::string(blanks) + "name=" + quoted(record().Nazev) + ";"; });
  out.attemptLine(
      [&]
      {
        return std::string(blanks) + "sound[]={" + quoted("\\DtaExt\\" + std::string(folder) + "\\" + record().Soubor) +
               ",db" + record().Hlasitost + "," + record().Hloubka + "};";
      });
}

void addRadio(Output& out)
{
  const List& list = frmcamp5.seznamradia;
  const auto name = [&](int row) { return shared.RadiaKampane.at(list.tag(row)).Jmeno; };
  out.line("class CfgRadio");
  out.line("{");
  addNames(out, "    sounds[]={ ", list, shared.RadiaKampane, Named::marked);
  for (int row = 0; row < list.count(); ++row)
  {
    if (!list.marked(row))
      continue;
    out.attemptLine([&] { return "    class " + name(row); });
    out.line("    {");
    addFile(out, "        ", "sound", list, shared.RadiaKampane, row);
    out.attemptLine([&] { return "        title=$STRM_" + name(row) + ";"; });
    out.line("     };");
  }
  out.line("};");
}

void addMusic(Output& out)
{
  const List& list = frmcamp5.seznamhudby;
  out.line("");
  out.line("class CfgMusic");
  out.line("{");
  addNames(out, "    tracks[]={ ", list, shared.HudbyKampane, Named::marked);
  for (int row = 0; row < list.count(); ++row)
  {
    if (!list.marked(row))
      continue;
    out.attemptLine([&] { return "    class " + shared.HudbyKampane.at(list.tag(row)).Jmeno; });
    out.line("    {");
    addFile(out, "         ", "music", list, shared.HudbyKampane, row);
    out.line("    };");
  }
  out.line("};");
}

/// The subtitles of a sound. Whether one is on is asked of the mission's sound at the same place; when there is none it
/// is written.
void addSubtitles(Output& out, int sound)
{
  const ZaznamZvuku& record = shared.ZvukyKampane.at(sound);
  if (record.Titulky.bound() == 0)
    return;
  int written = 0;
  for (int i = 0; i <= record.Titulky.bound(); ++i)
  {
    bool on = true;
    out.steps([&] { on = shared.Zvuky.at(sound).Titulky.at(i).Zapnuto != 0; });
    if (!on)
      continue;
    ++written;
    out.line("            " + std::to_string(i) + ",$STRM_" + record.Jmeno + std::to_string(written) + ";");
  }
}

void addSounds(Output& out)
{
  const List& list = frmcamp5.seznamzvuku;
  out.line("");
  out.line("class CfgSounds");
  out.line("{");
  addNames(out, "    sounds[]={ ", list, shared.ZvukyKampane, Named::all); // all, while only the marked have a class
  for (int row = 0; row < list.count(); ++row)
  {
    if (!list.marked(row))
      continue;
    // The class takes its index from the list of music: generated campaigns have it so.
    out.attemptLine([&] { return "    class " + shared.ZvukyKampane.at(frmcamp5.seznamhudby.tag(row)).Jmeno; });
    out.line("    {");
    addFile(out, "        ", "sound", list, shared.ZvukyKampane, row);
    out.line("        titles[]=");
    out.line("        {");
    out.steps([&] { addSubtitles(out, list.tag(row)); });
    out.line("        };");
    out.line("     };");
  }
  out.line("};");
}

} // namespace

void UlozKampanDescription(const std::string& cesta)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při vytváření Description.ext pro kampaň do složky: " + cesta + ", " +
               failureText(failure) + std::string(crlf);
      });
  ZapisLog("Ukládání description.ext pro kampaň do: " + cesta + "," + platform::timeText() + std::string(crlf));
  Output out{{}, steps};
  addIdentities(out);
  addAwards(out);
  addPenalties(out);
  addMissionDefault(out);
  addCampaign(out);
  addRadio(out);
  addMusic(out);
  addSounds(out);
  tmpfrm.tmpcamp.set(out.text);
  steps([&] { writeText(cesta, tmpfrm.tmpcamp.text()); });
  ZapisLog("Konec ukládání description.ext pro kampaň," + platform::timeText() + std::string(crlf));
}

} // namespace tarvelin
