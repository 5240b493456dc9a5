#pragma once

#include "core/forms/field.h"
#include "core/forms/font.h"
#include "core/forms/text_index.h"

#include <cstddef>
#include <string>

namespace tarvelin
{

/// A field that holds text. Positions and lengths count characters, from 0.
class Text : public Field
{
public:
  Text(Form* form, std::string_view name, std::string_view text = {}, int index = noIndex);
  Kind kind() const override { return Kind::text; }

  Handler onChange;
  KeyHandler onKeyUp;

  const std::string& text() const { return m_text; }
  bool empty() const { return m_text.empty(); }
  std::size_t length() const { return m_index.length(m_text); }

  /// The text of a text field is its caption to a language pack.
  std::string caption() const override { return m_text; }
  void setCaption(std::string_view caption) override { set(caption); }

  /// Replaces the whole text; the change handler runs when the text did change. The caret stays where it was, or at
  /// the end of a shorter text.
  void set(std::string_view text);

  /// Adds at the end. Costs what is added; the change handler runs when something was.
  void append(std::string_view text);

  std::size_t selStart() const { return m_selStart; }
  std::size_t selLength() const { return m_selLength; }

  /// Sets the caret and the selection, cut to the text.
  void select(std::size_t start, std::size_t count);
  std::string selected() const;

  /// Puts `text` in place of the selection, the caret behind it; the change handler runs.
  void replaceSelection(std::string_view text);

  /// Byte offset of character `position` in the text, the text's size behind the end.
  std::size_t offsetOf(std::size_t position) const { return m_index.offset(m_text, position); }

  /// `count` characters from `start`, cut to the text.
  std::string part(std::size_t start, std::size_t count) const;

  const Font& font() const { return m_font; }
  void setFont(const Font& font);

  /// The user puts another text in the place of the whole: the caret stands at its end, the change handler runs once.
  void userSet(std::string_view text);

  /// The user types one text after another at the caret: the change handler runs after each character.
  void userType(std::string_view text);

  /// The user edits: `removed` characters from `start` give way to `added`, the caret stands behind them, the change
  /// handler runs.
  void userEdit(std::size_t start, std::size_t removed, std::string_view added);

  /// The user lets a key go.
  void userKey(const KeyEvent& key);

protected:
  /// Replaces the characters from `start`; tells the views, not the handler.
  void splice(std::size_t start, std::size_t removed, std::string_view added);

  /// For kinds that keep something beside each character.
  virtual void spliced(const FieldChange& /*splice*/) {}

  /// A user's edit is about to be made; `editEnds` comes when its change handler has run.
  virtual void editBegins(const FieldChange& /*edit*/, std::string_view /*added*/) {}
  virtual void editEnds() {}

private:
  void changed();

  std::string m_text;
  TextIndex m_index;
  std::size_t m_selStart = 0;
  std::size_t m_selLength = 0;
  Font m_font;
};

} // namespace tarvelin
