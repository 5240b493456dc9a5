#include "mission/stringtable_writer.h"

#include "core/desk.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnahled.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

struct Source
{
  const List& radioList;
  const Array<ZaznamRadia>& radios;
  const List& soundList;
  const Array<ZaznamZvuku>& sounds;
};

const Source missionSource = {frmmain.seznamradia, shared.Radia, frmmain.seznamzvuku, shared.Zvuky};
const Source campaignSource = {frmcamp5.seznamradia, shared.RadiaKampane, frmcamp5.seznamzvuku, shared.ZvukyKampane};

/// The preview lets go of the table that is about to be replaced.
void leavePreview()
{
  if (!containsIgnoringCase(frmnahled.caption(), "STRINGTABLE.CSV"))
    return;
  frmnahled.nahledbrowser.navigate(programFile("\\Bfdata\\dokumentace\\index.html"));
  frmnahled.setCaption("Náhled souborů: Nápověda");
  tell(Hlasky(message::previewLeft));
}

/// A row but for its comment. The columns have Italian before Spanish, unlike the records.
template <class Texts> std::string row(const std::string& key, const Texts& texts)
{
  std::string line = "STRM_" + key;
  for (const std::string* const text :
       {&texts.TextCs, &texts.TextEn, &texts.TextDe, &texts.TextFr, &texts.TextIt, &texts.TextEs})
    line += ",\"" + *text + "\"";
  return line + ",";
}

/// Calls `action(record)` for the record of each marked item, which its tag names.
template <class Record, class Action>
void eachMarked(const List& list, const Array<Record>& records, const LoggedSteps& steps, Action action)
{
  for (int i = 0; i < list.count(); ++i)
    if (list.marked(i))
      steps([&] { action(records.at(list.tag(i))); });
}

void addRadios(std::string& table, const Source& source, const LoggedSteps& steps)
{
  eachMarked(source.radioList, source.radios, steps,
             [&](const ZaznamRadia& radio) { addLine(table, row(radio.Jmeno, radio) + radio.Postava); });
}

/// Subtitles are numbered by their place; the sound's class counts only those that are on.
void addSubtitles(std::string& table, const Source& source, const LoggedSteps& steps)
{
  eachMarked(source.soundList, source.sounds, steps,
             [&](const ZaznamZvuku& sound)
             {
               for (int j = 0; j <= sound.Titulky.bound(); ++j)
                 if (const ZaznamTextu& subtitle = sound.Titulky.at(j); subtitle.Zapnuto != 0)
                   addLine(table, row(sound.Jmeno + std::to_string(j + 1), subtitle));
             });
}

} // namespace

void UlozStringtable(const std::string& cesta, Flag kampan)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při ukládání Stringtable.csv do složky: " + cesta + ", " + failureText(failure) +
               std::string(crlf);
      });
  const Source& source = kampan == 0 ? missionSource : campaignSource;
  ZapisLog("Vytváření: " + cesta + std::string(crlf));
  steps(leavePreview);
  const bool opened = steps([&] { platform::writeFile(cesta, {}); });
  std::string table;
  addLine(table, "LANGUAGE,Czech,English,German,French,Italian,Spanish,Comment");
  addRadios(table, source, steps);
  addLine(table, {});
  addSubtitles(table, source, steps);
  addLine(table, {});
  addLine(table, frmdalsinast.txtstringtable.text());
  tmpfrm.tmptxt3.set(table);
  if (opened)
    steps([&] { writeText(cesta, tmpfrm.tmptxt3.text()); });
}

} // namespace tarvelin
