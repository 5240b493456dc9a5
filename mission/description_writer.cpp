#include "mission/description_writer.h"

#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/class_sections.h"
#include "mission/page.h"
#include "mission/stringtable_writer.h"
#include "mission/weapon_pools.h"
#include "panels/sound_copy.h"

namespace tarvelin
{

namespace
{

void addComment(std::string& text, std::string_view comment)
{
  addLine(text, {});
  addLine(text, comment);
}

// None of these lines ends in a semicolon, unlike the classes below: the game takes them, and so does the reader.
void addValue(std::string& text, std::string_view key, std::string_view value)
{
  addLine(text, std::string(key) + " = " + std::string(value));
}

void addScore(std::string& text)
{
  if (!frmmain.Skore.checked())
    return;
  addComment(text, "//nastaveni urovni skore");
  addValue(text, "minScore", frmmain.minScore.text());
  addValue(text, "avgScore", frmmain.avgScore.text());
  addValue(text, "maxScore", frmmain.maxScore.text());
}

/// The kind of respawn; of several that are on the later one, none when none is.
std::string respawnKind()
{
  std::string kind;
  for (const Option* const option :
       {&frmmain.None, &frmmain.Bird, &frmmain.Instant, &frmmain.Group, &frmmain.Side, &frmmain.Base})
    if (option->value())
      kind = option->name();
  return kind;
}

void addRespawn(std::string& text)
{
  if (!frmmain.respawn.checked())
    return;
  addComment(text, "//nasatveni oziveni multiplayer misi");
  addValue(text, "respawn", respawnKind());
  addValue(text, "respawndelay", frmmain.txtcekat.text());
}

struct Switch
{
  std::string_view comment;
  std::string_view key;
  const Check& check;
};

// The spellings of comments and keys are those of all the files that lie about.
const Switch switches[] = {
    {"//ma se po konci mise ukazat knizka s hodnocenim", "debriefing", frmmain.Debrifing},
    {"//muze se pouyivat mapa?", "showmap", frmmain.showMap},
    {"//muze se pouzivat GPS?", "showGPS", frmmain.showGPS},
    {"//muze se pouzivat kompas?", "showCompass", frmmain.showCompass},
    {"//muzou se pouzivat hodinky?", "showWatch", frmmain.showWatch},
    {"//maji se zobrazit poznamky?", "showNotepad", frmmain.showNotepad},
};

struct Title
{
  std::string_view comment;
  std::string_view key;
  const Text& field;
};

const Title titles[] = {
    {"//titulek ktery se zobrazi na obrazovce Brifingu", "onloadintro", frmmain.onloadintro},
    {"//titulek ktery se zobrazi pri nacitani mise", "onloadmission", frmmain.onloadmission},
};

void addSettings(std::string& text)
{
  addScore(text);
  addRespawn(text);
  for (const auto& [comment, key, check] : switches)
  {
    addComment(text, comment);
    addValue(text, key, check.checked() ? "1" : "0");
  }
  for (const auto& [comment, key, field] : titles)
  {
    addComment(text, comment);
    addValue(text, key, "\"" + field.text() + "\"");
  }
}

} // namespace

void UlozDescription(const std::string& cesta)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        const std::string number = std::to_string(failure.number);
        return "Nastala chyba při ukládání Description.ext do složky: " + cesta + ", " + number + ", " + number +
               std::string(crlf); // the number twice, and no words
      });
  ZapisLog("Vytváření: " + cesta + std::string(crlf));
  std::string text;
  addLine(text, "//Description.ext pro konfiguraci mise");
  addSettings(text);
  appendWeapons(text, steps);
  appendMagazines(text, steps);
  appendClassSections(text, steps);
  text += "//Konec souboru";
  tmpfrm.tmptxt2.set(text);
  steps([&] { writeText(cesta, tmpfrm.tmptxt2.text()); });
  UlozStringtable(shared.CestaMise + "Stringtable.csv", 0);
  KopirujZvuky();
}

} // namespace tarvelin
