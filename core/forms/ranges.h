#pragma once

#include "core/forms/field.h"

namespace tarvelin
{

/// An integer within limits that the user drags.
class Slider : public Field
{
public:
  Slider(Form* form, std::string_view name, int minimum = 0, int maximum = 10, int value = 0);
  Kind kind() const override { return Kind::slider; }

  Handler onChange; ///< the value is another one
  Handler onScroll; ///< while the user drags

  int value() const { return m_value; }
  int minimum() const { return m_minimum; }
  int maximum() const { return m_maximum; }

  /// Sets the value; a change runs the change handler. Throws 380 out of the limits.
  void set(int value);

  /// Sets the limits and cuts the value to them.
  void setRange(int minimum, int maximum);

  /// The user drags to `value`, cut to the limits: the scroll handler, then the change handler.
  void userScroll(int value);

private:
  int m_minimum;
  int m_maximum;
  int m_value;
};

/// How far a long work has come.
class Progress : public Field
{
public:
  Progress(Form* form, std::string_view name);
  Kind kind() const override { return Kind::progress; }

  int value() const { return m_value; }
  int minimum() const { return m_minimum; }
  int maximum() const { return m_maximum; }

  /// Throws 380 out of the limits.
  void set(int value);

  /// Sets the limits and the value to the lower one. Throws 380 when the upper one is not above the lower.
  void setRange(int minimum, int maximum);

private:
  int m_minimum = 0;
  int m_maximum = 100;
  int m_value = 0;
};

} // namespace tarvelin
