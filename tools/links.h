#pragma once

namespace tarvelin
{

/// Puts the handlers of the list of web links on its fields.
void attachLinks();

} // namespace tarvelin
