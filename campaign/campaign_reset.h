#pragma once

namespace tarvelin
{

/// Ends a run of the campaign wizard: all stores of the campaign and the lists of its steps become empty. Folder, name,
/// lives and overview text stay in their fields for the next run.
void ResetKampan();

} // namespace tarvelin
