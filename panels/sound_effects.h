#pragma once

namespace tarvelin
{

/// Puts the handlers of the sound effects on their fields.
void attachSoundEffects();

} // namespace tarvelin
