#pragma once

#include <string>

namespace tarvelin
{

class Text;

/// Cuts a number field at its first character that is neither a digit nor a blank.
void FiltrujCislo(Text& field);

/// Reads the add-on weapons of addons.dat into the list; weapons without a title or a class name are dropped. Failures
/// are logged.
void NactiAddony(const std::string& path);

void attachWeapons();

} // namespace tarvelin
