#pragma once

#include <string_view>

namespace tarvelin
{

/// Writes the settings record to the settings file (ours, binary). A failure is logged.
void UlozNastaveni(std::string_view path);

/// Clears the settings record and reads it; what a short file lacks stays cleared. Throws 53 and the like.
void NactiNastaveni(std::string_view path);

/// The settings of a first run, but for the language and the user.
void setDefaultSettings();

} // namespace tarvelin
