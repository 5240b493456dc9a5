#pragma once

#include "core/forms/rich_text.h"
#include "core/numbers.h"

namespace tarvelin
{

/// While it lives, changes of the script that the program itself makes are not coloured (PovolBarvy is off).
class QuietEditor
{
public:
  QuietEditor();
  ~QuietEditor();
  QuietEditor(const QuietEditor&) = delete;
  QuietEditor& operator=(const QuietEditor&) = delete;

private:
  Flag m_before;
};

/// Colours a whole script and puts its words into the spelling of the command index. The caret stays.
void ObarviSkript(RichText& box);

/// Colours what the character before the caret closed: a word, or a comment that it opened or goes on with. The caret
/// stays; what is typed next comes in plain.
void colourTyped(RichText& box);

} // namespace tarvelin
