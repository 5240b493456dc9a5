#pragma once

namespace tarvelin
{

/// Puts the handlers of the list of objectives on its fields.
void attachObjectives();

} // namespace tarvelin
