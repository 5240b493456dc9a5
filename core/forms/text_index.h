#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarvelin
{

/// Finds characters in a long UTF-8 text without walking it from its start each time: it keeps the byte offset of each
/// 512th character as far as somebody has asked.
class TextIndex
{
public:
  /// Number of characters.
  std::size_t length(const std::string& text) const;

  /// Byte offset of character `position`; the text's size when it has fewer.
  std::size_t offset(const std::string& text, std::size_t position) const;

  /// The text changed from character `start` on: `removed` characters gave way to `added`. Called before the length is
  /// asked again.
  void spliced(std::size_t start, std::size_t removed, std::size_t added);

  /// The text is another one.
  void clear();

private:
  static constexpr std::size_t step = 512;
  static constexpr std::size_t unknown = static_cast<std::size_t>(-1);

  mutable std::vector<std::size_t> m_offsets; ///< of the characters step, 2 step, and so on
  mutable std::size_t m_length = unknown;
};

} // namespace tarvelin
