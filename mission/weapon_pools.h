#pragma once

#include <string>

namespace tarvelin
{

class LoggedSteps;

/// Add the pools of weapons and of magazines that the panel offers to a mission's Description.ext.
void appendWeapons(std::string& text, const LoggedSteps& steps);
void appendMagazines(std::string& text, const LoggedSteps& steps);

} // namespace tarvelin
