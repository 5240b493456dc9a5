#pragma once

#include "mission/keyword_machine.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tarvelin
{

/// Tells which of a set of keywords the lines of a text hold, at any place and ignoring case. Keywords are ASCII in
/// upper case; keyword i is bit i.
class KeywordScanner
{
public:
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
  KeywordMachine m_machine;
};

/// Finds the lines of a long text that hold a keyword, without a look at the others one by one: it runs ahead in
/// windows, in each of which several machines read at once.
class KeywordFinder
{
public:
  KeywordFinder(std::span<const std::string_view> keywords, std::string_view text);

  /// Start of the first line at or behind `from` (the start of a line) that holds a keyword; the text's size when there
  /// is none. `from` never goes back.
  std::size_t lineFrom(std::size_t from);

private:
  static constexpr std::size_t streams = 4;
  static constexpr std::size_t streamSize = 1 << 14;

  void readWindow(std::size_t from);

  KeywordMachine m_machine;
  std::string_view m_text;
  std::size_t m_windowEnd = 0;
  std::vector<std::size_t> m_ends; ///< where keywords end in the window
  std::size_t m_next = 0;          ///< of m_ends
};

} // namespace tarvelin
