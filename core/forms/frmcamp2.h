#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: announces the identity profiles.
struct CampaignProfilesForm : Form
{
  CampaignProfilesForm() : Form("frmcamp2", "Průvodce vytvořením kampaně krok 2") {}

  Label Label1{this, "Label1", "Profily postav"};
  Label Label2{this, "Label2",
               "Na dalším formuláři vytvoříte profily postav za které může či nemůže hráč v kampani hrát. Objeví se "
               "stejný dialog jako při popisu profilů postav, který používáte pro nastavení postav v jednotlivých "
               "misích. Můžete zde vytvořit postavy jako byl generál Guba, Angelina, Armstrong nebo třeba James "
               "Gastovsky hlavní kampani Operace Flashpoint."};
  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdnext{this, "cmdnext", "Další"};
};
inline CampaignProfilesForm frmcamp2;

} // namespace tarvelin
