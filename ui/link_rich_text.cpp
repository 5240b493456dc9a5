// Rich text fields. An editor of code shows the field's colours and faces, laid over its document line by line as the
// lines come to the screen; other editors show the text alone.
#include "core/forms/rich_text.h"
#include "ui/code_edit.h"
#include "ui/colours.h"
#include "ui/edit_link.h"
#include "ui/links.h"

#include <QTextBlock>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

class CodeLink : public EditLink
{
public:
  CodeLink(RichText& field, CodeEdit* edit) : EditLink(field, edit), m_rich(field), m_edit(edit)
  {
    field.keepSteps();
    edit->onFormats = [this](const QTextBlock& block) { return formatsOf(block); };
    edit->onNumber = [this](const QTextBlock& block) { return numberOf(block); };
    edit->onUndo = [this] { user([this] { m_rich.undo(); }); };
    edit->onRedo = [this] { user([this] { m_rich.redo(); }); };
    edit->canUndo = [this] { return m_rich.canUndo(); };
    edit->canRedo = [this] { return m_rich.canRedo(); };
    start();
  }

  ~CodeLink() override
  {
    if (!m_edit)
      return;
    m_edit->onFormats = {};
    m_edit->onNumber = {};
    m_edit->onUndo = m_edit->onRedo = {};
    m_edit->canUndo = m_edit->canRedo = {};
  }

private:
  void update(const FieldChange& change) override
  {
    EditLink::update(change);
    if (change.what == Change::everything)
      m_edit->restyle();
    else if (change.what == Change::style)
      m_edit->restyle(placeOfCharacter(change.first).shown, placeOfCharacter(change.first + change.added).shown);
  }

  void textShown(int from, int added) override { m_edit->restyle(from, from + added); }

  /// Lines are numbered; a long one is so at its first row.
  int numberOf(const QTextBlock& block) const
  {
    const Place start = placeOfShown(block.position());
    const bool goesOn = start.rows > 0 && placeOfShown(block.position() - 1).rows < start.rows;
    return goesOn ? 0 : block.blockNumber() + 1 - static_cast<int>(start.rows);
  }

  CodeEdit::Formats formatsOf(const QTextBlock& block) const
  {
    CodeEdit::Formats formats;
    const QString line = block.text();
    const std::vector<RichText::Run>& runs = m_rich.runs();
    std::size_t character = placeOfShown(block.position()).characters;
    if (runs.empty())
      return formats;
    auto run = std::ranges::upper_bound(runs, character, {}, &RichText::Run::start);
    for (int unit = 0; unit < line.size();)
    {
      const TextStyle& style = std::prev(run)->style;
      const std::size_t end = run == runs.end() ? std::string::npos : run->start;
      const int from = unit;
      for (; unit < line.size() && character < end; ++character)
        unit += line[unit].isHighSurrogate() ? 2 : 1;
      if (style != TextStyle{})
        formats += {from, unit - from, formatOf(style)};
      if (run != runs.end())
        ++run;
    }
    return formats;
  }

  QTextCharFormat formatOf(const TextStyle& style) const
  {
    QTextCharFormat format;
    if (style.color != 0)
      format.setForeground(readableColour(style.color, *m_edit));
    if (style.bold)
      format.setFontWeight(QFont::Bold);
    if (style.italic)
      format.setFontItalic(true);
    return format;
  }

  RichText& m_rich;
  QPointer<CodeEdit> m_edit;
};

} // namespace

std::unique_ptr<Link> linkRichText(RichText& field, QWidget* widget)
{
  if (auto* const code = dynamic_cast<CodeEdit*>(widget))
    return std::make_unique<CodeLink>(field, code);
  return linkText(field, widget);
}

} // namespace tarvelin::ui
