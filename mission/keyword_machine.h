#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tarvelin
{

/// A machine that is fed a text byte by byte and knows which keywords end at each, in any case of letters. Keywords are
/// ASCII in upper case; keyword i is bit i.
class KeywordMachine
{
public:
  using State = std::uint16_t;

  enum class LineEnds
  {
    plain, ///< CR and LF are bytes like others
    stop,  ///< CR and LF lead to atLineEnd()
  };

  /// At most 64 keywords.
  KeywordMachine(std::span<const std::string_view> keywords, LineEnds lineEnds);

  static constexpr State start = 0;

  State next(State state, char byte) const
  {
    return m_next[std::size_t{state} + m_class[static_cast<unsigned char>(byte)]];
  }

  /// A keyword ends here, or the line.
  bool special(State state) const { return state >= m_firstSpecial; }
  bool atLineEnd(State state) const { return state == m_lineEnd; }
  std::uint64_t found(State state) const { return m_found[std::size_t{state} / m_classes]; }

  std::size_t longestKeyword() const { return m_longest; }

private:
  std::array<std::uint8_t, 256> m_class{}; ///< bytes that no keyword tells apart share a class
  std::size_t m_classes = 0;
  std::vector<State> m_next;          ///< m_classes entries for each state; a state is the place of its first entry
  std::vector<std::uint64_t> m_found; ///< keywords that end in a state
  State m_firstSpecial = 0;
  State m_lineEnd = 0;
  std::size_t m_longest = 0;
};

} // namespace tarvelin
