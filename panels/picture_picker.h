#pragma once

namespace tarvelin
{

/// Shows one picture of the folder \bfdata\pic, drawn by chance, beside the notes.
void NactiObrazek();

/// Puts the handlers of the picture picker, and of the overview's picture on the main form, on their fields.
void attachPicturePicker();

} // namespace tarvelin
