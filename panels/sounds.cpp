#include "panels/sounds.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnactizvuky.h"
#include "core/language.h"
#include "core/procedures.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

/// The stores of a panel.
struct SoundStores
{
  Array<ZaznamRadia>& radio;
  std::int16_t& radioCount;
  Array<ZaznamZvuku>& sounds;
  std::int16_t& soundCount;
  Array<ZaznamHudby>& music;
  std::int16_t& musicCount;
  std::int16_t& subtitles;
  std::int16_t firstMode; ///< intake mode of radio messages; sounds and music follow
  bool ofCampaign;
};

/// The fields bear the same names on both forms.
template <class SoundForm> SoundPanel panelOf(SoundForm& form, const SoundStores& stores)
{
  const auto mode = [&](int list) { return static_cast<std::int16_t>(stores.firstMode + list); };
  return {
      .radio = {form.seznamradia, stores.radio, stores.radioCount, form.cmdnacistradio, form.cmdodebratradio,
                form.txtjmenoradia, form.txtradiojmeno, form.txtradiohlasitost, form.txtradiohloubka, mode(0), 57, 58},
      .sounds = {form.seznamzvuku, stores.sounds, stores.soundCount, form.cmdnacistzvuk, form.cmdodebratzvuk,
                 form.txtjmenozvuku, form.txtnazev, form.txtzvukhlasitost, form.txtzvukhloubka, mode(1), 59, 60},
      .music = {form.seznamhudby, stores.music, stores.musicCount, form.cdmnactihudbu, form.cmdodebrathudbu,
                form.txtjmenohudby, form.txthudbanazev, form.txthudbahlasitost, form.txthudbahloubka, mode(2), 61, 62},
      .txtpostava = form.txtpostava,
      .radiojazyk = form.radiojazyk,
      .txtradio = form.txtradio,
      .seznamtextu = form.seznamtextu,
      .cmdadd = form.cmdadd,
      .cmdel = form.cmdel,
      .zvukyjazyk = form.zvukyjazyk,
      .txtzvuk = form.txtzvuk,
      .subtitles = stores.subtitles,
      .adding = form.PridavaText.value,
      .ofCampaign = stores.ofCampaign,
  };
}

int highlightedTag(const Rows& rows)
{
  return rows.tag(rows.index());
}

template <class Record> Record& highlighted(const SoundList<Record>& of)
{
  return of.records.at(highlightedTag(of.list));
}

ZaznamTextu& highlightedSubtitle(const SoundPanel& panel)
{
  return highlighted(panel.sounds).Titulky.at(highlightedTag(panel.seznamtextu));
}

/// The text of a record in the language that a combo shows.
template <class Record> std::string& inLanguage(Record& record, const Combo& languages)
{
  static constexpr std::string Record::*texts[] = {&Record::TextCs, &Record::TextDe, &Record::TextEn,
                                                   &Record::TextEs, &Record::TextIt, &Record::TextFr};
  const int tag = highlightedTag(languages);
  if (tag < 1 || tag > static_cast<int>(std::size(texts)))
    throw Failure(Fault::subscript);
  return record.*texts[tag - 1];
}

template <class Record> void nacist_Click(const SoundList<Record>& into)
{
  shared.RezimNacitani = into.intakeMode;
  attempt([] { frmnactizvuky.showModal(); });
  into.remove.enable(true);
}

/// With nothing highlighted the row stays, but the records move down all the same and the first one is lost.
template <class Record> void odebrat_Click(const SoundList<Record>& from)
{
  const int p = from.list.index();
  attempt([&] { from.list.remove(p); });
  for (int i = p; i <= from.count - 1; ++i)
  {
    attempt([&] { from.records.at(i) = from.records.at(i + 1); });
    attempt([&] { from.list.setTag(i, i); });
  }
  attempt([&] { from.count = counted(from.count, -1); });
  attempt([&] { from.records.redimPreserve(from.count); });
  if (from.count <= 0)
    from.remove.enable(false);
}

/// Shows what all three kinds of records have. The boxes' handlers write the same values back.
template <class Record> void show(const SoundList<Record>& of)
{
  attempt([&] { of.jmeno.set(highlighted(of).Jmeno); });
  attempt([&] { of.nazev.set(highlighted(of).Nazev); });
  attempt([&] { of.hloubka.set(highlighted(of).Hloubka); });
  attempt([&] { of.hlasitost.set(highlighted(of).Hlasitost); });
}

void radiojazyk_Click(const SoundPanel& panel)
{
  attempt([&] { panel.txtradio.set(inLanguage(highlighted(panel.radio), panel.radiojazyk)); });
}

void zvukyjazyk_Click(const SoundPanel& panel)
{
  attempt([&] { panel.txtzvuk.set(inLanguage(highlightedSubtitle(panel), panel.zvukyjazyk)); });
}

void seznamradia_Press(const SoundPanel& panel)
{
  show(panel.radio);
  attempt([&] { panel.txtpostava.set(highlighted(panel.radio).Postava); });
  radiojazyk_Click(panel);
}

void addSubtitleRow(const SoundPanel& panel, int number, bool marked)
{
  const int row = panel.seznamtextu.add("Text " + std::to_string(number));
  panel.seznamtextu.setTag(row, row);
  panel.seznamtextu.mark(row, marked);
}

void seznamzvuku_Click(const SoundPanel& panel)
{
  panel.seznamtextu.clear();
  attempt(
      [&]
      {
        const Array<ZaznamTextu>& subtitles = highlighted(panel.sounds).Titulky;
        for (int n = 1; n <= subtitles.bound(); ++n)
          addSubtitleRow(panel, n, subtitles.at(n - 1).Zapnuto != 0);
        panel.cmdadd.enable(true);
      });
  panel.cmdel.enable(panel.seznamtextu.count() > 0);
  panel.txtzvuk.enable(panel.seznamtextu.count() > 0);
  show(panel.sounds);
  panel.subtitles = static_cast<std::int16_t>(panel.seznamtextu.count());
}

/// Unprotected: a press with no sound highlighted ends the program.
void seznamzvuku_Press(const SoundPanel& panel, MouseButton button)
{
  if (button == MouseButton::right)
    tell("Jméno: " + highlighted(panel.sounds).Jmeno, Icon::none);
}

void seznamtextu_Click(const SoundPanel& panel)
{
  if (panel.adding)
    return;
  attempt([&] { highlightedSubtitle(panel).Zapnuto = flagOf(panel.seznamtextu.marked(panel.seznamtextu.index())); });
  zvukyjazyk_Click(panel);
}

/// Unprotected: with no sound highlighted it ends the program.
void cmdadd_Click(const SoundPanel& panel)
{
  panel.adding = true;
  panel.txtzvuk.enable(true);
  panel.cmdel.enable(true);
  panel.subtitles = counted(panel.subtitles);
  addSubtitleRow(panel, panel.subtitles, false);
  const int row = panel.seznamtextu.newest();
  Array<ZaznamTextu>& subtitles = highlighted(panel.sounds).Titulky;
  subtitles.redimPreserve(panel.subtitles);
  subtitles.at(row).Zapnuto = flagOf(true);
  panel.seznamtextu.mark(row, true);
  panel.adding = false;
}

/// Unprotected on the campaign's form alone.
void cmdel_Click(const SoundPanel& panel)
{
  const auto drop = [&] { highlighted(panel.sounds).Titulky.erase(); };
  if (panel.ofCampaign)
    drop();
  else
    attempt(drop);
  panel.subtitles = 0;
  panel.seznamtextu.clear();
  panel.txtzvuk.enable(false);
  panel.cmdel.enable(false);
}

/// What is typed into the box goes to the highlighted record at once; with none it stays in the box.
template <class Record> void attachEditor(const SoundList<Record>& of, Text& box, std::string Record::*member)
{
  box.onChange = [&of, &box, member] { attempt([&] { highlighted(of).*member = box.text(); }); };
}

template <class Record> void attachList(const SoundList<Record>& of)
{
  of.load.onClick = [&of] { nacist_Click(of); };
  of.remove.onClick = [&of] { odebrat_Click(of); };
  attachEditor(of, of.jmeno, &Record::Jmeno);
  attachEditor(of, of.nazev, &Record::Nazev);
  attachEditor(of, of.hlasitost, &Record::Hlasitost);
  attachEditor(of, of.hloubka, &Record::Hloubka);
}

void attachPanel(const SoundPanel& panel)
{
  attachList(panel.radio);
  panel.radio.list.onPress = [&panel](MouseButton) { seznamradia_Press(panel); };
  attachEditor(panel.radio, panel.txtpostava, &ZaznamRadia::Postava);
  panel.radiojazyk.onClick = [&panel] { radiojazyk_Click(panel); };
  panel.txtradio.onChange = [&panel]
  { attempt([&] { inLanguage(highlighted(panel.radio), panel.radiojazyk) = panel.txtradio.text(); }); };

  attachList(panel.sounds);
  panel.sounds.load.onClick = [&panel]
  {
    nacist_Click(panel.sounds);
    panel.cmdadd.enable(true);
    panel.cmdel.enable(true);
  };
  panel.sounds.list.onClick = [&panel] { seznamzvuku_Click(panel); };
  panel.sounds.list.onPress = [&panel](MouseButton button) { seznamzvuku_Press(panel, button); };
  panel.seznamtextu.onClick = [&panel] { seznamtextu_Click(panel); };
  panel.cmdadd.onClick = [&panel] { cmdadd_Click(panel); };
  panel.cmdel.onClick = [&panel] { cmdel_Click(panel); };
  panel.zvukyjazyk.onClick = [&panel] { zvukyjazyk_Click(panel); };
  panel.txtzvuk.onChange = [&panel]
  { attempt([&] { inLanguage(highlightedSubtitle(panel), panel.zvukyjazyk) = panel.txtzvuk.text(); }); };

  attachList(panel.music);
  panel.music.list.onClick = [&panel] { show(panel.music); };
}

} // namespace

const SoundPanel& missionSounds()
{
  static const SoundPanel panel = panelOf(frmmain, {shared.Radia, shared.PocetRadii, shared.Zvuky, shared.PocetZvuku,
                                                    shared.Hudby, shared.PocetHudeb, shared.PocetTextu, 1, false});
  return panel;
}

const SoundPanel& campaignSounds()
{
  static const SoundPanel panel =
      panelOf(frmcamp5, {shared.RadiaKampane, shared.PocetRadiiKampane, shared.ZvukyKampane, shared.PocetZvukuKampane,
                         shared.HudbyKampane, shared.PocetHudebKampane, shared.PocetTextuKampane, 4, true});
  return panel;
}

void Jazyky2()
{
  fillSpokenLanguages(frmcamp5.radiojazyk);
  fillSpokenLanguages(frmcamp5.zvukyjazyk);
}

void attachSounds()
{
  attachPanel(missionSounds());
  attachPanel(campaignSounds());
  frmcamp5.onLoad = Jazyky2;
  procedures.Jazyky2 = Jazyky2;
}

} // namespace tarvelin
