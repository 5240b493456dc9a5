#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

/// The text behind the last backslash; "" when there is none.
std::string JmenoZCesty(std::string_view path);

/// The number that the digits at the end of a text form; 0 when it ends in none or is nothing but digits. Throws 6 when
/// it is too large.
int CisloZKlice(std::string_view text);

} // namespace tarvelin
