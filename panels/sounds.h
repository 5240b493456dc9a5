#pragma once

#include "core/forms/kinds.h"
#include "core/records.h"

#include <cstdint>

namespace tarvelin
{

/// One of the three lists of a sound panel with its boxes and the records behind it. The tag of a row is the index of
/// its record.
template <class Record> struct SoundList
{
  List& list;
  Array<Record>& records; ///< upper bound = count
  std::int16_t& count;
  Command& load;
  Command& remove;
  Text& jmeno;
  Text& nazev;
  Text& hlasitost; ///< text of the next new record as well
  Text& hloubka;
  std::int16_t intakeMode; ///< RezimNacitani
  int jmenoText;           ///< entries of Texty that a new record's names begin with
  int nazevText;
};

/// The panel of radio messages, sounds and music; the mission and the campaign have one each.
struct SoundPanel
{
  SoundList<ZaznamRadia> radio;
  SoundList<ZaznamZvuku> sounds;
  SoundList<ZaznamHudby> music;
  Text& txtpostava;
  Combo& radiojazyk;
  Text& txtradio;
  List& seznamtextu;
  Command& cmdadd;
  Command& cmdel;
  Combo& zvukyjazyk;
  Text& txtzvuk;
  std::int16_t& subtitles; ///< of the highlighted sound
  bool& adding;            ///< a subtitle is being added: its list keeps still
  bool ofCampaign;
};

/// The mission's panel, on frmmain.
const SoundPanel& missionSounds();

/// The campaign's panel, frmcamp5.
const SoundPanel& campaignSounds();

/// Fills the language combos of frmcamp5.
void Jazyky2();

/// Puts the handlers of both panels on their fields.
void attachSounds();

} // namespace tarvelin
