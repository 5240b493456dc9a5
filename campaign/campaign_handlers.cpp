#include "campaign/campaign_handlers.h"

namespace tarvelin
{

void attachCampaign()
{
}

} // namespace tarvelin
