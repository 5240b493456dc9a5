#pragma once

namespace tarvelin
{

/// Copies the sounds, music and pictures of the lists into the folder of the open mission, with a progress window.
/// Failures are logged.
void KopirujZvuky();

/// Puts the handler of the progress window (Form1) on its field.
void attachSoundCopy();

} // namespace tarvelin
