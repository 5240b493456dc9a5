#pragma once

namespace tarvelin
{

/// Puts the handlers of the mission settings tab on its checks: each shows the frame that it governs.
void attachMissionSettings();

} // namespace tarvelin
