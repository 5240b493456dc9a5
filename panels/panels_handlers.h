#pragma once

namespace tarvelin
{

/// Puts the handlers of the mission's panels on their fields and their procedures at the core's disposal.
void attachPanels();

} // namespace tarvelin
