#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: text and picture of the overview.
struct CampaignOverviewForm : Form
{
  CampaignOverviewForm() : Form("frmcampobr", "Průvodec vytvořením kampaně krok 6") {}

  Text txtkampover{this, "txtkampover", "Sem napište text overview, pokud chcete\r\n"};
  Command cmdopen{this, "cmdopen", "Otevřít..."};
  Command cmdnoimage{this, "cmdnoimage", "Bez obrázku"};
  Picture imgnahled{this, "imgnahled"};
  Label lbljmeno{this, "lbljmeno"};
  Group Frame11{this, "Frame11", "Velikost obrázku"};
  FieldArray<Label> Label1{this, "Label1", {{1, "Šířka:"}, {2, "Výška:"}}};
  Combo Sirka{this, "Sirka"};
  Combo Vyska{this, "Vyska"};
  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdnext{this, "cmdnext", "Další"};
};
inline CampaignOverviewForm frmcampobr;

} // namespace tarvelin
