#pragma once

#include <QPlainTextEdit>
#include <QTextLayout>
#include <functional>
#include <memory>

namespace tarvelin::ui
{

/// The editor of a script: fixed-width, with line numbers and the caret's line marked. What a block of its document
/// looks like it asks when the block comes to the screen, and never holds it as a part of the document. It leaves undo
/// to others, too.
class CodeEdit : public QPlainTextEdit
{
public:
  using Formats = QList<QTextLayout::FormatRange>;

  explicit CodeEdit(QWidget* parent = nullptr);

  std::function<Formats(const QTextBlock&)> onFormats;
  std::function<int(const QTextBlock&)> onNumber; ///< the number of a block, 0 for none
  std::function<void()> onUndo;
  std::function<void()> onRedo;
  std::function<bool()> canUndo;
  std::function<bool()> canRedo;

  /// The whole document looks different, or what lies between two of its places.
  void restyle();
  void restyle(int from, int to);

  /// Gives the blocks on the screen their looks.
  void formatShown();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;

private:
  class Numbers;

  int numberOf(const QTextBlock& block) const;
  void layOut();
  void paintNumbers(const QRect& area);
  void markLine();

  std::unique_ptr<QWidget> m_numbers;
  int m_looks = 0; ///< a block's state is this number when it looks as it should
};

} // namespace tarvelin::ui
