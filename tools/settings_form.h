#pragma once

namespace tarvelin
{

/// Puts the handlers of the general settings on their fields, and those of the menu items that lead to them and to the
/// sibling editor.
void attachSettingsForm();

} // namespace tarvelin
