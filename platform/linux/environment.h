#pragma once

#include <string>

// The environment of the process, read anew at each call.
namespace tarvelin::platform
{

/// A variable of the environment, empty when it is not set.
std::string environment(const char* name);

/// The name of the locale that holds for a category ("LC_CTYPE", "LC_TIME", ...): LC_ALL, the category's own variable
/// or LANG, whichever is set first. Empty when none is.
std::string localeName(const char* category);

/// The system's path of the user's Wine prefix, empty when there is no home folder.
std::string winePrefix();

} // namespace tarvelin::platform
