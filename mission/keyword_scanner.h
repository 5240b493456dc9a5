#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tarvelin
{

/// Finds which of a set of keywords the lines of a text hold, at any place and ignoring case, in one pass over the
/// bytes. Keywords are ASCII in upper case; keyword i is bit i.
class KeywordScanner
{
public:
  /// At most 64 keywords.
  explicit KeywordScanner(std::span<const std::string_view> keywords);

  struct Line
  {
    std::string_view text;      ///< without its end (CR LF, LF or CR)
    std::uint64_t keywords = 0; ///< bits of the keywords that it holds
    std::string_view rest;      ///< what follows its end
  };

  /// The first line of a text that is not empty.
  Line scan(std::string_view text) const;

private:
  using State = std::uint16_t; ///< row of m_next, counted in entries

  std::array<std::uint8_t, 256> m_class{}; ///< bytes that no keyword tells apart share a class; 0 ends a line
  std::size_t m_classes = 0;
  std::vector<State> m_next;          ///< m_classes entries for each state
  std::vector<std::uint64_t> m_found; ///< keywords that end in a state, by state number
  State m_firstSpecial = 0;           ///< states from here on end a keyword; the last one ends the line
};

} // namespace tarvelin
