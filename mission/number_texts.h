#pragma once

#include <string>
#include <string_view>

// The three ways in which a mission's titles write their numbers.
namespace tarvelin
{

/// Seconds and sizes as the machine's locale writes them: "10", "0,25". Throws 6 for what is no finite number.
std::string localText(float value, std::string_view decimalSeparator);

/// A place or a size on the screen: "0.25", "1.5". A whole number comes twice ("1.1", "2.2") and a negative fraction
/// loses its sign. Throws as above.
std::string placeText(float value);

/// A part of a colour, 1 for full: "0.255", "0.00", "1.02". Throws as above.
std::string colourText(float value);

} // namespace tarvelin
