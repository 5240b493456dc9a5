#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Reading and writing of single UTF-8 characters.
namespace tarvelin::platform
{

/// What `nextCharacter` gives for a byte that is no UTF-8.
inline constexpr char32_t notACharacter = 0xFFFFFFFF;

/// The character at byte `at`, which must lie inside of the text; `at` moves behind it. A byte that begins no valid
/// character (overlong forms and surrogates count as invalid) is passed alone.
char32_t nextCharacter(std::string_view text, std::size_t& at);

/// Appends a character (up to 0x10FFFF) in UTF-8.
void appendCharacter(std::string& text, char32_t character);

} // namespace tarvelin::platform
