#include "platform/inflate.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

// A zlib stream is a head of two bytes, blocks whose bits are read from the low end of each byte, and a checksum. A
// block holds its bytes as they are, or symbols of a prefix code: bytes, the block's end, and repeats of what came
// before, told by length and distance.
namespace tarvelin::platform
{

namespace
{

constexpr unsigned longestCode = 15;
constexpr unsigned blockEnd = 256;

class BitReader
{
public:
  explicit BitReader(std::string_view bytes) : m_bytes(bytes) {}

  /// The next bits as a number; behind the end they are 0, and good() tells it.
  unsigned bits(unsigned count)
  {
    unsigned number = 0;
    for (unsigned i = 0; i < count; ++i)
      number |= bit() << i;
    return number;
  }

  unsigned bit()
  {
    if (m_at / 8 >= m_bytes.size())
    {
      m_good = false;
      return 0;
    }
    const unsigned byte = static_cast<unsigned char>(m_bytes[m_at / 8]);
    return byte >> (m_at++ % 8) & 1;
  }

  /// Whole bytes from the next boundary on.
  std::string_view bytes(std::size_t count)
  {
    m_at = (m_at + 7) / 8 * 8;
    if (m_bytes.size() - m_at / 8 < count)
    {
      m_good = false;
      return {};
    }
    const std::string_view part = m_bytes.substr(m_at / 8, count);
    m_at += count * 8;
    return part;
  }

  bool good() const { return m_good; }

private:
  std::string_view m_bytes;
  std::size_t m_at = 0; ///< in bits
  bool m_good = true;
};

/// A prefix code: codes of one length follow each other in the order of their symbols.
class PrefixCode
{
public:
  explicit PrefixCode(const std::vector<unsigned>& lengths)
  {
    for (const unsigned length : lengths)
      ++m_counts[length];
    m_counts[0] = 0;
    for (unsigned length = 1; length <= longestCode; ++length)
      for (unsigned symbol = 0; symbol < lengths.size(); ++symbol)
        if (lengths[symbol] == length)
          m_symbols.push_back(symbol);
  }

  static constexpr unsigned noSymbol = ~0U;

  /// `noSymbol` when the bits are no code.
  unsigned read(BitReader& bits) const
  {
    unsigned code = 0;
    unsigned first = 0; // code of the first symbol of this length
    unsigned index = 0; // of that symbol
    for (unsigned length = 1; length <= longestCode; ++length)
    {
      code |= bits.bit();
      const unsigned count = m_counts[length];
      if (code < first)
        return noSymbol; // more codes than there is room for
      if (code - first < count)
        return m_symbols[index + code - first];
      index += count;
      first = (first + count) << 1;
      code <<= 1;
    }
    return noSymbol;
  }

private:
  std::array<unsigned, longestCode + 1> m_counts{};
  std::vector<unsigned> m_symbols;
};

struct Codes
{
  PrefixCode symbols;
  PrefixCode distances;
};

/// Of a symbol that stands for a range of numbers: its lowest, and how many bits behind it tell which.
struct Range
{
  unsigned first;
  unsigned bits;
};

constexpr std::array<Range, 29> lengthRanges = {{
    {3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1},  {13, 1},
    {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3},  {59, 3},
    {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0},
}};

constexpr std::array<Range, 30> distanceRanges = {{
    {1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},      {9, 2},     {13, 2},
    {17, 3},    {25, 3},    {33, 4},    {49, 4},     {65, 5},     {97, 5},     {129, 6},   {193, 6},
    {257, 7},   {385, 7},   {513, 8},   {769, 8},    {1025, 9},   {1537, 9},   {2049, 10}, {3073, 10},
    {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13},
}};

Codes fixedCodes()
{
  std::vector<unsigned> lengths(288, 8);
  std::fill(lengths.begin() + 144, lengths.begin() + 256, 9U);
  std::fill(lengths.begin() + 256, lengths.begin() + 280, 7U);
  return {PrefixCode(lengths), PrefixCode(std::vector<unsigned>(30, 5))};
}

/// The codes at the head of a block, themselves told in a code. Nothing when they are damaged.
std::optional<Codes> ownCodes(BitReader& bits)
{
  constexpr std::array<std::size_t, 19> order = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
  const unsigned symbolCount = bits.bits(5) + 257;
  const unsigned distanceCount = bits.bits(5) + 1;
  const unsigned lengthCount = bits.bits(4) + 4;
  std::vector<unsigned> lengthLengths(order.size(), 0);
  for (unsigned i = 0; i < lengthCount; ++i)
    lengthLengths[order[i]] = bits.bits(3);
  const PrefixCode lengthCode(lengthLengths);

  std::vector<unsigned> lengths;
  while (lengths.size() < symbolCount + distanceCount)
  {
    const unsigned symbol = lengthCode.read(bits);
    if (symbol == PrefixCode::noSymbol || !bits.good() || (symbol == 16 && lengths.empty()))
      return std::nullopt;
    if (symbol < 16)
      lengths.push_back(symbol);
    else if (symbol == 16)
      lengths.insert(lengths.end(), bits.bits(2) + 3, unsigned{lengths.back()});
    else
      lengths.insert(lengths.end(), symbol == 17 ? bits.bits(3) + 3 : bits.bits(7) + 11, 0U);
  }
  if (lengths.size() > symbolCount + distanceCount || lengths[blockEnd] == 0)
    return std::nullopt;
  const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(symbolCount);
  return Codes{PrefixCode({lengths.begin(), middle}), PrefixCode({middle, lengths.end()})};
}

/// Adds the bytes of a block of symbols. False when it is damaged.
bool unpackSymbols(BitReader& bits, const Codes& codes, std::string& out, std::size_t limit)
{
  for (;;)
  {
    const unsigned symbol = codes.symbols.read(bits);
    if (symbol == blockEnd)
      return bits.good();
    if (!bits.good() || symbol == PrefixCode::noSymbol || out.size() >= limit)
      return false;
    if (symbol < blockEnd)
    {
      out += static_cast<char>(symbol);
      continue;
    }
    if (symbol - blockEnd - 1 >= lengthRanges.size())
      return false;
    const Range lengthRange = lengthRanges[symbol - blockEnd - 1];
    const std::size_t length = lengthRange.first + bits.bits(lengthRange.bits);
    const unsigned distanceSymbol = codes.distances.read(bits);
    if (distanceSymbol >= distanceRanges.size())
      return false;
    const Range distanceRange = distanceRanges[distanceSymbol];
    const std::size_t distance = distanceRange.first + bits.bits(distanceRange.bits);
    if (!bits.good() || distance > out.size() || length > limit - out.size())
      return false;
    for (std::size_t i = 0; i < length; ++i)
      out += out[out.size() - distance]; // it may repeat what it has just added
  }
}

bool unpackBlock(BitReader& bits, std::string& out, std::size_t limit)
{
  switch (bits.bits(2))
  {
  case 0:
  {
    const std::string_view head = bits.bytes(4);
    if (!bits.good())
      return false;
    const auto word = [&](std::size_t at) {
      return static_cast<unsigned char>(head[at]) | static_cast<unsigned>(static_cast<unsigned char>(head[at + 1]))
                                                        << 8;
    };
    if (word(0) != (word(2) ^ 0xFFFF) || word(0) > limit - out.size())
      return false;
    out += bits.bytes(word(0));
    return bits.good();
  }
  case 1: return unpackSymbols(bits, fixedCodes(), out, limit);
  case 2:
  {
    const auto codes = ownCodes(bits);
    return codes && unpackSymbols(bits, *codes, out, limit);
  }
  default: return false;
  }
}

std::string checksum(std::string_view bytes)
{
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char c : bytes)
  {
    a = (a + static_cast<unsigned char>(c)) % 65521;
    b = (b + a) % 65521;
  }
  std::string sum;
  for (const std::uint32_t half : {b, a})
  {
    sum += static_cast<char>(half >> 8);
    sum += static_cast<char>(half & 0xFF);
  }
  return sum;
}

} // namespace

std::optional<std::string> inflated(std::string_view stream, std::size_t limit)
{
  constexpr unsigned method = 8;
  constexpr unsigned needsDictionary = 0x20;
  BitReader bits(stream);
  const unsigned head = bits.bits(8);
  const unsigned flags = bits.bits(8);
  if (!bits.good() || (head & 0xF) != method || (flags & needsDictionary) != 0 || (head << 8 | flags) % 31 != 0)
    return std::nullopt;
  std::string out;
  bool last = false;
  while (!last)
  {
    last = bits.bit() != 0;
    if (!unpackBlock(bits, out, limit))
      return std::nullopt;
  }
  if (bits.bytes(4) != checksum(out))
    return std::nullopt;
  return out;
}

std::string stored(std::string_view bytes)
{
  constexpr std::size_t blockSize = 0xFFFF;
  std::string out("\x78\x01");
  for (std::size_t at = 0; at < bytes.size(); at += blockSize)
  {
    const std::string_view block = bytes.substr(at, blockSize);
    out += static_cast<char>(at + block.size() == bytes.size() ? 1 : 0);
    for (const std::size_t size : {block.size(), ~block.size()})
      for (const int shift : {0, 8})
        out += static_cast<char>(size >> shift & 0xFF);
    out += block;
  }
  return out + checksum(bytes);
}

} // namespace tarvelin::platform
