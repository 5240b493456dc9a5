#include "core/forms/picture.h"

#include "platform/failure.h"
#include "platform/files.h"

#include <string_view>

namespace tarvelin
{

namespace
{

unsigned byteAt(std::string_view bytes, std::size_t at)
{
  if (at >= bytes.size())
    throw Failure(Fault::invalidPicture);
  return static_cast<unsigned char>(bytes[at]);
}

unsigned bigWord(std::string_view bytes, std::size_t at)
{
  return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

int littleLong(std::string_view bytes, std::size_t at)
{
  return static_cast<int>(byteAt(bytes, at) | byteAt(bytes, at + 1) << 8 | byteAt(bytes, at + 2) << 16 |
                          byteAt(bytes, at + 3) << 24);
}

/// Segments follow each other, each with its length; the frame header among them holds the size.
PictureSize jpegSize(std::string_view bytes)
{
  std::size_t at = 2;
  for (;;)
  {
    if (byteAt(bytes, at) != 0xFF)
      throw Failure(Fault::invalidPicture);
    while (byteAt(bytes, at) == 0xFF)
      ++at;
    const unsigned marker = byteAt(bytes, at++);
    if (marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) // these stand alone
      continue;
    if (marker == 0xD9 || marker == 0xDA) // the end, or the data: no frame header came
      throw Failure(Fault::invalidPicture);
    if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC)
    {
      const PictureSize size{static_cast<int>(bigWord(bytes, at + 5)), static_cast<int>(bigWord(bytes, at + 3))};
      if (size.width == 0 || size.height == 0)
        throw Failure(Fault::invalidPicture);
      return size;
    }
    const unsigned length = bigWord(bytes, at);
    if (length < 2)
      throw Failure(Fault::invalidPicture);
    at += length;
  }
}

PictureSize bitmapSize(std::string_view bytes)
{
  const int height = littleLong(bytes, 22);
  const PictureSize size{littleLong(bytes, 18), height < 0 ? -(height + 1) + 1 : height};
  if (size.width <= 0 || size.height <= 0)
    throw Failure(Fault::invalidPicture);
  return size;
}

/// The first picture of an icon file; 0 stands for 256.
PictureSize iconSize(std::string_view bytes)
{
  const auto side = [&](std::size_t at) { return byteAt(bytes, at) == 0 ? 256 : static_cast<int>(byteAt(bytes, at)); };
  if (bigWord(bytes, 4) == 0)
    throw Failure(Fault::invalidPicture);
  return {side(6), side(7)};
}

} // namespace

PictureSize pictureSize(std::string_view path)
{
  const platform::MappedFile file(path);
  const std::string_view bytes = file.bytes();
  if (bytes.starts_with("\xFF\xD8"))
    return jpegSize(bytes);
  if (bytes.starts_with("BM"))
    return bitmapSize(bytes);
  if (bytes.starts_with(std::string_view("\0\0\1\0", 4)))
    return iconSize(bytes);
  throw Failure(Fault::invalidPicture);
}

Picture::Picture(Form* form, std::string_view name, int index) : Field(form, name, index) {}

void Picture::load(std::string_view path)
{
  m_size = pictureSize(path);
  m_path = path;
  notify({Change::path});
}

void Picture::clear()
{
  m_path.clear();
  m_size = {};
  notify({Change::path});
}

void Picture::setColor(Colour color)
{
  if (m_color == color)
    return;
  m_color = color;
  notify({Change::colour});
}

void Picture::setSunken(bool on)
{
  if (m_sunken == on)
    return;
  m_sunken = on;
  notify({Change::style});
}

void Picture::place(int left, int extent)
{
  if (m_left == left && m_extent == extent)
    return;
  m_left = left;
  m_extent = extent;
  notify({Change::range});
}

void Picture::click()
{
  if (onClick)
    onClick();
}

} // namespace tarvelin
