#pragma once

namespace tarvelin
{

/// Lets the user choose a language pack, as the menu does it; the choice takes effect at once.
void chooseLanguage();

/// Puts the handlers of the chooser of one item (packs, pages) on their fields.
void attachLanguageChooser();

} // namespace tarvelin
