#pragma once

#include "core/forms/kinds.h"

namespace tarvelin
{

/// Progress of the making of a campaign.
struct CampaignCopyForm : Form
{
  CampaignCopyForm() : Form("frmcopy", "Vytváření souborů kampaně a kopírování misí...") {}

  Label Label1{this, "Label1", "Průvodce vytváří složku kampaně"};
  Label lblmise{this, "lblmise"};
  Progress prubeh1{this, "prubeh1"};
  Label lbljmeno{this, "lbljmeno"};
  Progress prubeh2{this, "prubeh2"};
};
inline CampaignCopyForm frmcopy;

} // namespace tarvelin
