#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: chapters and missions.
struct CampaignTreeForm : Form
{
  CampaignTreeForm() : Form("frmcamp4", "Průvodce vytvořením kampaně krok 4")
  {
    cmdaddmission.enable(false);
    for (Field* field : std::initializer_list<Field*>{&txtpartname, &txtdalsimise, &cmdne, &seznamakci})
      field->show(false);
  }

  Label Label1{this, "Label1", "Přidání misí a kapitol kampaně"};
  Tree campfiles{this, "campfiles"};
  Label txtcesta{this, "txtcesta"};
  Text txtpartname{this, "txtpartname"};
  Command cmdne{this, "cmdne", "Storno"};
  Command cmdaddpart{this, "cmdaddpart", "Přidat kapitolu"};
  Command cmdaddmission{this, "cmdaddmission", "Přidat misi"};
  Command cmdmissionedit{this, "cmdmissionedit", "Upravit"};
  Combo seznamakci{this, "seznamakci"};
  Text txtdalsimise{this, "txtdalsimise"};
  Picture cmddel{this, "cmddel"};
  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmddale{this, "cmddale", "Další"};
};
inline CampaignTreeForm frmcamp4;

} // namespace tarvelin
