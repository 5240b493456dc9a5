#pragma once

namespace tarvelin
{

/// Puts the handlers of the campaign wizard's steps on their fields: the way from form to form, folder, name and lives,
/// and the generation.
void attachCampaignWizard();

} // namespace tarvelin
