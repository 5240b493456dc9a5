#pragma once

namespace tarvelin
{

/// Puts the handlers of the script editor on their fields and their procedures at the core's disposal.
void attachScript();

} // namespace tarvelin
