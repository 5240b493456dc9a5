#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Campaign wizard: shows the generated files and packs the campaign.
struct CampaignFinishForm : Form
{
  CampaignFinishForm() : Form("frmcamp7", "Průvodce vytvořením kampaně - finiš") {}

  Browser ukaz{this, "ukaz"};
  Slider souborylist{this, "souborylist", 0, 2};
  Command Command1{this, "Command1", "Make PBO File"};
  Command cmdok{this, "cmdok", "Ok"};
};
inline CampaignFinishForm frmcamp7;

} // namespace tarvelin
