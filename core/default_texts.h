#pragma once

namespace tarvelin
{

/// Puts the default texts of the language pack into the mission's fields. Opening a mission does so, and each load of a
/// pack, which thereby replaces what the user typed there.
void setMissionTexts();

/// The same for the sound panel of the campaign.
void setCampaignTexts();

} // namespace tarvelin
