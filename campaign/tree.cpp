// Chapters and missions of a campaign. The tree is what the author sees, shared.Kapitoly what is stored; they are held
// together by number: node PART2MISSION3 is element 2 of the missions of element 1 of the chapters.
#include "campaign/tree.h"

#include "campaign/links.h"
#include "campaign/mission_choice.h"
#include "campaign/path_names.h"
#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmcamp4.h"
#include "core/messages.h"
#include "core/shared.h"
#include "core/strings.h"

#include <utility>

namespace tarvelin
{

namespace
{

constexpr std::string_view chapterWord = "PART";
constexpr std::string_view missionWord = "MISSION";
constexpr int chapterIcon = 1;
constexpr int missionIcon = 2;

// Captions by which the two commands of two presses tell where they are.
constexpr int addChapterCaption = 15;
constexpr int takeChapterCaption = 16;
constexpr int editCaption = 17;
constexpr int editedCaption = 18;

// Rows of the ending that is edited: 1 to 6 are the ends.
constexpr int lostTag = 7;
constexpr int cutsceneTag = 8;

std::string chapterKey(int chapter)
{
  return std::string(chapterWord) + std::to_string(chapter);
}

std::string missionKey(int chapter, int mission)
{
  return chapterKey(chapter) + std::string(missionWord) + std::to_string(mission);
}

/// What a key names: a chapter, or a mission of it; numbers from 1.
struct Place
{
  int chapter = 0;
  int mission = 0; ///< 0 for a chapter
};

Place placeOf(std::string_view key)
{
  const std::size_t word = key.find(missionWord);
  if (!key.starts_with(chapterWord) || word == std::string_view::npos)
    return {CisloZKlice(key), 0};
  return {CisloZKlice(key.substr(0, word)), CisloZKlice(key)};
}

std::string chapterText(int chapter, std::string_view between)
{
  return Texty(19) + std::to_string(chapter) + std::string(between) + shared.Kapitoly.at(chapter - 1).Jmeno;
}

Kapitola& currentChapter()
{
  return shared.Kapitoly.at(shared.AktualniKapitola);
}

template <class Record> std::string& linkOf(Record& record, int tag)
{
  if (tag == lostTag)
    return record.Lost;
  if (tag < 1 || tag > lostTag)
    throw Failure(Fault::invalidCall);
  const auto link = endLinks<Record>.at(static_cast<std::size_t>(tag - 1));
  return record.*link;
}

/// The link that txtdalsimise edits.
std::string& editedLink()
{
  const int tag = frmcamp4.seznamakci.tag(frmcamp4.seznamakci.index());
  Kapitola& chapter = currentChapter();
  if (shared.VybranaMise)
    return linkOf(chapter.Mise.at(shared.AktualniMise), tag);
  return tag == cutsceneTag ? chapter.Cutscena : linkOf(chapter, tag);
}

/// A word goes through the field of the links and is taken as the field has it.
std::string throughField(int text)
{
  frmcamp4.txtdalsimise.set(Texty(text));
  return frmcamp4.txtdalsimise.text();
}

struct FirstLinks
{
  std::string ends;
  std::string lost;
};

/// The links of a new record. The field stores each word in the ending that was edited last, so the record takes them
/// when both are through.
FirstLinks firstLinks(int ends, int lost)
{
  std::string first = throughField(ends);
  return {std::move(first), throughField(lost)};
}

template <class Record> void setLinks(Record& record, const FirstLinks& links)
{
  for (std::string Record::*const link : endLinks<Record>)
    record.*link = links.ends;
  record.Lost = links.lost;
}

void enableNodeCommands(bool on)
{
  frmcamp4.cmddel.enable(on);
  frmcamp4.cmdmissionedit.enable(on);
  frmcamp4.cmdaddmission.enable(on);
}

void addChapter()
{
  shared.VybranaMise = 0;
  shared.Kapitoly.redimPreserve(shared.PocetKapitol);
  shared.AktualniKapitola = shared.PocetKapitol;
  shared.PocetKapitol = counted(shared.PocetKapitol);
  enableNodeCommands(shared.PocetKapitol > 0);
  shared.PocetMisi = 0;
  frmcamp4.cmdaddpart.setCaption(Texty(addChapterCaption));
  frmcamp4.txtpartname.show(false);
  frmcamp4.cmdne.show(false);
  shared.KlicKapitoly = chapterKey(shared.PocetKapitol);
  currentChapter().Jmeno = frmcamp4.txtpartname.text();
  attempt([] { frmcamp4.campfiles.add("", shared.KlicKapitoly, chapterText(shared.PocetKapitol, ": "), chapterIcon); });
  attempt([] { frmcamp4.campfiles.setExpanded(shared.KlicKapitoly, true); });
  const FirstLinks links = firstLinks(nextChapter, sameChapter);
  setLinks(currentChapter(), links);
  currentChapter().Cutscena.clear();
}

void cmdaddpart_Click()
{
  if (frmcamp4.cmdaddpart.caption() != Texty(addChapterCaption))
    return addChapter();
  frmcamp4.cmdaddpart.setCaption(Texty(takeChapterCaption));
  frmcamp4.txtpartname.show(true);
  frmcamp4.cmdne.show(true);
}

void cmdne_Click()
{
  if (frmcamp4.cmdaddpart.caption() == Texty(takeChapterCaption))
    frmcamp4.cmdaddpart.setCaption(Texty(addChapterCaption));
  for (Field* const field :
       std::initializer_list<Field*>{&frmcamp4.txtdalsimise, &frmcamp4.txtpartname, &frmcamp4.cmdne})
    field->show(false);
  if (shared.PocetKapitol <= 0)
    enableNodeCommands(false);
}

void cmdaddmission_Click()
{
  if (!chooseCampaignMission() || !frmcamp4.campfiles.find(shared.KlicKapitoly))
    return;
  shared.VybranaMise = -1;
  shared.PocetMisi = toInt16(SpocitejMise(shared.AktualniKapitola + 1));
  shared.AktualniMise = shared.PocetMisi;
  currentChapter().Mise.redimPreserve(shared.PocetMisi);
  const int number = shared.PocetMisi + 1;
  attempt(
      [&]
      {
        frmcamp4.campfiles.add(shared.KlicKapitoly, missionKey(shared.AktualniKapitola + 1, number),
                               Texty(20) + std::to_string(number) + ": " + JmenoZCesty(shared.VybranaCesta),
                               missionIcon);
      });
  const FirstLinks links = firstLinks(nextMission, sameMission);
  MiseKampane& mission = currentChapter().Mise.at(shared.AktualniMise);
  mission.Cesta = shared.VybranaCesta;
  setLinks(mission, links);
}

void campfiles_Click()
{
  const Tree::Node* const node = frmcamp4.campfiles.selected();
  if (!node)
    return;
  shared.KlicUzlu = node->key;
  const Place place = placeOf(node->key);
  const bool isMission = place.mission > 0;
  frmcamp4.cmdaddmission.enable(!isMission);
  shared.AktualniKapitola = toInt16(place.chapter - 1);
  shared.VybranaMise = flagOf(isMission);
  if (isMission)
  {
    shared.AktualniMise = toInt16(place.mission - 1);
    frmcamp4.txtcesta.setCaption(JmenoZCesty(currentChapter().Mise.at(shared.AktualniMise).Cesta));
    return;
  }
  shared.PocetMisi = toInt16(SpocitejMise(place.chapter));
  shared.KlicKapitoly = node->key;
  frmcamp4.txtcesta.setCaption(currentChapter().Jmeno);
}

void fillEndings(int rows)
{
  frmcamp4.seznamakci.clear();
  for (int tag = 1; tag <= rows; ++tag)
    frmcamp4.seznamakci.add(Texty(36 + tag), tag);
  frmcamp4.seznamakci.select(0);
}

void NaplnAkceMise()
{
  fillEndings(lostTag);
}

void NaplnAkceKapitoly()
{
  fillEndings(cutsceneTag);
}

void cmdmissionedit_Click()
{
  const bool opens = frmcamp4.cmdmissionedit.caption() == Texty(editCaption);
  frmcamp4.cmdmissionedit.setCaption(Texty(opens ? editedCaption : editCaption));
  frmcamp4.campfiles.enable(!opens);
  if (opens)
    attempt(shared.VybranaMise ? NaplnAkceMise : NaplnAkceKapitoly);
  frmcamp4.txtdalsimise.show(opens);
  frmcamp4.seznamakci.show(opens);
  if (shared.VybranaMise)
    return;
  frmcamp4.txtpartname.show(opens);
  if (!opens)
    attempt(
        []
        {
          const int chapter = shared.AktualniKapitola + 1;
          frmcamp4.campfiles.setText(chapterKey(chapter), chapterText(chapter, " :")); // the blank has moved
        });
}

void seznamakci_Click()
{
  attempt([] { frmcamp4.txtdalsimise.set(std::string(editedLink())); });
}

void txtpartname_Change()
{
  if (frmcamp4.cmdmissionedit.caption() == "Ok") // whatever the language
    attempt([] { currentChapter().Jmeno = frmcamp4.txtpartname.text(); });
}

/// A mission leads to missions and a chapter to chapters: the words of the other kind are refused.
void txtdalsimise_Change()
{
  const std::string& text = frmcamp4.txtdalsimise.text();
  const bool refused = shared.VybranaMise ? text == Texty(nextChapter) || text == Texty(sameChapter)
                                          : text == Texty(nextMission) || text == Texty(sameMission);
  if (refused && !text.empty())
  {
    tell(Hlasky(shared.VybranaMise ? message::missionLink : message::chapterLink));
    frmcamp4.txtdalsimise.set("");
  }
  attempt([] { editedLink() = frmcamp4.txtdalsimise.text(); });
}

/// Takes element `index` out of an array; an array always keeps one element.
template <class Record> void takeOut(Array<Record>& records, int index)
{
  if (index > records.bound())
    return;
  for (int i = index; i < records.bound(); ++i)
    records.at(i) = records.at(i + 1);
  if (records.bound() > 0)
    records.redimPreserve(records.bound() - 1);
  else
    records.reset();
}

/// PocetKapitol stays: the next chapter takes the old count as its index and leaves an empty record in front of it.
void deleteChapter(int chapter)
{
  if (!askYesNo(Hlasky(message::deleteChapter)))
    return;
  frmcamp4.campfiles.remove(shared.KlicUzlu);
  PrecislujKapitoly(chapter);
  attempt([&] { takeOut(shared.Kapitoly, chapter - 1); });
}

void deleteMission(int chapter, int mission)
{
  frmcamp4.campfiles.remove(shared.KlicUzlu);
  PrecislujMise(chapter, mission);
  attempt([&] { takeOut(shared.Kapitoly.at(chapter - 1).Mise, mission - 1); });
}

void cmddel_Click()
{
  if (!frmcamp4.campfiles.find(shared.KlicUzlu))
    return;
  const Place place = placeOf(shared.KlicUzlu);
  if (place.mission > 0)
    deleteMission(place.chapter, place.mission);
  else
    deleteChapter(place.chapter);
  if (frmcamp4.campfiles.count() > 0)
    return;
  enableNodeCommands(false);
  for (std::int16_t* const count :
       {&shared.AktualniKapitola, &shared.AktualniMise, &shared.PocetKapitol, &shared.PocetMisi})
    *count = 0;
  shared.Kapitoly.reset();
}

void frmcamp4_Load()
{
  frmcamp4.campfiles.clear();
  frmcamp4.txtpartname.show(false);
}

} // namespace

int SpocitejMise(int chapter)
{
  const std::string wanted = chapterKey(chapter);
  int count = 0;
  for (const Tree::Node* const node : frmcamp4.campfiles.nodes())
    if (node->key.find(wanted) != std::string::npos && node->key.find(missionWord) != std::string::npos)
      ++count;
  return count;
}

void PrecislujKapitoly(int chapter)
{
  for (const Tree::Node* const node : frmcamp4.campfiles.nodes())
  {
    const Place place = placeOf(node->key);
    if (place.chapter > chapter)
      attempt(
          [&]
          {
            frmcamp4.campfiles.setKey(node->key, place.mission > 0 ? missionKey(place.chapter - 1, place.mission)
                                                                   : chapterKey(place.chapter - 1));
          });
  }
}

void PrecislujMise(int chapter, int mission)
{
  for (const Tree::Node* const node : frmcamp4.campfiles.nodes())
  {
    const Place place = placeOf(node->key);
    if (place.chapter == chapter && place.mission > mission)
      attempt([&] { frmcamp4.campfiles.setKey(node->key, missionKey(chapter, place.mission - 1)); });
  }
}

void attachCampaignTree()
{
  frmcamp4.onLoad = frmcamp4_Load;
  frmcamp4.cmdaddpart.onClick = [] { attempt(cmdaddpart_Click); };
  frmcamp4.cmdne.onClick = cmdne_Click;
  frmcamp4.cmdaddmission.onClick = [] { attempt(cmdaddmission_Click); };
  frmcamp4.campfiles.onClick = [] { attempt(campfiles_Click); };
  frmcamp4.cmdmissionedit.onClick = cmdmissionedit_Click;
  frmcamp4.seznamakci.onClick = seznamakci_Click;
  frmcamp4.txtpartname.onChange = txtpartname_Change;
  frmcamp4.txtdalsimise.onChange = txtdalsimise_Change;
  frmcamp4.cmddel.onPress = [](MouseButton) { frmcamp4.cmddel.setSunken(true); };
  frmcamp4.cmddel.onRelease = [] { frmcamp4.cmddel.setSunken(false); };
  frmcamp4.cmddel.onClick = [] { attempt(cmddel_Click); };
}

} // namespace tarvelin
