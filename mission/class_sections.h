#pragma once

#include <string>

namespace tarvelin
{

class LoggedSteps;

/// Adds the second half of a mission's Description.ext to `text`: the classes from CfgRadio to RscTitles.
void appendClassSections(std::string& text, const LoggedSteps& steps);

} // namespace tarvelin
