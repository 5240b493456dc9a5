#pragma once

namespace tarvelin
{

/// Lets the author pick a mission for the campaign; its folder is then in shared.VybranaCesta. False when it was
/// cancelled.
bool chooseCampaignMission();

} // namespace tarvelin
