#pragma once

#include "core/forms/text.h"
#include "ui/link.h"
#include "ui/text_positions.h"

#include <QFont>
#include <functional>
#include <optional>

class QEvent;
class QPlainTextEdit;

namespace tarvelin::ui
{

/// Hands the keys of a text widget to the field's key handler, where it has one: true when the widget must not see it.
bool filterKeys(Text& text, QEvent& event, const std::function<void(const std::function<void()>&)>& user);

/// A text field of many lines and its editor. Edits go both ways as splices, at no cost that grows with the text.
class EditLink : public Link
{
public:
  EditLink(Text& field, QPlainTextEdit* edit);

  void start() { begin(); }

protected:
  using Place = ShownPlaces::Place;

  /// The document is at one with the field again; `from` and `added` tell where it changed.
  virtual void textShown(int /*from*/, int /*added*/) {}

  void update(const FieldChange& change) override;

  Place placeOfCharacter(std::size_t characters) const { return m_places.ofCharacter(m_text.text(), characters); }
  Place placeOfShown(int shown) const { return m_places.ofShown(m_text.text(), shown); }

private:
  /// What the document told of its edit, until it is done with it.
  struct Pending
  {
    int from = -1;
    int added = 0;

    Pending merged(int start, int count) const;
  };

  /// Where a splice of the field is the user's own.
  struct Echo
  {
    Place from;
    Place to;
  };

  bool pending() const { return m_pending.from >= 0; }
  int documentLength() const;
  QString shownPart(int from, int count) const;
  void edited();
  void showSplice(const FieldChange& change);
  void showAnew();
  void showText();
  void replaceWhole();
  void replaceShown(int from, int removed, const QString& added);
  void cutRows(int from, int added);
  void showSelection();
  void moved();
  bool eventFilter(QObject* watched, QEvent* event) override;

  Text& m_text;
  QPlainTextEdit* m_edit;
  QFont m_own;
  ShownPlaces m_places;
  Pending m_pending;
  int m_shown = 0; ///< units that the document held when it last was at one with the field
  std::optional<Echo> m_echo;
};

} // namespace tarvelin::ui
