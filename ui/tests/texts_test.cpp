// Text fields and their editors: every edit is one splice, positions count characters, and nothing comes back as an
// echo.

#include "core/forms/form.h"
#include "core/forms/rich_text.h"
#include "ui/colours.h"
#include "ui/links.h"
#include "ui/text_positions.h"

#include <QtTest>
#include <QtWidgets>
#include <ctime>

using namespace tarvelin;

namespace
{

struct Page : Form
{
  Page() : Form("page", "") {}
  Text text{this, "text"};
  RichText rich{this, "rich"};
};

/// Records what a field tells its views.
struct Witness : FieldObserver
{
  void fieldChanged(Field&, const FieldChange& change) override
  {
    if (change.what == Change::text)
      splices.append(QString("%1-%2+%3").arg(change.first).arg(change.removed).arg(change.added));
  }
  QStringList splices;
};

} // namespace

class TextsTest : public QObject
{
  Q_OBJECT

private slots:
  void positions();
  void differences();
  void typingIsOneSplice();
  void lineEndsAreTwoCharacters();
  void emojiCountOnce();
  void undoAndRedo();
  void handlerMayChangeTheText();
  void selectionGoesBothWays();
  void lineOfText();
  void lineKeepsWhatItCannotShow();
  void keysOfTheFieldsOwn();
  void fontIsShown();
  void stylesArePainted();
  void stylesMoveWithTheText();
  void megabyte();
};

void TextsTest::positions()
{
  const std::string text = "a\r\nb\xF0\x9F\x98\x80\rc\n";
  QCOMPARE(ui::shownText(text), QString("a\nb\U0001F600\nc\n"));
  QCOMPARE(ui::shownLength(text), 8);
  QCOMPARE(ui::shownBefore(text, 3), 2);
  QCOMPARE(ui::shownBefore(text, 5), 5);
  QCOMPARE(ui::charactersBefore(text, 2), std::size_t{3});
  QCOMPARE(ui::charactersBefore(text, 5), std::size_t{5});
  QCOMPARE(ui::charactersBefore(text, 99), std::size_t{8});
  QCOMPARE(ui::fieldText(u"a\nb\u2029c"), std::string("a\r\nb\r\nc"));
}

void TextsTest::differences()
{
  const auto check = [](QStringView before, QStringView after, int start, int removed, int added)
  {
    const ui::Difference found = ui::difference(before, after);
    QCOMPARE(found.start, start);
    QCOMPARE(found.removed, removed);
    QCOMPARE(found.added, added);
  };
  check(u"abc", u"abc", 3, 0, 0);
  check(u"abc", u"abxc", 2, 0, 1);
  check(u"aaa", u"aa", 2, 1, 0);
  check(u"", u"abc", 0, 0, 3);
  check(u"\U0001F600", u"\U0001F601", 0, 2, 2); // they share their first half
}

void TextsTest::typingIsOneSplice()
{
  Page page;
  QPlainTextEdit edit;
  page.text.set("first\r\nsecond");
  const auto link = ui::linkText(page.text, &edit);
  Witness witness;
  page.text.observe(witness);
  int changes = 0;
  page.text.onChange = [&changes] { ++changes; };

  QTextCursor caret = edit.textCursor();
  caret.setPosition(6); // before "second"
  edit.setTextCursor(caret);
  QCOMPARE(page.text.selStart(), std::size_t{7});
  QTest::keyClick(&edit, Qt::Key_X);
  QCOMPARE(page.text.text(), std::string("first\r\nxsecond"));
  QCOMPARE(witness.splices, QStringList("7-0+1"));
  QCOMPARE(changes, 1);
  QCOMPARE(page.text.selStart(), std::size_t{8});
  QCOMPARE(edit.textCursor().position(), 7);
  page.text.stopObserving(witness);
}

void TextsTest::lineEndsAreTwoCharacters()
{
  Page page;
  QPlainTextEdit edit;
  const auto link = ui::linkText(page.text, &edit);
  QTest::keyClicks(&edit, "ab");
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClicks(&edit, "c");
  QCOMPARE(page.text.text(), std::string("ab\r\nc"));
  QTest::keyClick(&edit, Qt::Key_Left);
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QCOMPARE(page.text.text(), std::string("abc"));
  page.text.append("\r\nd");
  QCOMPARE(edit.toPlainText(), QString("abc\nd"));
  page.text.append("\r");
  page.text.append("\ne"); // the two halves of one line end
  QCOMPARE(edit.toPlainText(), QString("abc\nd\ne"));
}

void TextsTest::emojiCountOnce()
{
  Page page;
  QPlainTextEdit edit;
  const auto link = ui::linkText(page.text, &edit);
  edit.insertPlainText("\U0001F600");
  edit.insertPlainText("x");
  QCOMPARE(page.text.length(), std::size_t{2});
  QCOMPARE(page.text.selStart(), std::size_t{2});
  page.text.select(1, 1);
  QCOMPARE(edit.textCursor().selectedText(), QString("x"));
}

void TextsTest::undoAndRedo()
{
  Page page;
  QPlainTextEdit edit;
  page.text.set("start");
  const auto link = ui::linkText(page.text, &edit);
  edit.moveCursor(QTextCursor::End);
  edit.insertPlainText(" one");
  edit.insertPlainText("\ntwo");
  QCOMPARE(page.text.text(), std::string("start one\r\ntwo"));
  edit.undo();
  QCOMPARE(page.text.text(), ui::fieldText(edit.toPlainText()));
  QVERIFY(page.text.text() != "start one\r\ntwo");
  edit.redo();
  QCOMPARE(page.text.text(), std::string("start one\r\ntwo"));
  page.text.set("another side");
  QVERIFY(!edit.document()->isUndoAvailable());
}

void TextsTest::handlerMayChangeTheText()
{
  Page page;
  QLineEdit line;
  const auto link = ui::linkText(page.text, &line);
  page.text.onChange = [&page]
  {
    if (page.text.text().ends_with('x'))
      page.text.set(page.text.text().substr(0, page.text.text().size() - 1));
  };
  QTest::keyClicks(&line, "12x3");
  QCOMPARE(page.text.text(), std::string("123"));
  QCOMPARE(line.text(), QString("123"));

  Page other;
  QPlainTextEdit edit;
  const auto editLink = ui::linkText(other.text, &edit);
  other.text.onChange = [&other]
  {
    if (other.text.text() == "if")
      other.text.set("IF ");
  };
  QTest::keyClicks(&edit, "if");
  QCOMPARE(other.text.text(), std::string("IF "));
  QCOMPARE(edit.toPlainText(), QString("IF "));
}

void TextsTest::selectionGoesBothWays()
{
  Page page;
  QPlainTextEdit edit;
  page.text.set("one\r\ntwo\r\nthree");
  const auto link = ui::linkText(page.text, &edit);
  page.text.select(5, 3);
  QCOMPARE(edit.textCursor().selectedText(), QString("two"));
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(8);
  cursor.setPosition(13, QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
  QCOMPARE(page.text.selected(), std::string("three"));
  page.text.replaceSelection("3");
  QCOMPARE(edit.toPlainText(), QString("one\ntwo\n3"));
}

void TextsTest::lineOfText()
{
  Page page;
  QLineEdit line;
  page.text.set("Kapitán");
  const auto link = ui::linkText(page.text, &line);
  Witness witness;
  page.text.observe(witness);
  int changes = 0;
  page.text.onChange = [&changes] { ++changes; };
  line.setSelection(3, 1);
  QCOMPARE(page.text.selected(), std::string("i"));
  line.insert("ý\nrest");
  QCOMPARE(page.text.text(), std::string("Kapýtán"));
  QCOMPARE(line.text(), QString("Kapýtán"));
  QCOMPARE(changes, 1);
  QCOMPARE(witness.splices, QStringList("3-1+1"));
  page.text.stopObserving(witness);
}

void TextsTest::lineKeepsWhatItCannotShow()
{
  Page page;
  QLineEdit line;
  page.text.set(std::string(40000, 'a'));
  const auto link = ui::linkText(page.text, &line);
  line.setCursorPosition(0);
  line.setSelection(0, 2);
  line.insert("b");
  QCOMPARE(page.text.length(), std::size_t{39999});
  QVERIFY(page.text.text().starts_with("baaa"));
}

void TextsTest::keysOfTheFieldsOwn()
{
  Page page;
  QPlainTextEdit edit;
  page.text.set("abc");
  int keys = 0;
  KeyEvent last;
  page.text.onKeyUp = [&](const KeyEvent& key)
  {
    ++keys;
    last = key;
  };
  const auto link = ui::linkText(page.text, &edit);
  QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(keys, 1);
  QCOMPARE(last.key, 'A');
  QCOMPARE(last.shift, 2);
  QVERIFY(!edit.textCursor().hasSelection()); // Ctrl+A is the field's
  QTest::keyClick(&edit, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
  QCOMPARE(last.shift, 3);
  QTest::keyClick(&edit, Qt::Key_Return);
  QCOMPARE(keys, 2);
}

void TextsTest::fontIsShown()
{
  Page page;
  QPlainTextEdit edit;
  const QFont own = edit.font();
  const auto link = ui::linkText(page.text, &edit);
  QCOMPARE(edit.font().pointSize(), own.pointSize());
  Font font;
  font.name = "DejaVu Sans Mono";
  font.size = 15;
  font.bold = true;
  font.underline = true;
  font.color = 0x0000C0; // red
  page.text.setFont(font);
  QCOMPARE(edit.font().family(), QString("DejaVu Sans Mono"));
  QCOMPARE(edit.font().pointSize(), 15);
  QVERIFY(edit.font().bold() && edit.font().underline() && !edit.font().italic());
  QCOMPARE(edit.palette().color(QPalette::Text), QColor(0xC0, 0, 0));
}

namespace
{

/// What is painted over a block: "start-length:colour" with b and i.
QString painted(const QTextEdit& edit, int block)
{
  QStringList parts;
  for (const QTextLayout::FormatRange& range : edit.document()->findBlockByNumber(block).layout()->formats())
    parts += QString("%1-%2:%3%4%5")
                 .arg(range.start)
                 .arg(range.length)
                 .arg(range.format.foreground().color().name())
                 .arg(range.format.fontWeight() == QFont::Bold ? "b" : "")
                 .arg(range.format.fontItalic() ? "i" : "");
  return parts.join(' ');
}

} // namespace

void TextsTest::stylesArePainted()
{
  Page page;
  QTextEdit edit;
  const auto link = ui::linkRichText(page.rich, &edit);
  page.rich.setStyled("? alive\r\nhint \"x\"",
                      {{0, {0x0000FF, true, false}}, {1, {}}, {9, {0xC00000, false, true}}, {13, {}}});
  QCoreApplication::processEvents();
  QCOMPARE(edit.toPlainText(), QString("? alive\nhint \"x\""));
  QCOMPARE(painted(edit, 0), QString("0-1:#ff0000b"));
  QCOMPARE(painted(edit, 1), QString("0-4:#0000c0i"));
  page.rich.setStyle(14, 3, {0x0000FF, false, false});
  QCoreApplication::processEvents();
  QCOMPARE(painted(edit, 1), QString("0-4:#0000c0i 5-3:#ff0000"));
}

void TextsTest::stylesMoveWithTheText()
{
  Page page;
  QTextEdit edit;
  const auto link = ui::linkRichText(page.rich, &edit);
  page.rich.setStyled("one\r\ntwo", {{0, {}}, {5, {0x0000FF, false, false}}});
  QCoreApplication::processEvents();
  QCOMPARE(painted(edit, 1), QString("0-3:#ff0000"));
  edit.moveCursor(QTextCursor::Start);
  QTest::keyClick(&edit, Qt::Key_Return);
  QCoreApplication::processEvents();
  QCOMPARE(page.rich.text(), std::string("\r\none\r\ntwo"));
  QCOMPARE(painted(edit, 1), QString());
  QCOMPARE(painted(edit, 2), QString("0-3:#ff0000"));
}

void TextsTest::megabyte()
{
  const auto seconds = [start = std::clock()] // of work, however busy the machine is
  { return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC; };
  const QString much = QString("0123456789abcde\n").repeated(65536);
  Page page;
  QPlainTextEdit edit;
  const auto link = ui::linkText(page.text, &edit);
  double before = seconds();
  edit.insertPlainText(much);
  double took = seconds() - before;
  QVERIFY2(took < 3, qPrintable(QString::number(took)));
  QCOMPARE(page.text.length(), std::size_t{65536 * 17});
  before = seconds();
  QTest::keyClick(&edit, Qt::Key_X);
  took = seconds() - before;
  QVERIFY2(took < 0.3, qPrintable(QString::number(took)));
  QVERIFY(page.text.text().ends_with("\r\nx"));
}

QTEST_MAIN(TextsTest)
#include "texts_test.moc"
