#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: the step that creates the campaign.
struct CampaignCreateForm : Form
{
  CampaignCreateForm() : Form("frmcamp6", "Průvodce vytvořením kampaně krok 7") {}

  Label Label1{this, "Label1", "Vytvořit kampaň"};
  Label Label2{this, "Label2",
               "Toto je poslední krok. Po kliknutí na tlačítko další program zkopíruje mise a ostatní soubory do "
               "adresáře kampaně a vytvoří konfigurační soubory kampaně. Až se tak stane, podívejte se do nápovědy na "
               "vytváření kampaně ke kroku 10. Tam se dozvíte, co musíte s kampaní udělat ve Flashpointu, aby "
               "chodila."};
  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdnext{this, "cmdnext", "Další"};
};
inline CampaignCreateForm frmcamp6;

} // namespace tarvelin
