#include "mission/class_sections.h"

#include "core/forms/form2.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/identity_rows.h"
#include "core/logged_steps.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/number_texts.h"
#include "mission/page.h"
#include "platform/files.h"
#include "platform/locale.h"

namespace tarvelin
{

// The blanks at the beginning of the lines differ from section to section: they are those of all the files that lie
// about, and the lines are compared with them byte by byte.

namespace
{

constexpr int environmentNameWidth = 255;

std::string fileName(std::string_view path)
{
  return std::string(path.substr(path.rfind('\\') + 1)); // without a backslash all of it
}

std::string quoted(std::string_view text)
{
  return "\"" + std::string(text) + "\"";
}

/// Volume and pitch, as they were typed.
std::string loudness(const std::string& volume, const std::string& pitch)
{
  return ",db" + volume + "," + pitch;
}

/// Calls `action(i)` as a step for each marked item.
template <class Action> void eachMarked(const List& list, const LoggedSteps& steps, Action action)
{
  for (int i = 0; i < list.count(); ++i)
    if (list.marked(i))
      steps([&] { action(i); });
}

/// Calls `action(element, j)` for each element that is on.
template <class Record, class Action> void eachOn(const Array<Record>& records, Action action)
{
  for (int j = 0; j <= records.bound(); ++j)
    if (records.at(j).Zapnuto != 0)
      action(records.at(j), j);
}

/// A list of names, each with a comma behind it, of which the last one goes; without a name the blank of the opening.
class TrimmedNames
{
public:
  TrimmedNames(std::string& text, std::string_view opening) : m_text(text) { m_text += opening; }

  void add(std::string_view name) { m_text.append(name).append(","); }

  void close()
  {
    m_text.pop_back();
    addLine(m_text, "};");
  }

private:
  std::string& m_text;
};

/// A name in a list that knows only the last place of all as the one without a comma, whether or not it is written.
void addByPlace(std::string& text, std::string_view name, int place, int lastPlace)
{
  text += name;
  if (place != lastPlace)
    text += ",";
}

void openClass(std::string& text, std::string_view name)
{
  addLine(text, "class " + std::string(name));
  addLine(text, "{");
}

void addRadios(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmmain.seznamradia;
  const auto record = [&](int i) -> const ZaznamRadia& { return shared.Radia.at(list.tag(i)); };
  openClass(text, "CfgRadio");
  TrimmedNames names(text, "     sounds[]={ ");
  eachMarked(list, steps, [&](int i) { names.add(record(i).Jmeno); });
  names.close();
  eachMarked(list, steps,
             [&](int i)
             {
               const ZaznamRadia& radio = record(i);
               addLine(text, "    class " + radio.Jmeno);
               addLine(text, "    {");
               addLine(text, "         name=" + quoted(radio.Nazev) + ";");
               addLine(text, "         sound[]={" + quoted("\\sound\\" + radio.Soubor) +
                                 loudness(radio.Hlasitost, radio.Hloubka) + "};");
               addLine(text, "         title=$STRM_" + radio.Jmeno + ";");
               addLine(text, "     };"); // one blank more than its opening brace
             });
  addLine(text, "};");
  addLine(text, {});
}

void addMusic(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmmain.seznamhudby;
  const auto record = [&](int i) -> const ZaznamHudby& { return shared.Hudby.at(list.tag(i)); };
  openClass(text, "CfgMusic");
  TrimmedNames names(text, "    tracks[]={ ");
  eachMarked(list, steps, [&](int i) { names.add(record(i).Jmeno); });
  names.close();
  eachMarked(list, steps,
             [&](int i)
             {
               const ZaznamHudby& music = record(i);
               addLine(text, "    class " + music.Jmeno);
               addLine(text, "    {");
               addLine(text, "        name=" + quoted(music.Nazev) + ";");
               addLine(text, "        sound[]={" + quoted("\\music\\" + music.Soubor) +
                                 loudness(music.Hlasitost, music.Hloubka) + "};");
               addLine(text, "    };");
             });
  addLine(text, "};");
  addLine(text, {});
}

void addSound(std::string& text, const ZaznamZvuku& sound)
{
  addLine(text, "    class " + sound.Jmeno);
  addLine(text, "    {");
  addLine(text, "         name=" + quoted(sound.Nazev) + ";");
  addLine(text,
          "         sound[]={" + quoted("\\sound\\" + sound.Soubor) + loudness(sound.Hlasitost, sound.Hloubka) + "};");
  addLine(text, "         titles[]=");
  addLine(text, "         {");
  int written = 0; // the stringtable numbers by place instead
  eachOn(sound.Titulky,
         [&](const ZaznamTextu&, int j)
         {
           ++written;
           addLine(text, "            " + std::to_string(j) + ",$STRM_" + sound.Jmeno + std::to_string(written) + ";");
         });
  addLine(text, "         };");
  addLine(text, "    };");
}

void addSounds(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmmain.seznamzvuku;
  const auto record = [&](int i) -> const ZaznamZvuku& { return shared.Zvuky.at(list.tag(i)); };
  openClass(text, "CfgSounds");
  TrimmedNames names(text, "    sounds[]={ ");
  for (int i = 0; i < list.count(); ++i) // marked or not, unlike the classes
    steps([&] { names.add(record(i).Jmeno); });
  names.close();
  eachMarked(list, steps, [&](int i) { addSound(text, record(i)); });
  addLine(text, "};");
  addLine(text, {});
}

void addIdentity(std::string& text, const std::string& name, const ZaznamIdentity& identity)
{
  addLine(text, "    class " + name);
  addLine(text, "    {");
  addLine(text, "        name=" + quoted(identity.Jmeno) + ";");
  addLine(text, "        face=" + quoted(identity.Oblicej) + ";");
  addLine(text, "        glasses=" + quoted(identity.Bryle) + ";");
  addLine(text, "        speaker=" + quoted(identity.Hlas) + ";");
  addLine(text, "        pitch=" + identity.VyskaHlasu + ";");
  addLine(text, "    };");
}

void addIdentities(std::string& text, const LoggedSteps& steps)
{
  if (Form2.chkpouzithrace.checked())
  {
    openClass(text, "CfgIdentities");
    int i = 0;
    for (const Row& row : identityRows(IdentitySide::mission))
    {
      if (row.marked)
        steps([&] { addIdentity(text, row.text, shared.Identity.at(i)); });
      ++i;
    }
  }
  addLine(text, "};"); // also when it closes nothing
}

/// Names of environment sounds are as wide in the file as in their records.
std::string wide(std::string_view name)
{
  const std::string cut = left(name, environmentNameWidth);
  return cut + std::string(environmentNameWidth - length(cut), ' ');
}

void addEnvironmentSounds(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmdalsinast.seznamrozzvuku;
  addLine(text, {});
  openClass(text, "CfgEnvSounds");
  text += "   sounds[]={";
  eachMarked(list, steps, [&](int i) { addByPlace(text, wide(shared.Okoli.at(i).Nazev), i, list.count() - 1); });
  addLine(text, "};");
  addLine(text, {});
  eachMarked(list, steps,
             [&](int i)
             {
               const ZaznamOkoli& sound = shared.Okoli.at(i);
               addLine(text, "   class " + wide(sound.Nazev));
               addLine(text, "   {");
               addLine(text, "      name=" + quoted(wide(sound.Jmeno)) + ";");
               addLine(text, "      sound[]={" + quoted("\\sound\\" + fileName(sound.Den)) +
                                 loudness(sound.DenHlasitost, sound.DenHloubka) + "};");
               // the folder is missing here; missions live with it
               addLine(text, "      soundNight[]={" + quoted(fileName(sound.Noc)) +
                                 loudness(sound.NocHlasitost, sound.NocHloubka) + "};");
               addLine(text, "   };");
             });
  addLine(text, "};");
  addLine(text, {});
}

void addEffect(std::string& text, const ZaznamSfx& effect)
{
  addLine(text, "   class " + effect.Nazev);
  addLine(text, "   {");
  addLine(text, "      name = " + quoted(effect.Jmeno) + ";");
  text += "      sounds[] = {";
  int k = 0;
  eachOn(effect.Zvuky, [&](const ZaznamSfxZvuku&, int j)
         { addByPlace(text, "sound" + std::to_string(++k), j, effect.Zvuky.bound()); });
  addLine(text, "};");
  k = 0;
  eachOn(effect.Zvuky,
         [&](const ZaznamSfxZvuku& sound, int)
         {
           addLine(text, "      sound" + std::to_string(++k) + "[]={" + quoted("\\sound\\" + fileName(sound.Soubor)) +
                             loudness(sound.Hlasitost, sound.Hloubka) + "," + sound.Sance + "," + sound.Neznamy + "," +
                             std::to_string(sound.MinDelay) + "," + std::to_string(sound.MaxDelay) + "};");
         });
  addLine(text, "      empty[] = {};");
  addLine(text, "   };");
}

void addEffects(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmdalsinast.List1;
  openClass(text, "CfgSfx");
  text += "   sounds[] = {";
  eachMarked(list, steps, [&](int i) { addByPlace(text, shared.Sfx.at(i).Nazev, i, list.count() - 1); });
  addLine(text, "};");
  addLine(text, {});
  eachMarked(list, steps, [&](int i) { addEffect(text, shared.Sfx.at(i)); });
  addLine(text, "};");
}

/// The base classes of the titles.
void addTitleBases(std::string& text, const LoggedSteps& steps)
{
  if (frmdalsinast.List3.count() == 0)
    return;
  addLine(text, {});
  steps(
      [&]
      {
        const std::string path = programFile("\\Bfdata\\Rscdef.dat");
        if (!platform::fileExists(path))
          return;
        for (LineReader lines(path); !lines.atEnd();)
          addLine(text, lines.next());
      });
}

/// Red, green, blue and alpha, in this order.
std::string colour(const BarvaPrvku& colour)
{
  return colourText(colour.Cervena / 1000) + "," + colourText(colour.Zelena / 1000) + "," +
         colourText(colour.Modra / 1000) + "," + colourText(colour.Alfa / 100);
}

void addControl(std::string& text, const TitulPrvek& control)
{
  const std::pair<std::string_view, std::string> values[] = {
      {"style", control.Styl},
      {"text", quoted(control.Druh == 0 ? control.Text : fileName(control.Text))},
      {"x", placeText(control.X)},
      {"y", placeText(control.Y)},
      {"w", placeText(control.W)},
      {"h", placeText(control.H)},
      {"colorBackground[]", "{" + colour(control.BarvaPozadi) + "}"},
      {"colorText[]", "{" + colour(control.BarvaTextu) + "}"},
      {"font", quoted(control.Pismo)},
      {"size", localText(control.Velikost, platform::decimalSeparator())},
  };
  addLine(text, "      class " + trim(control.Trida) + (control.Druh == 1 ? ": RscPicture" : ": RscText"));
  addLine(text, "      {");
  for (const auto& [key, value] : values)
    addLine(text, "         " + std::string(key) + "=" + value + ";");
  addLine(text, "      };");
}

void addTitle(std::string& text, const ZaznamTitulu& title, int number, const LoggedSteps& steps)
{
  addLine(text, "   class " + trim(title.Trida));
  addLine(text, "   {");
  addLine(text, "      idd=-" + std::to_string(number) + ";");
  addLine(text, "      movingEnable=" + std::to_string(title.Pohyb) + ";");
  steps([&] { addLine(text, "      duration=" + localText(title.Doba, platform::decimalSeparator()) + ";"); });
  addLine(text, "      name=" + quoted(trim(title.Nazev)) + ";");
  text += "      controls[]={";
  eachOn(title.Prvky,
         [&](const TitulPrvek& control, int j) { addByPlace(text, trim(control.Trida), j, title.Prvky.bound()); });
  addLine(text, "};");
  eachOn(title.Prvky, [&](const TitulPrvek& control, int) { steps([&] { addControl(text, control); }); });
  addLine(text, "   };");
}

void addTitles(std::string& text, const LoggedSteps& steps)
{
  const List& list = frmdalsinast.List3;
  addLine(text, {});
  openClass(text, "RscTitles");
  text += "   titles[]={";
  eachMarked(list, steps, [&](int i) { addByPlace(text, trim(shared.Tituly.at(i).Trida), i, list.count() - 1); });
  addLine(text, "};");
  addLine(text, {});
  int number = 0;
  eachMarked(list, steps,
             [&](int i)
             {
               const ZaznamTitulu& title = shared.Tituly.at(i);
               addTitle(text, title, ++number, steps);
             });
  addLine(text, "};");
}

} // namespace

void appendClassSections(std::string& text, const LoggedSteps& steps)
{
  addRadios(text, steps);
  addMusic(text, steps);
  addSounds(text, steps);
  addIdentities(text, steps);
  addEnvironmentSounds(text, steps);
  addEffects(text, steps);
  addTitleBases(text, steps);
  addTitles(text, steps);
}

} // namespace tarvelin
