#pragma once

namespace tarvelin
{

/// Puts the handlers of the campaign wizard on their fields and their procedures at the core's disposal.
void attachCampaign();

} // namespace tarvelin
