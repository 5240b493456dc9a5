#include "mission/description_reader.h"

#include "core/forms/frmmain.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/strings.h"
#include "core/text_file.h"

#include <optional>

namespace tarvelin
{

namespace
{

// A keyword counts wherever it stands in a line, in comments and in longer words too, and one line may hold several.
// Values are taken as they stand: blanks and semicolons of a hand-written file go to the field.

struct Score
{
  std::string_view keyword;
  Text& field;
  std::string_view logged;
};

const Score scores[] = {
    {"MINSCORE", frmmain.minScore, "MinScore"},
    {"AVGSCORE", frmmain.avgScore, "AvgScore"},
    {"MAXSCORE", frmmain.maxScore, "MaxScore"},
};

struct Switch
{
  std::string_view keyword;
  Check& check;
  std::string_view logged;
};

const Switch switches[] = {
    {"DEBRIEFING", frmmain.Debrifing, "Debriefing"}, {"SHOWMAP", frmmain.showMap, "ShowMap"},
    {"SHOWGPS", frmmain.showGPS, "ShowGps"},         {"SHOWCOMPASS", frmmain.showCompass, "ShowCompass"},
    {"SHOWWATCH", frmmain.showWatch, "ShowWatch"},   {"SHOWNOTEPAD", frmmain.showNotepad, "ShowNotepad"},
};

struct Title
{
  std::string_view keyword;
  std::string_view otherKey; ///< a longer key that is not meant
  Text& field;
  std::string_view logged;
};

const Title titles[] = {
    {"ONLOADINTRO", "ONLOADINTROTIME", frmmain.onloadintro, "OnLoadIntro"},
    {"ONLOADMISSION", {}, frmmain.onloadmission, "OnLoadMission"},
};

void logValue(std::string_view key, std::string_view value)
{
  ZapisLog(std::string(key) + " = " + std::string(value) + std::string(crlf));
}

void readRespawn(const std::string& value)
{
  frmmain.respawn.set(true);
  const std::string kind = upper(trim(value));
  for (Option* const option :
       {&frmmain.None, &frmmain.Bird, &frmmain.Instant, &frmmain.Group, &frmmain.Side, &frmmain.Base})
    if (kind == upper(option->name()))
    {
      option->set(true);
      logValue("Respawn", option->name());
    }
}

void readLine(std::string_view line, const std::string& value, const LoggedSteps& steps)
{
  const std::string copy = upper(line);
  const auto has = [&](std::string_view keyword) { return copy.find(keyword) != std::string::npos; };
  for (const auto& [keyword, field, logged] : scores)
    if (has(keyword))
    {
      field.set(value);
      frmmain.Skore.set(true);
      logValue(logged, trim(value));
    }
  if (has("RESPAWNDELAY"))
    frmmain.txtcekat.set(value);
  else if (has("RESPAWN"))
    readRespawn(value);
  for (const auto& [keyword, check, logged] : switches)
    if (has(keyword))
    {
      steps([&] { check.set(val(value) != 0); });
      logValue(logged, value);
    }
  for (const auto& [keyword, otherKey, field, logged] : titles)
    if (has(keyword) && (otherKey.empty() || !has(otherKey)))
    {
      field.set(BezUvozovek(value));
      logValue(logged, value);
    }
}

} // namespace

void NactiDescription(const std::string& cesta)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při čtení Description.ext ze složky: " + cesta + ", " + failureText(failure) +
               std::string(crlf);
      });
  ZapisLog("Načítání Description ext z: !" + cesta + std::string(crlf));
  std::optional<LineReader> file;
  if (!steps([&] { file.emplace(cesta); }))
    return;
  std::string value; // a line without a value is read with that of the line before
  while (!file->atEnd())
  {
    const std::string line = file->next();
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos)
      value = line.substr(equals + 1);
    readLine(line, value, steps);
  }
}

} // namespace tarvelin
