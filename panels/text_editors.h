#pragma once

namespace tarvelin
{

/// Puts the handlers of the briefing's editors on their fields: plan, notes, objectives, sides, language variants,
/// markers, fonts, and the shortcuts of all fields that take markup.
void attachTextEditors();

} // namespace tarvelin
