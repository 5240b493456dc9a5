#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The chooser of one item: a language pack or a page.
struct ChooserForm : Form
{
  ChooserForm() : Form("frmloadsite", "Načíst Briefing") { cmdstorno.show(false); }

  FormValue<std::string> Vysledek{this, "Vysledek"}; // the chosen item
  FormValue<bool> RezimJazyka{this, "RezimJazyka"};  // it chooses a language pack
  List List1{this, "List1"};
  Label Label1{this, "Label1", "Adresář obsahuje více souborů Briefingu. Vyberte, který se má načíst"};
  Command Command1{this, "Command1", "Ok"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
};
inline ChooserForm frmloadsite;

} // namespace tarvelin
