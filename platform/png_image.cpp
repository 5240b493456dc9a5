#include "platform/png_image.h"

#include "platform/inflate.h"

#include <array>
#include <cstdlib>

// A PNG file is a row of chunks: length, kind, data, checksum. The data of all chunks IDAT make one zlib stream of
// rows, each with a filter before it that tells how its bytes differ from those to the left and above.
namespace tarvelin::platform
{

namespace
{

constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";
constexpr std::uint32_t largestSide = 1024;

enum ColourType : unsigned
{
  grey = 0,
  colours = 2,
  palette = 3,
  greyAlpha = 4,
  coloursAlpha = 6,
};

std::uint32_t bigNumber(std::string_view bytes, std::size_t at, std::size_t size)
{
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i)
    number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

void putBig(std::string& out, std::uint32_t value)
{
  for (int shift = 24; shift >= 0; shift -= 8)
    out += static_cast<char>(value >> shift & 0xFF);
}

std::uint32_t checksumOf(std::string_view bytes)
{
  std::uint32_t sum = 0xFFFFFFFF;
  for (const char c : bytes)
  {
    sum ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit)
      sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

void putChunk(std::string& out, std::string_view kind, std::string_view data)
{
  putBig(out, static_cast<std::uint32_t>(data.size()));
  const std::string body = std::string(kind) + std::string(data);
  out += body;
  putBig(out, checksumOf(body));
}

struct Png
{
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  unsigned depth = 0;
  unsigned type = 0;
  bool interlaced = false;
  std::string paletteBytes;
  std::string transparency;
  std::string stream;

  std::size_t channels() const
  {
    constexpr std::array<std::size_t, 7> counts = {1, 0, 3, 1, 2, 0, 4};
    return counts[type];
  }
  std::size_t pixelBits() const { return channels() * depth; }
};

bool readHead(std::string_view data, Png& png)
{
  if (data.size() != 13)
    return false;
  png.width = bigNumber(data, 0, 4);
  png.height = bigNumber(data, 4, 4);
  png.depth = bigNumber(data, 8, 1);
  png.type = bigNumber(data, 9, 1);
  png.interlaced = data[12] == 1;
  const bool wholeBytes = png.depth == 8 || png.depth == 16;
  const bool parts = png.depth == 1 || png.depth == 2 || png.depth == 4;
  const bool known = (png.type == grey && (wholeBytes || parts)) ||
                     (png.type == palette && (png.depth == 8 || parts)) ||
                     ((png.type == colours || png.type == greyAlpha || png.type == coloursAlpha) && wholeBytes);
  return known && png.width >= 1 && png.width <= largestSide && png.height >= 1 && png.height <= largestSide &&
         data[10] == 0 && data[11] == 0 && bigNumber(data, 12, 1) <= 1;
}

/// The chunks of a file up to its end; nothing when they are damaged.
std::optional<Png> chunksOf(std::string_view bytes)
{
  Png png;
  if (!bytes.starts_with(signature))
    return std::nullopt;
  bytes.remove_prefix(signature.size());
  for (bool first = true;; first = false)
  {
    if (bytes.size() < 12)
      return std::nullopt;
    const std::size_t size = bigNumber(bytes, 0, 4);
    if (bytes.size() - 12 < size || checksumOf(bytes.substr(4, size + 4)) != bigNumber(bytes, 8 + size, 4))
      return std::nullopt;
    const std::string_view kind = bytes.substr(4, 4);
    const std::string_view data = bytes.substr(8, size);
    bytes.remove_prefix(size + 12);
    if (first != (kind == "IHDR") || (first && !readHead(data, png)))
      return std::nullopt;
    if (kind == "PLTE")
      png.paletteBytes = data;
    else if (kind == "tRNS")
      png.transparency = data;
    else if (kind == "IDAT")
      png.stream += data;
    else if (kind == "IEND")
      return png;
  }
}

/// A share of the pixels, stored as a picture of its own: all of them, or of an interlaced picture one of seven.
struct Pass
{
  std::uint32_t left, top, stepX, stepY;

  std::uint32_t columns(const Png& png) const { return png.width > left ? (png.width - left + stepX - 1) / stepX : 0; }
  std::uint32_t rows(const Png& png) const { return png.height > top ? (png.height - top + stepY - 1) / stepY : 0; }
};

std::vector<Pass> passesOf(const Png& png)
{
  if (!png.interlaced)
    return {{0, 0, 1, 1}};
  return {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
}

std::size_t rowSize(const Png& png, const Pass& pass)
{
  return (pass.columns(png) * png.pixelBits() + 7) / 8;
}

int nearest(int left, int above, int corner)
{
  const int guess = left + above - corner;
  const int toLeft = std::abs(guess - left);
  const int toAbove = std::abs(guess - above);
  const int toCorner = std::abs(guess - corner);
  if (toLeft <= toAbove && toLeft <= toCorner)
    return left;
  return toAbove <= toCorner ? above : corner;
}

/// Undoes the filter of a row. `above` is empty in the first one. False for a filter that is not known.
bool unfilter(unsigned filter, std::string& row, std::string_view above, std::size_t pixelSize)
{
  const auto byte = [](std::string_view bytes, std::size_t at) -> int
  { return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0; };
  for (std::size_t i = 0; i < row.size(); ++i)
  {
    const int left = i >= pixelSize ? byte(row, i - pixelSize) : 0;
    const int corner = i >= pixelSize ? byte(above, i - pixelSize) : 0;
    int add = 0;
    switch (filter)
    {
    case 0: break;
    case 1: add = left; break;
    case 2: add = byte(above, i); break;
    case 3: add = (left + byte(above, i)) / 2; break;
    case 4: add = nearest(left, byte(above, i), corner); break;
    default: return false;
    }
    row[i] = static_cast<char>(byte(row, i) + add);
  }
  return true;
}

unsigned sample(const Png& png, std::string_view row, std::size_t index)
{
  if (png.depth == 16)
    return bigNumber(row, index * 2, 2);
  const std::size_t bit = index * png.depth;
  const unsigned byte = static_cast<unsigned char>(row[bit / 8]);
  return byte >> (8 - png.depth - bit % 8) & ((1U << png.depth) - 1);
}

std::uint32_t pixel(const Png& png, std::string_view row, std::size_t column)
{
  const std::size_t first = column * png.channels();
  const unsigned full = (1U << png.depth) - 1;
  const auto part = [&](std::size_t channel) { return (sample(png, row, first + channel) * 255 + full / 2) / full; };
  const auto colour = [](unsigned alpha, unsigned red, unsigned green, unsigned blue)
  { return alpha << 24 | red << 16 | green << 8 | blue; };
  // one colour may stand for what is transparent
  const auto opaque = [&]
  {
    if (png.transparency.size() != png.channels() * 2)
      return 255U;
    for (std::size_t i = 0; i < png.channels(); ++i)
      if (sample(png, row, first + i) != bigNumber(png.transparency, i * 2, 2))
        return 255U;
    return 0U;
  };
  switch (png.type)
  {
  case grey: return colour(opaque(), part(0), part(0), part(0));
  case colours: return colour(opaque(), part(0), part(1), part(2));
  case greyAlpha: return colour(part(1), part(0), part(0), part(0));
  case coloursAlpha: return colour(part(3), part(0), part(1), part(2));
  default: break;
  }
  const std::size_t index = sample(png, row, first);
  if (png.paletteBytes.size() < index * 3 + 3)
    return 0xFF000000;
  const unsigned alpha = index < png.transparency.size() ? static_cast<unsigned char>(png.transparency[index]) : 255U;
  return alpha << 24 | bigNumber(png.paletteBytes, index * 3, 3);
}

} // namespace

std::optional<IconImage> imageOfPng(std::string_view bytes)
{
  const auto png = chunksOf(bytes);
  if (!png)
    return std::nullopt;
  std::size_t size = 0;
  for (const Pass& pass : passesOf(*png))
    if (pass.columns(*png) > 0)
      size += (rowSize(*png, pass) + 1) * pass.rows(*png);
  const auto rows = inflated(png->stream, size);
  if (!rows || rows->size() != size)
    return std::nullopt;

  IconImage image{static_cast<int>(png->width), static_cast<int>(png->height),
                  std::vector<std::uint32_t>(std::size_t{png->width} * png->height)};
  std::string_view rest = *rows;
  const std::size_t pixelSize = (png->pixelBits() + 7) / 8;
  for (const Pass& pass : passesOf(*png))
  {
    if (pass.columns(*png) == 0)
      continue;
    std::string above;
    for (std::uint32_t y = 0; y < pass.rows(*png); ++y)
    {
      std::string row(rest.substr(1, rowSize(*png, pass)));
      if (!unfilter(static_cast<unsigned char>(rest.front()), row, above, pixelSize))
        return std::nullopt;
      rest.remove_prefix(row.size() + 1);
      for (std::uint32_t x = 0; x < pass.columns(*png); ++x)
        image.pixels[std::size_t{pass.top + y * pass.stepY} * png->width + pass.left + x * pass.stepX] =
            pixel(*png, row, x);
      above = std::move(row);
    }
  }
  return image;
}

std::string pngBytes(const IconImage& image)
{
  const auto columns = static_cast<std::size_t>(image.width);
  std::string head;
  putBig(head, static_cast<std::uint32_t>(image.width));
  putBig(head, static_cast<std::uint32_t>(image.height));
  head += std::string_view("\x08\x06\0\0\0", 5); // 8 bits each of red, green, blue and alpha
  std::string rows;
  for (std::size_t i = 0; i < image.pixels.size(); ++i)
  {
    if (i % columns == 0)
      rows += '\0'; // no filter
    for (const int shift : {16, 8, 0, 24})
      rows += static_cast<char>(image.pixels[i] >> shift & 0xFF);
  }
  std::string out(signature);
  putChunk(out, "IHDR", head);
  putChunk(out, "IDAT", stored(rows));
  putChunk(out, "IEND", {});
  return out;
}

} // namespace tarvelin::platform
