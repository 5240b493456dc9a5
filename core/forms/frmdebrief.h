#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// The editor of the texts for the mission's endings, with the mission's sensors to page through.
struct DebriefingForm : Form
{
  DebriefingForm() : Form("frmdebrief", "Debrífing")
  {
    cmdnext.enable(false);
    cmdprev.enable(false);
  }

  FormValue<bool> PridavaKonec{this, "PridavaKonec"}; // while an ending is being added List1 keeps still
  Text txtjmeno{this, "txtjmeno", " Sem napište název konce č 1,2,3,4 atd"};
  Text txtdebrief{this, "txtdebrief", "Sem napište text který bude vypsán při prvním, druhém atd konci.\r\n"};
  List List1{this, "List1", List::Style::checkMarks};
  Command cmdpridat{this, "cmdpridat", "Přidat"};
  Command cmdodebrat{this, "cmdodebrat", "Odebrat"};
  Command cmdsmazvse{this, "cmdsmazvse", "Smazat vše"};
  Command cmdOK{this, "cmdOK", "OK"};

  // Sensors
  Command cmdnext{this, "cmdnext", ">"};
  Command cmdprev{this, "cmdprev", "<"};
  Label Label1{this, "Label1", "Nalezených senzorů:"};
  Label lblpocetkoncu{this, "lblpocetkoncu"};
  Label Label2{this, "Label2", "Typ:"};
  Label lbltyp{this, "lbltyp"};
  Label Label3{this, "Label3", "Text:"};
  Label lbltext{this, "lbltext"};
  Label Label4{this, "Label4", "Podmínka:"};
  Label lblpodminka{this, "lblpodminka"};
};
inline DebriefingForm frmdebrief;

} // namespace tarvelin
