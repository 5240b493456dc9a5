#pragma once

namespace tarvelin
{

/// Puts the handlers of the window that shows the generated files on its fields.
void attachPreviews();

} // namespace tarvelin
