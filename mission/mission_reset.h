#pragma once

namespace tarvelin
{

/// Forgets the mission that was open: its records, its texts, and what its fields show.
void resetMission();

} // namespace tarvelin
