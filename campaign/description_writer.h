#pragma once

#include <string>

namespace tarvelin
{

/// Writes the Description.ext of the campaign to `cesta`: identities, awards and penalties, chapters and missions with
/// their links, radio messages, music and sounds. A step that fails is logged and its text is missing.
void UlozKampanDescription(const std::string& cesta);

} // namespace tarvelin
