#pragma once

#include <string>
#include <string_view>

// The machine's 8-bit code page. Text is UTF-8 in memory; the page exists only where a file is read or written.
namespace tarvelin::platform
{

/// Number of the machine's Windows code page (1250 to 1257). Windows: the system's. Elsewhere by the language of the
/// locale (LC_ALL, LC_CTYPE, LANG); 1250, the page that the generated pages declare, for English, C and all others.
int codePage();

/// The Windows code page of a locale's name ("cs_CZ.UTF-8", "sr@latin", "C"), by its language.
int codePageOfLocale(std::string_view locale);

/// UTF-8 of a text in the code page `page` (1250 to 1258; any other number counts as 1250). Every byte has a character:
/// one that the page leaves undefined becomes the C1 control of the same number.
std::string decode(std::string_view bytes, int page = codePage());

/// The bytes of a UTF-8 text in the code page `page`, the exact inverse of `decode`. A character that the page lacks
/// and bytes that are no UTF-8 become "?".
std::string encode(std::string_view text, int page = codePage());

} // namespace tarvelin::platform
