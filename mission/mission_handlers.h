#pragma once

namespace tarvelin
{

/// Puts the handlers of opening and creating missions on their fields.
void attachMission();

} // namespace tarvelin
