#pragma once

#include "core/forms/field.h"
#include "core/forms/font.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace tarvelin
{

/// Tabs of which one is on top.
class TabStrip : public Field
{
public:
  TabStrip(Form* form, std::string_view name, std::initializer_list<std::string_view> captions);
  Kind kind() const override { return Kind::tabstrip; }

  Handler onClick;

  int count() const { return static_cast<int>(m_captions.size()); }
  int tab() const { return m_tab; }

  /// Brings a tab to the top. Throws 380 out of bounds.
  void setTab(int tab);

  /// Throw 380 out of bounds.
  const std::string& tabCaption(int tab) const;
  void setTabCaption(int tab, std::string_view caption);

private:
  void check(int tab) const;

  std::vector<std::string> m_captions;
  int m_tab = 0;
};

/// Shows a document.
class Browser : public Field
{
public:
  Browser(Form* form, std::string_view name);
  Kind kind() const override { return Kind::browser; }

  /// A path in the program's form or a web address; "" at first.
  const std::string& address() const { return m_address; }
  void navigate(std::string_view address);

private:
  std::string m_address;
};

/// The platform's colour, font and file choosers, with what was chosen last.
class Dialog : public Field
{
public:
  Dialog(Form* form, std::string_view name);
  Kind kind() const override { return Kind::dialog; }

  Colour color = 0;
  Font font;
  std::string fileName; ///< program's form

  /// Open the chooser and keep the choice. A cancel throws 32755 and keeps what was chosen before.
  void showColor();
  void showFont();
  void showOpen(std::string_view filter);
};

} // namespace tarvelin
