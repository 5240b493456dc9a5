#pragma once

#include "core/forms/field.h"

namespace tarvelin
{

/// A field with a caption.
class Captioned : public Field
{
public:
  Captioned(Form* form, std::string_view name, std::string_view caption = {}, int index = noIndex);

  std::string caption() const override { return m_caption; }
  bool hasCaption() const override { return true; }
  void setCaption(std::string_view caption) override;

private:
  std::string m_caption;
};

struct Label : Captioned
{
  using Captioned::Captioned;
  Kind kind() const override { return Kind::label; }
};

/// A frame around other fields.
struct Group : Captioned
{
  using Captioned::Captioned;
  Kind kind() const override { return Kind::group; }
};

struct Command : Captioned
{
  using Captioned::Captioned;
  Kind kind() const override { return Kind::command; }

  Handler onClick;

  /// Runs the click handler, as a press of the command does.
  void click();
};

/// A menu or a menu item; a caption of "-" is a separator.
struct Menu : Captioned
{
  using Captioned::Captioned;
  Kind kind() const override { return Kind::menu; }

  Handler onClick;

  void click();
};

class Check : public Captioned
{
public:
  Check(Form* form, std::string_view name, std::string_view caption = {}, int value = 0, int index = noIndex);
  Kind kind() const override { return Kind::check; }

  Handler onClick;

  /// 0 or 1.
  int value() const { return m_value; }
  bool checked() const { return m_value != 0; }

  /// Sets the check; a change runs the click handler.
  void set(bool on);

  void toggle() { set(!checked()); }

private:
  int m_value;
};

class Option;

/// Options that exclude each other.
class OptionGroup
{
public:
  void add(Option* option) { m_options.push_back(option); }
  void clearAllBut(const Option* option);

private:
  std::vector<Option*> m_options;
};

class Option : public Captioned
{
public:
  Option(Form* form, std::string_view name, OptionGroup& group, std::string_view caption = {}, bool value = false);
  Kind kind() const override { return Kind::option; }

  Handler onClick;

  bool value() const { return m_value; }

  /// Setting it on sets the others of the group off; a change to on runs the click handler.
  void set(bool on);

private:
  friend class OptionGroup;

  OptionGroup& m_group;
  bool m_value;
};

} // namespace tarvelin
