#include "platform/icon_image.h"

#include "platform/png_image.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tarvelin::platform
{

namespace
{

// Little-endian numbers of a file that may be damaged: what lies behind the end reads as nothing.
class Bytes
{
public:
  explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}

  bool has(std::size_t at, std::size_t size) const { return at <= m_bytes.size() && m_bytes.size() - at >= size; }

  unsigned byte(std::size_t at) const { return has(at, 1) ? static_cast<unsigned char>(m_bytes[at]) : 0; }
  unsigned word(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
  std::uint32_t number(std::size_t at) const { return word(at) | std::uint32_t{word(at + 2)} << 16; }

  std::string_view part(std::size_t at, std::size_t size) const
  {
    return has(at, size) ? m_bytes.substr(at, size) : std::string_view{};
  }

private:
  std::string_view m_bytes;
};

constexpr int largestSide = 256;

/// A bitmap without a file header: the colours, and below them a mask that tells what is transparent.
std::optional<IconImage> iconOfBitmap(std::string_view data)
{
  const Bytes bytes(data);
  constexpr std::size_t headerSize = 40;
  const std::size_t header = bytes.number(0);
  const auto width = static_cast<std::int32_t>(bytes.number(4));
  const auto bothHeights = static_cast<std::int32_t>(bytes.number(8));
  const unsigned depth = bytes.word(14);
  const bool known = depth == 1 || depth == 4 || depth == 8 || depth == 24 || depth == 32;
  if (header < headerSize || header > data.size() || width < 1 || width > largestSide || bothHeights < 2 ||
      bothHeights > 2 * largestSide || bytes.number(16) != 0 || !known)
    return std::nullopt;

  const std::size_t columns = static_cast<std::size_t>(width);
  const std::size_t rows = static_cast<std::size_t>(bothHeights) / 2;
  std::size_t colours = 0;
  if (depth <= 8)
  {
    colours = bytes.number(32);
    if (colours == 0 || colours > (std::size_t{1} << depth))
      colours = std::size_t{1} << depth;
  }
  const std::size_t palette = header;
  const std::size_t stride = (columns * depth + 31) / 32 * 4;
  const std::size_t maskStride = (columns + 31) / 32 * 4;
  const std::size_t picture = palette + colours * 4;
  const std::size_t mask = picture + stride * rows;
  if (!bytes.has(picture, stride * rows))
    return std::nullopt;

  IconImage image{width, static_cast<int>(rows), std::vector<std::uint32_t>(columns * rows)};
  bool hasAlpha = false;
  for (std::size_t y = 0; y < rows; ++y)
    for (std::size_t x = 0; x < columns; ++x)
    {
      const std::size_t row = rows - 1 - y; // stored from below
      const std::size_t line = picture + row * stride;
      std::uint32_t colour = 0;
      if (depth == 32)
        colour = bytes.number(line + x * 4);
      else if (depth == 24)
        colour = bytes.number(line + x * 3) & 0xFFFFFF;
      else
      {
        const std::size_t bit = x * depth;
        const unsigned index = bytes.byte(line + bit / 8) >> (8 - depth - bit % 8) & ((1U << depth) - 1);
        colour = index < colours ? bytes.number(palette + index * 4) & 0xFFFFFF : 0;
      }
      hasAlpha = hasAlpha || (depth == 32 && colour >> 24 != 0);
      image.pixels[y * columns + x] = colour;
    }
  if (hasAlpha)
    return image;
  for (std::size_t y = 0; y < rows; ++y)
    for (std::size_t x = 0; x < columns; ++x)
    {
      const unsigned bits = bytes.byte(mask + (rows - 1 - y) * maskStride + x / 8);
      const bool transparent = (bits >> (7 - x % 8) & 1) != 0;
      std::uint32_t& pixel = image.pixels[y * columns + x];
      pixel = (pixel & 0xFFFFFF) | (transparent ? 0 : 0xFF000000);
    }
  return image;
}

/// One picture of a group of the same icon in several sizes.
struct Candidate
{
  unsigned side;
  unsigned depth;
  std::uint32_t where; ///< an offset, in an executable the number of the picture's resource
  std::uint32_t size;
};

/// The pictures of a group, the best first. An entry takes `entrySize` bytes, its `where` the last `whereSize` of them.
std::vector<Candidate> candidatesOf(const Bytes& group, std::size_t entrySize)
{
  constexpr unsigned wantedSide = 32;
  std::vector<Candidate> all;
  const std::size_t count = std::min(group.word(4), 256U);
  for (std::size_t i = 0; i < count; ++i)
  {
    const std::size_t at = 6 + i * entrySize;
    if (!group.has(at, entrySize))
      break;
    const unsigned side = group.byte(at) == 0 ? largestSide : group.byte(at);
    all.push_back({side, group.word(at + 6), entrySize == 16 ? group.number(at + 12) : group.word(at + 12),
                   group.number(at + 8)});
  }
  const auto distance = [](const Candidate& c)
  { return std::abs(static_cast<int>(c.side) - static_cast<int>(wantedSide)); };
  std::ranges::stable_sort(all,
                           [&](const Candidate& a, const Candidate& b)
                           {
                             if (distance(a) != distance(b))
                               return distance(a) < distance(b);
                             return a.depth > b.depth;
                           });
  return all;
}

/// The resources of a Windows executable: folders of three levels (kind, name, language), numbered entries.
class Resources
{
public:
  explicit Resources(std::string_view file) : m_bytes(file)
  {
    const std::size_t head = m_bytes.number(0x3C);
    if (m_bytes.part(0, 2) != "MZ" || m_bytes.part(head, 4) != std::string_view("PE\0\0", 4))
      return;
    const std::size_t sections = m_bytes.word(head + 6);
    const std::size_t optional = head + 24;
    const bool wide = m_bytes.word(optional) == 0x20B;
    const std::uint32_t address = m_bytes.number(optional + (wide ? 112 : 96) + 2 * 8);
    m_sections = optional + m_bytes.word(head + 20);
    m_sectionCount = sections;
    if (address != 0)
      m_root = offsetOf(address);
  }

  bool valid() const { return m_root != 0; }

  /// The data of the first resource of a kind.
  std::string_view first(unsigned kind) const
  {
    const std::size_t names = entry(m_root, kind);
    return names == 0 ? std::string_view{} : dataBelow(firstEntry(names));
  }

  /// The data of the resource of a kind and number.
  std::string_view find(unsigned kind, unsigned number) const
  {
    const std::size_t names = entry(m_root, kind);
    const std::size_t languages = names == 0 ? 0 : entry(names, number);
    return languages == 0 ? std::string_view{} : dataBelow(languages);
  }

private:
  static constexpr std::uint32_t isFolder = 0x80000000;

  /// Where in the file an address of the loaded program lies; 0 when nowhere.
  std::size_t offsetOf(std::uint32_t address) const
  {
    for (std::size_t i = 0; i < m_sectionCount; ++i)
    {
      const std::size_t section = m_sections + i * 40;
      const std::uint32_t start = m_bytes.number(section + 12);
      const std::uint32_t size = std::max(m_bytes.number(section + 8), m_bytes.number(section + 16));
      if (m_bytes.has(section, 40) && address >= start && address - start < size)
        return std::size_t{address - start} + m_bytes.number(section + 20);
    }
    return 0;
  }

  /// Place of the folder that an entry of a folder leads to; 0 when there is none.
  std::size_t entry(std::size_t folder, unsigned number) const
  {
    const std::size_t named = m_bytes.word(folder + 12);
    const std::size_t numbered = m_bytes.word(folder + 14);
    for (std::size_t i = named; i < named + numbered; ++i)
      if (m_bytes.has(folder + 16 + i * 8, 8) && m_bytes.number(folder + 16 + i * 8) == number)
        return target(folder + 16 + i * 8, true);
    return 0;
  }

  std::size_t firstEntry(std::size_t folder) const
  {
    const bool any = m_bytes.word(folder + 12) + m_bytes.word(folder + 14) > 0;
    return any ? target(folder + 16, true) : 0;
  }

  /// Where an entry leads; 0 when it does not lead to what is wanted.
  std::size_t target(std::size_t at, bool wantFolder) const
  {
    const std::uint32_t offset = m_bytes.number(at + 4);
    if (!m_bytes.has(at, 8) || ((offset & isFolder) != 0) != wantFolder)
      return 0;
    return m_root + (offset & ~isFolder);
  }

  /// The data under the first language of a folder.
  std::string_view dataBelow(std::size_t languages) const
  {
    if (languages == 0 || m_bytes.word(languages + 12) + m_bytes.word(languages + 14) == 0)
      return {};
    const std::size_t data = target(languages + 16, false);
    const std::size_t at = data == 0 ? 0 : offsetOf(m_bytes.number(data));
    return at == 0 ? std::string_view{} : m_bytes.part(at, m_bytes.number(data + 4));
  }

  Bytes m_bytes;
  std::size_t m_sections = 0;
  std::size_t m_sectionCount = 0;
  std::size_t m_root = 0;
};

void putLittle(std::string& out, std::uint32_t value, int size)
{
  for (int i = 0; i < size; ++i)
    out += static_cast<char>(value >> 8 * i & 0xFF);
}

/// The mean colour of some pixels; what is transparent has no colour.
std::uint32_t average(const IconImage& image, int left, int right, int top, int bottom)
{
  std::uint32_t sums[4] = {}; // blue, green, red, alpha
  for (int y = top; y < bottom; ++y)
    for (int x = left; x < right; ++x)
    {
      const std::uint32_t pixel = image.pixels[static_cast<std::size_t>(y * image.width + x)];
      for (int i = 0; i < 3; ++i)
        sums[i] += (pixel >> 8 * i & 0xFF) * (pixel >> 24);
      sums[3] += pixel >> 24;
    }
  std::uint32_t result = sums[3] / static_cast<std::uint32_t>((right - left) * (bottom - top)) << 24;
  for (int i = 0; i < 3 && sums[3] > 0; ++i)
    result |= (sums[i] + sums[3] / 2) / sums[3] << 8 * i;
  return result;
}

/// A picture as icons hold it: a bitmap, or the bytes of a PNG file.
std::optional<IconImage> iconOfData(std::string_view data)
{
  return data.starts_with("\x89PNG") ? imageOfPng(data) : iconOfBitmap(data);
}

} // namespace

std::optional<IconImage> executableIcon(std::string_view bytes)
{
  constexpr unsigned icon = 3;
  constexpr unsigned iconGroup = 14;
  const Resources resources(bytes);
  if (!resources.valid())
    return std::nullopt;
  for (const Candidate& candidate : candidatesOf(Bytes(resources.first(iconGroup)), 14))
    if (auto image = iconOfData(resources.find(icon, candidate.where)))
      return image;
  return std::nullopt;
}

std::optional<IconImage> iconOfFile(std::string_view bytes)
{
  const Bytes file(bytes);
  if (file.number(0) != 0x00010000)
    return std::nullopt;
  for (const Candidate& candidate : candidatesOf(file, 16))
    if (auto image = iconOfData(file.part(candidate.where, candidate.size)))
      return image;
  return std::nullopt;
}

std::string bitmapBytes(const IconImage& image)
{
  const auto columns = static_cast<std::uint32_t>(image.width);
  const auto rows = static_cast<std::uint32_t>(image.height);
  const std::uint32_t stride = (columns * 3 + 3) / 4 * 4;
  constexpr std::uint32_t heads = 14 + 40;
  std::string out("BM");
  putLittle(out, heads + stride * rows, 4);
  putLittle(out, 0, 4);
  putLittle(out, heads, 4);
  putLittle(out, 40, 4);
  putLittle(out, columns, 4);
  putLittle(out, rows, 4);
  putLittle(out, 1, 2);
  putLittle(out, 24, 2);
  putLittle(out, 0, 4);
  putLittle(out, stride * rows, 4);
  out.append(16, '\0');
  for (std::uint32_t y = rows; y-- > 0;)
  {
    for (std::uint32_t x = 0; x < columns; ++x)
    {
      const std::uint32_t pixel = image.pixels[std::size_t{y} * columns + x];
      const std::uint32_t alpha = pixel >> 24;
      for (const int shift : {0, 8, 16})
        out += static_cast<char>(((pixel >> shift & 0xFF) * alpha + 255 * (255 - alpha) + 127) / 255);
    }
    out.append(stride - columns * 3, '\0');
  }
  return out;
}

IconImage fitted(IconImage image, int side)
{
  const int largest = std::max(image.width, image.height);
  if (largest <= side)
    return image;
  IconImage small{std::max(1, image.width * side / largest), std::max(1, image.height * side / largest), {}};
  for (int y = 0; y < small.height; ++y)
    for (int x = 0; x < small.width; ++x)
      small.pixels.push_back(average(image, x * image.width / small.width, (x + 1) * image.width / small.width,
                                     y * image.height / small.height, (y + 1) * image.height / small.height));
  return small;
}

} // namespace tarvelin::platform
