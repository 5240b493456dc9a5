#pragma once

namespace tarvelin
{

/// Shows the overview of the finished campaign and then the form.
void showFinishedCampaign();

/// Puts the handlers of the wizard's last window on their fields.
void attachCampaignFinish();

} // namespace tarvelin
