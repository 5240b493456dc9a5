#pragma once

#include "core/forms/font.h"

#include <cstdint>
#include <string>
#include <string_view>

// The program's own binary files: little-endian numbers, strings as a 16-bit length in bytes and that many bytes in the
// machine's code page.
namespace tarvelin
{

class BinaryWriter
{
public:
  void put(std::int16_t number);
  void put(Colour colour);

  /// What is longer than 65535 bytes is cut.
  void put(std::string_view text);

  void pad(std::size_t count) { m_bytes.append(count, '\0'); }

  const std::string& bytes() const { return m_bytes; }

private:
  std::string m_bytes;
};

/// Reads what a BinaryWriter wrote. Behind the end every value stays as it was; a string whose bytes are not all there
/// is not read, and nothing behind it.
class BinaryReader
{
public:
  explicit BinaryReader(std::string bytes) : m_bytes(std::move(bytes)) {}

  bool atEnd() const { return m_at >= m_bytes.size(); }

  /// True when something was asked for that is not all there.
  bool cut() const { return m_cut; }

  void get(std::int16_t& number);
  void get(Colour& colour);
  void get(std::string& text);
  void skip(std::size_t count);

private:
  bool take(std::size_t count, std::size_t& from);

  std::string m_bytes;
  std::size_t m_at = 0;
  bool m_cut = false;
};

} // namespace tarvelin
