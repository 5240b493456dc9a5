#pragma once

namespace tarvelin
{

/// Puts the handlers of the editor's colour setup on its fields.
void attachEditorSetup();

} // namespace tarvelin
