#pragma once

namespace tarvelin
{

/// Puts the handlers of the tools on their fields and their procedures at the core's disposal.
void attachTools();

} // namespace tarvelin
