#pragma once

namespace tarvelin
{

/// Puts the handlers of the editor of the endings on its fields.
void attachDebriefing();

} // namespace tarvelin
