#include "core/binary_file.h"

#include "platform/codepage.h"

namespace tarvelin
{

namespace
{

void putLittle(std::string& bytes, std::uint32_t number, int size)
{
  for (int i = 0; i < size; ++i)
    bytes.push_back(static_cast<char>(number >> 8 * i & 0xFF));
}

std::uint32_t getLittle(const std::string& bytes, std::size_t from, std::size_t size)
{
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i)
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[from + i])) << 8 * i;
  return number;
}

} // namespace

void BinaryWriter::put(std::int16_t number)
{
  putLittle(m_bytes, static_cast<std::uint16_t>(number), 2);
}

void BinaryWriter::put(Colour colour)
{
  putLittle(m_bytes, colour, 4);
}

void BinaryWriter::put(std::string_view text)
{
  const std::string encoded = platform::encode(text).substr(0, 0xFFFF);
  putLittle(m_bytes, static_cast<std::uint32_t>(encoded.size()), 2);
  m_bytes += encoded;
}

bool BinaryReader::take(std::size_t count, std::size_t& from)
{
  if (m_bytes.size() - m_at < count)
  {
    m_at = m_bytes.size();
    m_cut = true;
    return false;
  }
  from = m_at;
  m_at += count;
  return true;
}

void BinaryReader::get(std::int16_t& number)
{
  if (std::size_t from = 0; take(2, from))
    number = static_cast<std::int16_t>(getLittle(m_bytes, from, 2));
}

void BinaryReader::get(Colour& colour)
{
  if (std::size_t from = 0; take(4, from))
    colour = getLittle(m_bytes, from, 4);
}

void BinaryReader::get(std::string& text)
{
  std::size_t from = 0;
  if (!take(2, from))
    return;
  const std::size_t size = getLittle(m_bytes, from, 2);
  if (take(size, from))
    text = platform::decode(std::string_view(m_bytes).substr(from, size));
}

void BinaryReader::skip(std::size_t count)
{
  std::size_t from = 0;
  take(count, from);
}

} // namespace tarvelin
