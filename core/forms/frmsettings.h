#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// General settings.
struct SettingsForm : Form
{
  SettingsForm() : Form("frmsettings", "Nastavení...")
  {
    for (Field* field : std::initializer_list<Field*>{&cmddel, &txtnazev, &txtcesta, &txtparams})
      field->enable(false);
  }

  // PBO utility
  Group Frame1{this, "Frame1", "PBO utilita"};
  Label Label1{this, "Label1", "Cesta k programu:"};
  Text txtpbopath{this, "txtpbopath"};
  Command Command1{this, "Command1", "..."};
  Label Label2{this, "Label2", "Parametry:"};
  Text txtparametry{this, "txtparametry"};

  // Programs bar
  Group Frame2{this, "Frame2", "Externí programy"};
  List seznamprogramu{this, "seznamprogramu"};
  Label Label3{this, "Label3", "Název:"};
  Text txtnazev{this, "txtnazev"};
  Label Label4{this, "Label4", "Cesta:"};
  Text txtcesta{this, "txtcesta"};
  Command Command3{this, "Command3", "..."};
  Label Label5{this, "Label5", "Parametry:"};
  Text txtparams{this, "txtparams"};
  Command cmdadd{this, "cmdadd", "Přidat na seznam"};
  Command cmddel{this, "cmddel", "Smazat"};
  Command cmdsave{this, "cmdsave", "Uložit"};

  // File association
  Group Frame3{this, "Frame3", "Asociace souborů sqm"};
  Picture imgicon{this, "imgicon"};
  Command Command5{this, "Command5", "Asociovat"};
  Command Command6{this, "Command6", "Zrušit Asociaci"};

  // User
  Group Frame4{this, "Frame4", "Uživatel"};
  Label Label6{this, "Label6", "Jméno:"};
  Text Text1{this, "Text1"};
  Label Label7{this, "Label7", "E-mail:"};
  Text Text2{this, "Text2"};
  Check Check1{this, "Check1", "Zobrazit tipy"};

  Command Command4{this, "Command4", "Apply"};
  Command Command2{this, "Command2", "Ok"};
  Dialog CommonDialog1{this, "CommonDialog1"};
};
inline SettingsForm frmsettings;

} // namespace tarvelin
