#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text by characters. All text is UTF-8; positions and lengths count characters, from 1 as the program's algorithms do.
namespace tarvelin
{

inline constexpr std::string_view crlf = "\r\n";

/// Number of characters.
std::size_t length(std::string_view text);

/// The first `count` characters. Throws 5 for a negative count.
std::string left(std::string_view text, int count);

/// The last `count` characters. Throws 5 for a negative count.
std::string right(std::string_view text, int count);

/// The characters from `start` (1 is the first) to the end. Throws 5 for a start below 1.
std::string mid(std::string_view text, int start);

/// `count` characters from `start`. Throws 5 for a start below 1 or a negative count.
std::string mid(std::string_view text, int start, int count);

/// Place of `needle`, from 1; 0 when it is not there.
int inStr(std::string_view text, std::string_view needle);

/// Place of the last `needle`, from 1; 0 when it is not there.
int inStrRev(std::string_view text, std::string_view needle);

/// Upper case, character by character (Latin, Greek and Cyrillic letters).
std::string upper(std::string_view text);

/// Without blanks at both ends. Only the blank is one.
std::string trim(std::string_view text);

/// The leading number of a text behind blanks, with a point as decimal separator; 0 when there is none.
double val(std::string_view text);

/// `val` as a 16-bit integer, a half rounded to the even number. Throws 6 when it is out of range.
short integerVal(std::string_view text);

/// A whole text that is a number, as a 16-bit integer, a half rounded to the even number. Throws 13 when it is no
/// number, 6 when it is out of range.
short toInteger(std::string_view text);

/// A number in plain text: no leading blank, a point, up to 15 significant digits ("7", "0.5", "-2").
std::string numberText(double value);

/// The text with every `what` replaced by `by`.
std::string replaced(std::string_view text, std::string_view what, std::string_view by);

/// True when both names are the same but for the case of A to Z.
bool sameAscii(std::string_view a, std::string_view b);

/// True when both are the same but for case.
bool sameIgnoringCase(std::string_view a, std::string_view b);

/// True when `text`, in upper case, holds `needle`, in upper case.
bool containsIgnoringCase(std::string_view text, std::string_view needle);

/// Bytes of the character that begins at byte `at` of a text (1 for a byte that begins none).
std::size_t characterSize(std::string_view text, std::size_t at);

/// Byte offset of character `index` (from 0), the text's size when it has fewer.
std::size_t byteOffset(std::string_view text, std::size_t index);

/// The double quotes taken out of a value of a game file.
std::string BezUvozovek(std::string_view text);

} // namespace tarvelin
