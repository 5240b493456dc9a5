#pragma once

#include "core/forms/field.h"

#include <string>
#include <vector>

namespace tarvelin
{

/// One row of a list or a combo.
struct Row
{
  std::string text;
  int tag = 0;
  bool marked = false;
};

/// What lists and combos share: ordered rows of which one may be highlighted.
class Rows : public Field
{
public:
  Rows(Form* form, std::string_view name, bool sorted = false);

  Handler onClick;

  int count() const { return static_cast<int>(m_rows.size()); }

  /// The highlighted row, -1 for none.
  int index() const { return m_selected; }

  /// The row that was added last, -1 after a removal.
  int newest() const { return m_newest; }

  bool sorted() const { return m_sorted; }

  /// A row. Throws 5 out of bounds.
  const Row& row(int index) const;
  const std::string& text(int index) const { return row(index).text; }
  int tag(int index) const { return row(index).tag; }
  bool marked(int index) const { return row(index).marked; }

  /// The text in upper case, by which a sorted list is ordered. Throws 5 out of bounds.
  std::string upperText(int index) const;

  /// Adds a row at the end, in a sorted list at its place by upper-case text. Gives its index.
  int add(std::string_view text, int tag = 0);

  /// Takes the row out; a highlighted one leaves nothing highlighted. Throws 5 out of bounds.
  void remove(int index);

  void clear();

  /// Change a row. Throw 5 out of bounds.
  void setText(int index, std::string_view text);
  void setTag(int index, int tag);
  void mark(int index, bool on);

  /// Highlights a row (-1: none) and runs the click handler. Throws 380 out of bounds.
  void select(int index);

  /// The user clicks row `index`.
  virtual void userSelect(int index) { select(index); }

protected:
  Row& rowAt(int index);

  /// Highlights without running the handler.
  virtual void highlight(int index);

private:
  std::vector<Row> m_rows;
  std::vector<std::string> m_keys; ///< upper-case texts of a sorted list
  bool m_sorted;
  int m_selected = -1;
  int m_newest = -1;
};

/// A list, with a check mark in front of each row where the form shows it so.
class List : public Rows
{
public:
  /// How a list looks and keeps its rows.
  enum class Style
  {
    plain,
    sorted,
    checkMarks,
  };

  List(Form* form, std::string_view name, Style style = Style::plain);
  Kind kind() const override { return Kind::list; }

  PressHandler onPress;

  bool checkMarks() const { return m_style == Style::checkMarks; }

  /// The user clicks row `index`: highlight, press handler with the left button, click handler.
  void userSelect(int index) override;

  /// The user clicks the check mark of row `index`: highlight, mark, click handler.
  void userMark(int index, bool on);

  /// The user presses a button over the list; the highlight stays.
  void userPress(MouseButton button);

private:
  Style m_style;
};

/// A list of which one row is shown.
class Combo : public Rows
{
public:
  Combo(Form* form, std::string_view name, bool editable = false);
  Kind kind() const override { return Kind::combo; }

  bool editable() const { return m_editable; }

  /// Text of the chosen row, or what was typed into an editable one.
  const std::string& text() const { return m_text; }
  using Rows::text;

  /// The text of an editable combo.
  void setText(std::string_view text);
  using Rows::setText;

protected:
  void highlight(int index) override;

private:
  bool m_editable;
  std::string m_text;
};

} // namespace tarvelin
