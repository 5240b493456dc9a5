#pragma once

namespace tarvelin
{

/// Enables the editors of an environment sound while there is one.
void Tlacitka();

/// Puts the handlers of the environment sounds on their fields.
void attachEnvironmentSounds();

} // namespace tarvelin
