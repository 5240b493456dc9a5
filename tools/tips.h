#pragma once

namespace tarvelin
{

/// Shows the next tip in the language in use; behind the last one the first comes again.
void NactiTip();

/// Puts the handlers of the tips on their fields.
void attachTips();

} // namespace tarvelin
