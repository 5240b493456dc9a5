#pragma once

#include "core/records.h"

#include <cstdint>
#include <string>

namespace tarvelin
{

/// The program's one store of shared values. They are created at start-up and stay to the end; every panel, reader and
/// writer works on them directly. Flags and counters start at 0, arrays never dimensioned.
struct Shared
{
  // The open mission
  std::string SouborMise;   ///< full path of the open mission.sqm, empty when none is open
  std::string CestaMise;    ///< its folder, with a backslash at the end
  std::string BrifingJmeno; ///< raw values of the mission's file
  std::string BrifingPopis;
  std::string Spojenci;
  std::string Mesic;
  std::string Den;
  std::string Hodina;
  std::string Minuta;
  std::string Pocasi;
  std::string Mlha;
  std::string PredpovedPocasi;
  std::string PredpovedMlhy;
  Array<ZaznamZnacky> Znacky;
  std::int16_t PocetZnacek = 0;
  std::int16_t AktualniZnacka = 0;
  Array<ZaznamSenzoru> Senzory;
  std::int16_t PocetSenzoru = 0;
  std::int16_t AktualniSenzor = 0;
  std::string JazykBrifing; ///< language variant: empty, "All" or a language
  std::string JazykOverview;
  std::string CestaObrazku; ///< source of the overview picture
  std::string CilObrazku;   ///< its place in the mission folder; empty for no picture
  std::string CestaSkriptu; ///< script in the editor; empty for a new one
  Flag PovolBarvy = 0;      ///< off while the program itself changes the script

  // The game and the machine
  std::string CestaHry;           ///< folder of the game
  std::string MechanikaCD;        ///< its CD drive
  std::int16_t RezimOtevreni = 0; ///< for whom the shared pickers work
  std::string IkonaAsociace;
  std::string SlozkaUzivatele; ///< folder of the chosen player in the game

  // The notebook
  std::string PoznamkyZapad;
  std::string PoznamkyVychod;
  std::string PoznamkyPartyzani;
  std::string PoznamkyCivilisti;
  std::string PlanZapad;
  std::string PlanVychod;
  std::string PlanPartyzani;
  std::string PlanCivilisti;
  Array<ZaznamUkolu> Ukoly;
  Array<ZaznamUkolu> UkolyZapad;
  Array<ZaznamUkolu> UkolyVychod;
  Array<ZaznamUkolu> UkolyPartyzani;
  Array<ZaznamUkolu> UkolyCivilisti;
  std::int16_t PocetUkolu = 0;
  std::int16_t PocetUkoluZapad = 0;
  std::int16_t PocetUkoluVychod = 0;
  std::int16_t PocetUkoluPartyzani = 0;
  std::int16_t PocetUkoluCivilisti = 0;
  Array<ZaznamKonce> Konce;
  std::int16_t PocetKoncu = 0;

  // Weapons of add-ons
  Array<ZaznamZbrane> Zbrane;
  std::int16_t PosledniZbran = -1; ///< index of the last weapon, -1 for none

  // Radio messages, sounds, music of the mission and of the campaign
  Array<ZaznamRadia> Radia;
  Array<ZaznamHudby> Hudby;
  Array<ZaznamZvuku> Zvuky;
  std::int16_t PocetRadii = 0;
  std::int16_t PocetHudeb = 0;
  std::int16_t PocetZvuku = 0;
  std::int16_t PocetTextu = 0; ///< subtitles of the highlighted sound
  Array<ZaznamRadia> RadiaKampane;
  Array<ZaznamHudby> HudbyKampane;
  Array<ZaznamZvuku> ZvukyKampane;
  std::int16_t PocetRadiiKampane = 0;
  std::int16_t PocetHudebKampane = 0;
  std::int16_t PocetZvukuKampane = 0;
  std::int16_t PocetTextuKampane = 0;
  std::int16_t RezimNacitani = 0;  ///< for which list the sound intake works
  Array<std::string> CestySouboru; ///< folders of the files in the sound intake
  std::int16_t PocetSouboru = 0;

  // Identities
  Array<ZaznamIdentity> Identity;
  std::int16_t PocetIdentit = 0;
  std::int16_t AktualniIdentita = 0;
  Array<ZaznamIdentity> IdentityKampane;
  std::int16_t PocetIdentitKampane = 0;
  std::int16_t AktualniIdentitaKampane = 0;
  Array<std::string> KodyObliceju;
  Flag KampanMod = 0; ///< the identity form works for the campaign

  // Environment sounds, sound effects, titles
  Array<ZaznamOkoli> Okoli;
  std::int16_t PocetOkoli = 0;
  Array<ZaznamSfx> Sfx;
  std::int16_t PocetSfx = 0;
  Array<ZaznamTitulu> Tituly;
  std::int16_t PocetTitulu = 0;

  // The campaign
  std::string CestaKampane;
  std::string JmenoKampane;
  std::int16_t Zivoty = 0;
  std::string SlozkaKampane; ///< folder chosen for the campaign
  Array<ZaznamHodnoceni> Odmeny;
  Array<ZaznamHodnoceni> Tresty;
  std::int16_t PocetOdmen = 0;
  std::int16_t PocetTrestu = 0;
  Flag ZadnaUkoncovaci = 0; ///< no penalty ends the campaign
  Array<Kapitola> Kapitoly;
  std::int16_t PocetKapitol = 0;
  std::int16_t AktualniKapitola = 0;
  std::int16_t AktualniMise = 0;
  Flag VybranaMise = 0; ///< the tree's selection is a mission
  std::int16_t PocetMisi = 0;
  std::string KlicKapitoly;
  std::string KlicUzlu;
  std::string VybranaCesta; ///< folder and file that the mission picker gave
  std::string VybranySoubor;
  std::string ObrazekKampane; ///< picture of the campaign's overview

  // Catalogues, language and settings
  Array<std::string> OstrovyJmena;
  Array<std::string> OstrovyKoncovky;
  std::int16_t PocetOstrovu = 0;
  Array<ZaznamProgramu> Programy;
  std::int16_t PocetProgramu = -1; ///< index of the last program, -1 for none
  Array<std::string> Texty;        ///< 122 texts of the language pack, from 1
  Array<std::string> Hlasky;       ///< 24 messages of the language pack, from 1
  ZaznamNastaveni Nastaveni;

  Shared()
  {
    Texty.redim(121);
    Hlasky.redim(23);
  }

  static void members(auto& self, auto&& visit)
  {
    visit("SouborMise", self.SouborMise);
    visit("CestaMise", self.CestaMise);
    visit("BrifingJmeno", self.BrifingJmeno);
    visit("BrifingPopis", self.BrifingPopis);
    visit("Spojenci", self.Spojenci);
    visit("Mesic", self.Mesic);
    visit("Den", self.Den);
    visit("Hodina", self.Hodina);
    visit("Minuta", self.Minuta);
    visit("Pocasi", self.Pocasi);
    visit("Mlha", self.Mlha);
    visit("PredpovedPocasi", self.PredpovedPocasi);
    visit("PredpovedMlhy", self.PredpovedMlhy);
    visit("Znacky", self.Znacky);
    visit("PocetZnacek", self.PocetZnacek);
    visit("AktualniZnacka", self.AktualniZnacka);
    visit("Senzory", self.Senzory);
    visit("PocetSenzoru", self.PocetSenzoru);
    visit("AktualniSenzor", self.AktualniSenzor);
    visit("JazykBrifing", self.JazykBrifing);
    visit("JazykOverview", self.JazykOverview);
    visit("CestaObrazku", self.CestaObrazku);
    visit("CilObrazku", self.CilObrazku);
    visit("CestaSkriptu", self.CestaSkriptu);
    visit("PovolBarvy", self.PovolBarvy);
    visit("CestaHry", self.CestaHry);
    visit("MechanikaCD", self.MechanikaCD);
    visit("RezimOtevreni", self.RezimOtevreni);
    visit("IkonaAsociace", self.IkonaAsociace);
    visit("SlozkaUzivatele", self.SlozkaUzivatele);
    visit("PoznamkyZapad", self.PoznamkyZapad);
    visit("PoznamkyVychod", self.PoznamkyVychod);
    visit("PoznamkyPartyzani", self.PoznamkyPartyzani);
    visit("PoznamkyCivilisti", self.PoznamkyCivilisti);
    visit("PlanZapad", self.PlanZapad);
    visit("PlanVychod", self.PlanVychod);
    visit("PlanPartyzani", self.PlanPartyzani);
    visit("PlanCivilisti", self.PlanCivilisti);
    visit("Ukoly", self.Ukoly);
    visit("UkolyZapad", self.UkolyZapad);
    visit("UkolyVychod", self.UkolyVychod);
    visit("UkolyPartyzani", self.UkolyPartyzani);
    visit("UkolyCivilisti", self.UkolyCivilisti);
    visit("PocetUkolu", self.PocetUkolu);
    visit("PocetUkoluZapad", self.PocetUkoluZapad);
    visit("PocetUkoluVychod", self.PocetUkoluVychod);
    visit("PocetUkoluPartyzani", self.PocetUkoluPartyzani);
    visit("PocetUkoluCivilisti", self.PocetUkoluCivilisti);
    visit("Konce", self.Konce);
    visit("PocetKoncu", self.PocetKoncu);
    visit("Zbrane", self.Zbrane);
    visit("PosledniZbran", self.PosledniZbran);
    visit("Radia", self.Radia);
    visit("Hudby", self.Hudby);
    visit("Zvuky", self.Zvuky);
    visit("PocetRadii", self.PocetRadii);
    visit("PocetHudeb", self.PocetHudeb);
    visit("PocetZvuku", self.PocetZvuku);
    visit("PocetTextu", self.PocetTextu);
    visit("RadiaKampane", self.RadiaKampane);
    visit("HudbyKampane", self.HudbyKampane);
    visit("ZvukyKampane", self.ZvukyKampane);
    visit("PocetRadiiKampane", self.PocetRadiiKampane);
    visit("PocetHudebKampane", self.PocetHudebKampane);
    visit("PocetZvukuKampane", self.PocetZvukuKampane);
    visit("PocetTextuKampane", self.PocetTextuKampane);
    visit("RezimNacitani", self.RezimNacitani);
    visit("CestySouboru", self.CestySouboru);
    visit("PocetSouboru", self.PocetSouboru);
    visit("Identity", self.Identity);
    visit("PocetIdentit", self.PocetIdentit);
    visit("AktualniIdentita", self.AktualniIdentita);
    visit("IdentityKampane", self.IdentityKampane);
    visit("PocetIdentitKampane", self.PocetIdentitKampane);
    visit("AktualniIdentitaKampane", self.AktualniIdentitaKampane);
    visit("KodyObliceju", self.KodyObliceju);
    visit("KampanMod", self.KampanMod);
    visit("Okoli", self.Okoli);
    visit("PocetOkoli", self.PocetOkoli);
    visit("Sfx", self.Sfx);
    visit("PocetSfx", self.PocetSfx);
    visit("Tituly", self.Tituly);
    visit("PocetTitulu", self.PocetTitulu);
    visit("CestaKampane", self.CestaKampane);
    visit("JmenoKampane", self.JmenoKampane);
    visit("Zivoty", self.Zivoty);
    visit("SlozkaKampane", self.SlozkaKampane);
    visit("Odmeny", self.Odmeny);
    visit("Tresty", self.Tresty);
    visit("PocetOdmen", self.PocetOdmen);
    visit("PocetTrestu", self.PocetTrestu);
    visit("ZadnaUkoncovaci", self.ZadnaUkoncovaci);
    visit("Kapitoly", self.Kapitoly);
    visit("PocetKapitol", self.PocetKapitol);
    visit("AktualniKapitola", self.AktualniKapitola);
    visit("AktualniMise", self.AktualniMise);
    visit("VybranaMise", self.VybranaMise);
    visit("PocetMisi", self.PocetMisi);
    visit("KlicKapitoly", self.KlicKapitoly);
    visit("KlicUzlu", self.KlicUzlu);
    visit("VybranaCesta", self.VybranaCesta);
    visit("VybranySoubor", self.VybranySoubor);
    visit("ObrazekKampane", self.ObrazekKampane);
    visit("OstrovyJmena", self.OstrovyJmena);
    visit("OstrovyKoncovky", self.OstrovyKoncovky);
    visit("PocetOstrovu", self.PocetOstrovu);
    visit("Programy", self.Programy);
    visit("PocetProgramu", self.PocetProgramu);
    visit("Texty", self.Texty);
    visit("Hlasky", self.Hlasky);
    visit("Nastaveni", self.Nastaveni);
    visit("CestaProfilu", self.SlozkaUzivatele); // two names of one value
    visit("ProfilyKampane", self.KampanMod);
  }
};

inline Shared shared;

/// An entry of the language table. Throws 9 out of bounds.
inline const std::string& Texty(int number)
{
  return shared.Texty.at(number);
}

/// A message of the language table. Throws 9 out of bounds.
inline const std::string& Hlasky(int number)
{
  return shared.Hlasky.at(number);
}

} // namespace tarvelin
