#pragma once

namespace tarvelin
{

/// Write one companion file of the open mission each, always in a single variant, under lower-case names.
void createBriefing();
void createOverview();
void createDescription();

/// Puts the handler of `Vytvoř` on its command.
void attachCreateMission();

} // namespace tarvelin
