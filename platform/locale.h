#pragma once

#include <string>

// What the machine's locale says about numbers and dates.
namespace tarvelin::platform
{

/// Decimal separator of the locale, "." where it has none. UTF-8.
std::string decimalSeparator();

/// Two-letter language of the locale in lower case, empty for C and POSIX.
std::string language();

} // namespace tarvelin::platform
