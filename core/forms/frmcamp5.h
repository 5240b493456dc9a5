#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: radio messages, sounds and music; the fields are named as on frmmain.
struct CampaignSoundsForm : Form
{
  CampaignSoundsForm() : Form("frmcamp5", "Průvodce vytvořením kampaně krok 5")
  {
    for (Field* field :
         std::initializer_list<Field*>{&cmdodebratradio, &cmdodebratzvuk, &cmdodebrathudbu, &cmdadd, &cmdel, &txtzvuk})
      field->enable(false);
  }

  FormValue<bool> PridavaText{this, "PridavaText"}; // while a subtitle is being added seznamtextu keeps still
  FieldArray<Label> Label1{this,
                           "Label1",
                           {{0, "Jméno:"},
                            {4, "Jméno:"},
                            {37, "Název:"},
                            {38, "Postava:"},
                            {39, "Text příslušící zvuku:"},
                            {40, "Text rádiové zprávy:"},
                            {41, "Název:"},
                            {42, "Název:"},
                            {51, "Hlasitost / Hloubka"},
                            {54, "Hlasitost / Hloubka"}}};

  // Radio messages
  Group Frame8{this, "Frame8", "Rádio:"};
  List seznamradia{this, "seznamradia", List::Style::checkMarks};
  Command cmdnacistradio{this, "cmdnacistradio", "Načíst zvukový soubor..."};
  Command cmdodebratradio{this, "cmdodebratradio", "Odebrat"};
  Label Label2{this, "Label2", "Jméno:"};
  Text txtjmenoradia{this, "txtjmenoradia", "Rádio1"};
  Text txtradiojmeno{this, "txtradiojmeno", "Moje Radio"};
  Text txtpostava{this, "txtpostava", "aP"};
  Label Label4{this, "Label4", "Hlasitost / Hloubka"};
  Text txtradiohlasitost{this, "txtradiohlasitost", "+10"};
  Text txtradiohloubka{this, "txtradiohloubka", "1.0"};
  Combo radiojazyk{this, "radiojazyk"};
  Text txtradio{this, "txtradio", "Ahojky, tohle je moje rádiová \r\nzpráva číslo: 1\r\n"};

  // Sounds
  Group Frame9{this, "Frame9", "Zvuky:"};
  List seznamzvuku{this, "seznamzvuku", List::Style::checkMarks};
  Command cmdnacistzvuk{this, "cmdnacistzvuk", "Načíst zvukový soubor..."};
  Command cmdodebratzvuk{this, "cmdodebratzvuk", "Odebrat"};
  Text txtjmenozvuku{this, "txtjmenozvuku", "Zvuk1"};
  Text txtnazev{this, "txtnazev", "Muj zvuk"};
  Text txtzvukhlasitost{this, "txtzvukhlasitost", "-10"};
  Text txtzvukhloubka{this, "txtzvukhloubka", "1.0"};
  List seznamtextu{this, "seznamtextu", List::Style::checkMarks};
  Command cmdadd{this, "cmdadd", "Add"};
  Command cmdel{this, "cmdel", "Clear"};
  Combo zvukyjazyk{this, "zvukyjazyk"};
  Text txtzvuk{this, "txtzvuk", "Sem napište text který se zobrazí při přehrání zvuku. Může jich být i víc"};

  // Music
  Group Frame10{this, "Frame10", "Hudba:"};
  List seznamhudby{this, "seznamhudby", List::Style::checkMarks};
  Command cdmnactihudbu{this, "cdmnactihudbu", "Načíst zvukový soubor..."};
  Command cmdodebrathudbu{this, "cmdodebrathudbu", "Odebrat"};
  Text txtjmenohudby{this, "txtjmenohudby", "Hudba1"};
  Text txthudbanazev{this, "txthudbanazev", "Moje hudba"};
  Text txthudbahlasitost{this, "txthudbahlasitost", "+40"};
  Text txthudbahloubka{this, "txthudbahloubka", "1.0"};

  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdnext{this, "cmdnext", "Další"};
};
inline CampaignSoundsForm frmcamp5;

} // namespace tarvelin
