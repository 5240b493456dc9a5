#pragma once

#include <string>
#include <string_view>

// Names without regard to case, for the search of files and for the order of listings. Latin, Greek and Cyrillic
// letters are folded one by one, as file systems do it; nothing depends on the locale.
namespace tarvelin::platform
{

/// The small letter of a character, other characters unchanged.
char32_t fold(char32_t character);

/// The capital letter of a character, other characters unchanged.
char32_t capital(char32_t character);

/// The text in small letters. Bytes that are no UTF-8 stay as they are.
std::string folded(std::string_view text);

bool equalIgnoringCase(std::string_view a, std::string_view b);

/// Order of listings: ignoring case first, then by bytes, so that names that differ only in case keep one order.
bool lessIgnoringCase(std::string_view a, std::string_view b);

} // namespace tarvelin::platform
