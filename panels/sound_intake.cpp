#include "panels/sound_intake.h"

#include "core/attempt.h"
#include "core/forms/frmnactizvuky.h"
#include "core/picker.h"
#include "core/shared.h"
#include "panels/sounds.h"

namespace tarvelin
{

namespace
{

List& files()
{
  return frmnactizvuky.seznamsouboru;
}

void frmnactizvuky_Load()
{
  // a mission that was opened by the menu has put its folder there already
  const std::string folder = frmnactizvuky.Dir1.path();
  startPickerIn(folder.empty() ? shared.CestaMise : folder, frmnactizvuky.Drive1, frmnactizvuky.Dir1);
}

/// The title names the kind of sounds, when the language pack has a word for it.
void showTitle()
{
  const int kind = (shared.RezimNacitani - 1) % 3; // radio messages, sounds, music; the campaign's follow the mission's
  if (const std::string& title = Texty(67 + kind); !title.empty())
    frmnactizvuky.setCaption(title);
}

/// The files of the last showing are offered again, but only for the same list.
void frmnactizvuky_Activate()
{
  attempt(showTitle);
  if (frmnactizvuky.PosledniRezim == shared.RezimNacitani)
    return;
  shared.PocetSouboru = 0;
  shared.CestySouboru.reset();
  files().clear();
  frmnactizvuky.PosledniRezim = shared.RezimNacitani;
}

void cmdadd_Click()
{
  attempt([] { shared.PocetSouboru = counted(shared.PocetSouboru); });
  const int row = files().add(frmnactizvuky.File1.selected());
  files().setTag(row, row);
  files().mark(row, true);
  attempt([] { shared.CestySouboru.redimPreserve(shared.PocetSouboru); });
  attempt([&] { shared.CestySouboru.at(files().tag(row)) = frmnactizvuky.File1.path(); });
}

/// A removal moves the next row into the place of the one that went, and the loop has passed it: of two marked
/// neighbours the second stays. The folders stay where they are, for the tags still point at them.
void cmddel_Click()
{
  const int count = files().count();
  int removed = 0;
  for (int i = 0; i < count; ++i)
    attempt(
        [&]
        {
          if (!files().marked(i))
            return;
          attempt([&] { shared.CestySouboru.at(files().tag(i)).clear(); });
          files().remove(i);
          ++removed;
        });
  attempt([&] { shared.PocetSouboru = counted(shared.PocetSouboru, -removed); });
}

// What a new record has beside the fields of all three kinds; n is its number.
void fillOwn(ZaznamRadia& record, const std::string& n)
{
  record.Postava = "aP" + n;
  record.TextCs = Texty(63) + n;
}

void fillOwn(ZaznamZvuku&, const std::string&) {}

void fillOwn(ZaznamHudby&, const std::string&) {}

template <class Record> void takeFile(const SoundList<Record>& into, int row)
{
  const int x = into.list.add(files().text(row));
  attempt([&] { into.count = counted(into.count); });
  into.list.setTag(x, x);
  attempt([&] { into.records.redimPreserve(into.count); });
  attempt(
      [&]
      {
        Record& record = into.records.at(x);
        record = {};
        attempt([&] { record.Cesta = shared.CestySouboru.at(files().tag(row)); });
        record.Soubor = files().text(row);
        const std::string n = std::to_string(into.count);
        record.Jmeno = Texty(into.jmenoText) + n;
        record.Nazev = Texty(into.nazevText) + n;
        record.Hlasitost = into.hlasitost.text();
        record.Hloubka = into.hloubka.text();
        fillOwn(record, n);
      });
  into.list.mark(x, true);
}

/// Makes a record of every marked file when the intake works for this list; its boxes then show the last one's names.
template <class Record> void takeFiles(const SoundList<Record>& into)
{
  if (into.intakeMode != shared.RezimNacitani)
    return;
  bool taken = false;
  for (int row = 0; row < files().count(); ++row)
    if (files().marked(row))
    {
      takeFile(into, row);
      taken = true;
    }
  if (!taken)
    return;
  const std::string n = std::to_string(into.count);
  into.jmeno.set(Texty(into.jmenoText) + n);
  into.nazev.set(Texty(into.nazevText) + n);
}

void cmdopen_Click()
{
  for (const SoundPanel* const panel : {&missionSounds(), &campaignSounds()})
  {
    attempt([&] { takeFiles(panel->radio); });
    attempt([&] { takeFiles(panel->sounds); });
    attempt([&] { takeFiles(panel->music); });
  }
  frmnactizvuky.hide();
}

} // namespace

void attachSoundIntake()
{
  tieDiskLists(frmnactizvuky.Drive1, frmnactizvuky.Dir1, frmnactizvuky.File1);
  frmnactizvuky.onLoad = frmnactizvuky_Load;
  frmnactizvuky.onActivate = frmnactizvuky_Activate;
  frmnactizvuky.cmdadd.onClick = cmdadd_Click;
  frmnactizvuky.cmddel.onClick = cmddel_Click;
  frmnactizvuky.cmdopen.onClick = cmdopen_Click;
  frmnactizvuky.cmdstorno.onClick = [] { frmnactizvuky.hide(); };
}

} // namespace tarvelin
