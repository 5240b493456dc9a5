#pragma once

namespace tarvelin
{

class Text;

/// Lets the user pick a sound file; its full path goes into `box`.
void chooseSound(Text& box);

} // namespace tarvelin
