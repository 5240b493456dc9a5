#pragma once

#include <string>

namespace tarvelin
{

/// Writes the overview page of the campaign to `cesta`, with the chosen picture, which is copied beside it as pic.EXT.
/// The text goes in as it is. A failing step is logged and skipped.
void UlozKampanOverview(const std::string& cesta, const std::string& text);

/// Puts the handlers of the overview's text and picture on their fields.
void attachCampaignOverview();

} // namespace tarvelin
