#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: folder, name and lives.
struct CampaignStartForm : Form
{
  CampaignStartForm() : Form("frmcamp1", "Průvodce vytvořením kampaně...") {}

  Picture bannner{this, "bannner"};
  Label Label1{this, "Label1", "Je libo vlastní kampaň ?"};
  Label Label2{this, "Label2", "Vyberte adresář kam se má kampaň uložit:"};
  Text txtkampcesta{this, "txtkampcesta", "Text1"};
  Command cmdadresar{this, "cmdadresar", "..."};
  Label Label3{this, "Label3",
               "Do tohoto adresáře se zkopírují všechny mise, a vůbec všechny data které bude kampaň vyžadovat"};
  Label Label4{this, "Label4", "Napište název vaší kampaně:"};
  Text txtkampJmeno{this, "txtkampJmeno", "Moje Kampaň"};
  Label Label5{this, "Label5", "Počet životů:"};
  Text txtzivoty{this, "txtzivoty", "-1"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdNext{this, "cmdNext", "Další"};
};
inline CampaignStartForm frmcamp1;

} // namespace tarvelin
