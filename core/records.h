#pragma once

#include "core/array.h"
#include "core/forms/font.h"
#include "core/numbers.h"

#include <cstdint>
#include <string>

// The records that the program's shared arrays hold. `members` names the fields of a record in their order, for the
// settings file and for the script host.
namespace tarvelin
{

/// A marker of the mission, raw values of its file.
struct ZaznamZnacky
{
  std::string Name;
  std::string Text;
  std::string Type;

  static void members(auto& self, auto&& visit)
  {
    visit("Name", self.Name);
    visit("Text", self.Text);
    visit("Type", self.Type);
  }
};

/// A sensor (trigger) of the mission, raw values of its file.
struct ZaznamSenzoru
{
  std::string Type;
  std::string Text;
  std::string Expcond;

  static void members(auto& self, auto&& visit)
  {
    visit("Type", self.Type);
    visit("Text", self.Text);
    visit("Expcond", self.Expcond);
  }
};

/// An objective of the notebook.
struct ZaznamUkolu
{
  std::string Text;
  Flag Pouzit = 0; ///< its check mark

  static void members(auto& self, auto&& visit)
  {
    visit("Text", self.Text);
    visit("Pouzit", self.Pouzit);
  }
};

/// A debriefing end.
struct ZaznamKonce
{
  std::string Nadpis;
  std::string Text;

  static void members(auto& self, auto&& visit)
  {
    visit("Nadpis", self.Nadpis);
    visit("Text", self.Text);
  }
};

/// A subtitle of a sound in six languages.
struct ZaznamTextu
{
  std::string TextCs;
  std::string TextEn;
  std::string TextDe;
  std::string TextFr;
  std::string TextEs;
  std::string TextIt;
  Flag Zapnuto = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("TextCs", self.TextCs);
    visit("TextEn", self.TextEn);
    visit("TextDe", self.TextDe);
    visit("TextFr", self.TextFr);
    visit("TextEs", self.TextEs);
    visit("TextIt", self.TextIt);
    visit("Zapnuto", self.Zapnuto);
  }
};

/// A radio message.
struct ZaznamRadia
{
  std::string Cesta;  ///< folder of the source file, no backslash at the end
  std::string Soubor; ///< file name with extension
  std::string Jmeno;  ///< class name
  std::string Nazev;
  std::string Postava;
  std::string TextCs;
  std::string TextEn;
  std::string TextDe;
  std::string TextFr;
  std::string TextEs;
  std::string TextIt;
  std::string Hlasitost;
  std::string Hloubka;

  static void members(auto& self, auto&& visit)
  {
    visit("Cesta", self.Cesta);
    visit("Soubor", self.Soubor);
    visit("Jmeno", self.Jmeno);
    visit("Nazev", self.Nazev);
    visit("Postava", self.Postava);
    visit("TextCs", self.TextCs);
    visit("TextEn", self.TextEn);
    visit("TextDe", self.TextDe);
    visit("TextFr", self.TextFr);
    visit("TextEs", self.TextEs);
    visit("TextIt", self.TextIt);
    visit("Hlasitost", self.Hlasitost);
    visit("Hloubka", self.Hloubka);
  }
};

/// A piece of music.
struct ZaznamHudby
{
  std::string Cesta;
  std::string Soubor;
  std::string Jmeno;
  std::string Nazev;
  std::string Hlasitost;
  std::string Hloubka;

  static void members(auto& self, auto&& visit)
  {
    visit("Cesta", self.Cesta);
    visit("Soubor", self.Soubor);
    visit("Jmeno", self.Jmeno);
    visit("Nazev", self.Nazev);
    visit("Hlasitost", self.Hlasitost);
    visit("Hloubka", self.Hloubka);
  }
};

/// A sound with its subtitles.
struct ZaznamZvuku
{
  std::string Cesta;
  std::string Soubor;
  std::string Jmeno;
  Array<ZaznamTextu> Titulky; ///< upper bound = number of subtitles
  std::string Nazev;
  std::string Hloubka;
  std::string Hlasitost;

  static void members(auto& self, auto&& visit)
  {
    visit("Cesta", self.Cesta);
    visit("Soubor", self.Soubor);
    visit("Jmeno", self.Jmeno);
    visit("Titulky", self.Titulky);
    visit("Nazev", self.Nazev);
    visit("Hloubka", self.Hloubka);
    visit("Hlasitost", self.Hlasitost);
  }
};

/// A weapon of an add-on.
struct ZaznamZbrane
{
  std::string Titulek;
  std::string Jmeno; ///< class name
  std::int16_t Pocet = 0;
  std::string Zasobniky; ///< "N", with a grenade launcher "N/M"
  Flag Granatomet = 0;
  std::string Granaty; ///< class of the grenades

  static void members(auto& self, auto&& visit)
  {
    visit("Titulek", self.Titulek);
    visit("Jmeno", self.Jmeno);
    visit("Pocet", self.Pocet);
    visit("Zasobniky", self.Zasobniky);
    visit("Granatomet", self.Granatomet);
    visit("Granaty", self.Granaty);
  }
};

/// An identity.
struct ZaznamIdentity
{
  std::string Obrazek; ///< full path of a custom face picture
  std::string Oblicej;
  std::string Jmeno;
  std::string Bryle;
  std::string Hlas;
  std::string VyskaHlasu;

  static void members(auto& self, auto&& visit)
  {
    visit("Obrazek", self.Obrazek);
    visit("Oblicej", self.Oblicej);
    visit("Jmeno", self.Jmeno);
    visit("Bryle", self.Bryle);
    visit("Hlas", self.Hlas);
    visit("VyskaHlasu", self.VyskaHlasu);
  }
};

/// Characters of the fixed texts of an environment sound.
inline constexpr int fixedTextWidth = 255;

/// An environment sound. `Nazev` and `Jmeno` are always 255 characters wide, padded with blanks.
struct ZaznamOkoli
{
  std::string Nazev = std::string(fixedTextWidth, ' ');
  std::string Jmeno = std::string(fixedTextWidth, ' ');
  std::string Den; ///< full path
  std::string DenHlasitost;
  std::string DenHloubka;
  std::string Noc; ///< full path
  std::string NocHlasitost;
  std::string NocHloubka;

  static void members(auto& self, auto&& visit)
  {
    visit("Nazev", self.Nazev);
    visit("Jmeno", self.Jmeno);
    visit("Den", self.Den);
    visit("DenHlasitost", self.DenHlasitost);
    visit("DenHloubka", self.DenHloubka);
    visit("Noc", self.Noc);
    visit("NocHlasitost", self.NocHlasitost);
    visit("NocHloubka", self.NocHloubka);
  }
};

/// One sound of a sound effect.
struct ZaznamSfxZvuku
{
  std::string Soubor; ///< full path
  std::string Hlasitost;
  std::string Hloubka;
  std::string Sance;
  std::string Neznamy;
  std::int16_t MinDelay = 0;
  std::int16_t MaxDelay = 0;
  Flag Zapnuto = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("Soubor", self.Soubor);
    visit("Hlasitost", self.Hlasitost);
    visit("Hloubka", self.Hloubka);
    visit("Sance", self.Sance);
    visit("Neznamy", self.Neznamy);
    visit("MinDelay", self.MinDelay);
    visit("MaxDelay", self.MaxDelay);
    visit("Zapnuto", self.Zapnuto);
  }
};

/// A sound effect: a group of sounds.
struct ZaznamSfx
{
  std::string Nazev;
  std::string Jmeno;
  Array<ZaznamSfxZvuku> Zvuky;

  static void members(auto& self, auto&& visit)
  {
    visit("Nazev", self.Nazev);
    visit("Jmeno", self.Jmeno);
    visit("Zvuky", self.Zvuky);
  }
};

/// A colour of a title's control: four times the 8-bit components, in this order, and alpha from 0 to 100.
struct BarvaPrvku
{
  float Cervena = 0;
  float Modra = 0;
  float Zelena = 0;
  float Alfa = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("Cervena", self.Cervena);
    visit("Modra", self.Modra);
    visit("Zelena", self.Zelena);
    visit("Alfa", self.Alfa);
  }
};

/// One control of a title.
struct TitulPrvek
{
  std::int16_t Druh = 0; ///< 0 text, 1 picture
  std::string Trida;
  std::string Styl;
  std::string Text; ///< the text, or the picture's full path
  float X = 0;      ///< place and size on a screen of 1 by 1
  float Y = 0;
  float W = 0;
  float H = 0;
  BarvaPrvku BarvaPozadi;
  BarvaPrvku BarvaTextu;
  float Velikost = 0;
  std::string Pismo;
  Flag Zapnuto = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("Druh", self.Druh);
    visit("Trida", self.Trida);
    visit("Styl", self.Styl);
    visit("Text", self.Text);
    visit("X", self.X);
    visit("Y", self.Y);
    visit("W", self.W);
    visit("H", self.H);
    visit("BarvaPozadi", self.BarvaPozadi);
    visit("BarvaTextu", self.BarvaTextu);
    visit("Velikost", self.Velikost);
    visit("Pismo", self.Pismo);
    visit("Zapnuto", self.Zapnuto);
  }
};

/// An on-screen title.
struct ZaznamTitulu
{
  std::string Trida; ///< class name
  std::string Nazev;
  std::int16_t Pohyb = 0;
  float Doba = 0; ///< seconds
  Array<TitulPrvek> Prvky;

  static void members(auto& self, auto&& visit)
  {
    visit("Trida", self.Trida);
    visit("Nazev", self.Nazev);
    visit("Pohyb", self.Pohyb);
    visit("Doba", self.Doba);
    visit("Prvky", self.Prvky);
  }
};

/// An award or a penalty of a campaign.
struct ZaznamHodnoceni
{
  Array<std::string> Soubory; ///< folder of the mission for each island
  std::int16_t Limit = 0;
  Flag Ukoncovaci = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("Soubory", self.Soubory);
    visit("Limit", self.Limit);
    visit("Ukoncovaci", self.Ukoncovaci);
  }
};

/// A mission of a campaign with the links of its endings.
struct MiseKampane
{
  std::string End1;
  std::string End2;
  std::string End3;
  std::string End4;
  std::string End5;
  std::string End6;
  std::string Lost;
  std::string Cesta; ///< folder of the mission

  static void members(auto& self, auto&& visit)
  {
    visit("End1", self.End1);
    visit("End2", self.End2);
    visit("End3", self.End3);
    visit("End4", self.End4);
    visit("End5", self.End5);
    visit("End6", self.End6);
    visit("Lost", self.Lost);
    visit("Cesta", self.Cesta);
  }
};

/// A chapter of a campaign.
struct Kapitola
{
  std::string Jmeno;
  std::string Cutscena; ///< folder of the cutscene mission
  std::string End1;
  std::string End2;
  std::string End3;
  std::string End4;
  std::string End5;
  std::string End6;
  std::string Lost;
  Array<MiseKampane> Mise;

  static void members(auto& self, auto&& visit)
  {
    visit("Jmeno", self.Jmeno);
    visit("Cutscena", self.Cutscena);
    visit("End1", self.End1);
    visit("End2", self.End2);
    visit("End3", self.End3);
    visit("End4", self.End4);
    visit("End5", self.End5);
    visit("End6", self.End6);
    visit("Lost", self.Lost);
    visit("Mise", self.Mise);
  }
};

/// An outside program of the programs bar.
struct ZaznamProgramu
{
  std::string Nazev;
  std::string Cesta;
  std::string Parametry;

  static void members(auto& self, auto&& visit)
  {
    visit("Nazev", self.Nazev);
    visit("Cesta", self.Cesta);
    visit("Parametry", self.Parametry);
  }
};

/// A font of the settings; an empty name was never set.
struct ZaznamPisma
{
  std::string Jmeno;
  Flag Tucne = 0;
  Flag Kurziva = 0;
  Flag Preskrtnute = 0;
  Flag Podtrzene = 0;
  std::int16_t Velikost = 0; ///< points
  Colour Barva = 0;

  static void members(auto& self, auto&& visit)
  {
    visit("Jmeno", self.Jmeno);
    visit("Tucne", self.Tucne);
    visit("Kurziva", self.Kurziva);
    visit("Preskrtnute", self.Preskrtnute);
    visit("Podtrzene", self.Podtrzene);
    visit("Velikost", self.Velikost);
    visit("Barva", self.Barva);
  }
};

/// The user's settings, in the order of the settings file.
struct ZaznamNastaveni
{
  Colour FunkceBarva = 0;
  Flag FunkceTucne = 0;
  Flag FunkceKurziva = 0;
  Colour KomentarBarva = 0;
  Flag KomentarTucne = 0;
  Flag KomentarKurziva = 0;
  Colour Konst1Barva = 0;
  Flag Konst1Tucne = 0;
  Flag Konst1Kurziva = 0;
  Colour Konst2Barva = 0;
  Flag Konst2Tucne = 0;
  Flag Konst2Kurziva = 0;
  Colour OperatorBarva = 0;
  Flag OperatorTucne = 0;
  Flag OperatorKurziva = 0;
  Colour VybaveniBarva = 0;
  Flag VybaveniTucne = 0;
  Flag VybaveniKurziva = 0;
  std::string SouborJazyka; ///< full path of the language pack
  std::string CestaPbo;
  std::string ParametryPbo;
  Flag UkazovatBarvy = 0;
  Flag UkazovatTipy = 0;
  std::string UzivatelJmeno;
  std::string UzivatelMail;
  Array<ZaznamPisma> Pisma; ///< three: txtBriefink, txtOverview, txtPoznamky

  ZaznamNastaveni() { Pisma.redim(2); }

  static void members(auto& self, auto&& visit)
  {
    visit("FunkceBarva", self.FunkceBarva);
    visit("FunkceTucne", self.FunkceTucne);
    visit("FunkceKurziva", self.FunkceKurziva);
    visit("KomentarBarva", self.KomentarBarva);
    visit("KomentarTucne", self.KomentarTucne);
    visit("KomentarKurziva", self.KomentarKurziva);
    visit("Konst1Barva", self.Konst1Barva);
    visit("Konst1Tucne", self.Konst1Tucne);
    visit("Konst1Kurziva", self.Konst1Kurziva);
    visit("Konst2Barva", self.Konst2Barva);
    visit("Konst2Tucne", self.Konst2Tucne);
    visit("Konst2Kurziva", self.Konst2Kurziva);
    visit("OperatorBarva", self.OperatorBarva);
    visit("OperatorTucne", self.OperatorTucne);
    visit("OperatorKurziva", self.OperatorKurziva);
    visit("VybaveniBarva", self.VybaveniBarva);
    visit("VybaveniTucne", self.VybaveniTucne);
    visit("VybaveniKurziva", self.VybaveniKurziva);
    visit("SouborJazyka", self.SouborJazyka);
    visit("CestaPbo", self.CestaPbo);
    visit("ParametryPbo", self.ParametryPbo);
    visit("UkazovatBarvy", self.UkazovatBarvy);
    visit("UkazovatTipy", self.UkazovatTipy);
    visit("UzivatelJmeno", self.UzivatelJmeno);
    visit("UzivatelMail", self.UzivatelMail);
    visit("Pisma", self.Pisma);
  }
};

} // namespace tarvelin
