#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: awards and penalties.
struct CampaignAwardsForm : Form
{
  CampaignAwardsForm() : Form("frmcamp3", "Průvodce vytvořením kampaně krok 3")
  {
    for (Field* field : std::initializer_list<Field*>{&Command1, &Command2, &cmddelA, &cmddelP})
      field->enable(false);
  }

  Label Label1{this, "Label1", "Špatný voják, nebo lepší než Rambo ?"};
  Label Label2{this, "Label2",
               "Nyní si vytvoříme odkaz na mise, které jsou dělány formou intra a obsahují animace s pokáráním od "
               "nejvyššího důstojníka jako byl plukovník Blake v kampani. Nastavte odkazy na mise které znamenají "
               "jaké honocení a při jakém skóre se mají ukázat"};

  // Awards
  Group Frame2{this, "Frame2", "Rambo by ti mohl závidět"};
  List awardlist{this, "awardlist", List::Style::checkMarks};
  Command cmdaddA{this, "cmdaddA", "Přidat"};
  Command cmddelA{this, "cmddelA", "Odebrat"};
  Label Label3{this, "Label3", "Limit"};
  Text awardlimit{this, "awardlimit", "20"};
  Combo awardlend{this, "awardlend"};
  Text txtcesta2{this, "txtcesta2"};
  Command Command2{this, "Command2", "..."};

  // Penalties
  Group Frame1{this, "Frame1", "Takhle to dál nejde vojáku !"};
  List penaltylist{this, "penaltylist", List::Style::checkMarks};
  Command cdmaddP{this, "cdmaddP", "Přidat"};
  Command cmddelP{this, "cmddelP", "Odebrat"};
  Check cmdukon{this, "cmdukon", "Ukončovací"};
  Label Label4{this, "Label4", "Limit"};
  Text penaltylimit{this, "penaltylimit", "-10"};
  Combo penaltyland{this, "penaltyland"};
  Text txtcesta{this, "txtcesta"};
  Command Command1{this, "Command1", "..."};

  Command cmdPrev{this, "cmdPrev", "Zpět"};
  Command cmdstorno{this, "cmdstorno", "Storno"};
  Command cmdnext{this, "cmdnext", "Další"};
};
inline CampaignAwardsForm frmcamp3;

} // namespace tarvelin
