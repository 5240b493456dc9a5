#pragma once

namespace tarvelin
{

/// Puts the handlers of the command index on its fields.
void attachIndex();

} // namespace tarvelin
