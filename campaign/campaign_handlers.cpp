#include "campaign/campaign_handlers.h"

#include "campaign/awards.h"
#include "campaign/finish.h"
#include "campaign/overview.h"
#include "campaign/tree.h"
#include "campaign/wizard.h"

namespace tarvelin
{

void attachCampaign()
{
  attachCampaignWizard();
  attachAwards();
  attachCampaignTree();
  attachCampaignOverview();
  attachCampaignFinish();
}

} // namespace tarvelin
