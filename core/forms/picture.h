#pragma once

#include "core/forms/field.h"
#include "core/forms/font.h"

#include <string>

namespace tarvelin
{

/// Width and height in pixels.
struct PictureSize
{
  int width = 0;
  int height = 0;
};

/// A picture, or a plain area of one colour. It may act as a command.
class Picture : public Field
{
public:
  Picture(Form* form, std::string_view name, int index = noIndex);
  Kind kind() const override { return Kind::picture; }

  Handler onClick;
  PressHandler onPress;
  Handler onRelease;

  /// Path of the loaded picture, "" for none.
  const std::string& path() const { return m_path; }
  int width() const { return m_size.width; }
  int height() const { return m_size.height; }

  /// Loads a JPEG or, for icons, a Windows bitmap or an icon file. Throws 53 when it is missing, 481 when it is none of
  /// them; the picture then stays as it was.
  void load(std::string_view path);

  void clear();

  Colour color() const { return m_color; }
  void setColor(Colour color);

  /// True while a picture that acts as a command is pressed.
  bool sunken() const { return m_sunken; }
  void setSunken(bool on);

  void click();

  /// Where it stands on the field that holds it, and how wide it is, in pixels; of the pictures that the program itself
  /// lays out.
  int left() const { return m_left; }
  int extent() const { return m_extent; }
  void place(int left, int extent);

private:
  std::string m_path;
  PictureSize m_size;
  Colour m_color = 0xFFFFFF;
  bool m_sunken = false;
  int m_left = 0;
  int m_extent = 0;
};

/// Size of a JPEG, a Windows bitmap or an icon file, read from its head. Throws 53, 481.
PictureSize pictureSize(std::string_view path);

} // namespace tarvelin
