// Text fields and their editors: every edit is one splice, positions count characters, and nothing comes back as an
// echo.

#include "core/forms/form.h"
#include "core/forms/frmrejstrik.h"
#include "core/forms/rich_text.h"
#include "core/settings.h"
#include "core/shared.h"
#include "script/colouring.h"
#include "ui/code_edit.h"
#include "ui/colours.h"
#include "ui/links.h"
#include "ui/text_positions.h"

#include <QtTest>
#include <QtWidgets>
#include <ctime>
#include <random>

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
  void nothingIsColouredOffTheScreen();
  void undoTakesTheColouringWithIt();
  void menuTakesBack();
  void caretAndPlaceStay();
  void numbersOfLines();
  void longLine();
  void anyEditsAgree();
  void charactersNobodyShows();
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
QString painted(ui::CodeEdit& edit, int block)
{
  edit.formatShown();
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
  ui::CodeEdit edit;
  edit.resize(600, 400);
  const auto link = ui::linkRichText(page.rich, &edit);
  page.rich.setStyled("? alive\r\nhint \"x\"",
                      {{0, {0x0000FF, true, false}}, {1, {}}, {9, {0xC00000, false, true}}, {13, {}}});
  QCOMPARE(edit.toPlainText(), QString("? alive\nhint \"x\""));
  QCOMPARE(painted(edit, 0), QString("0-1:#ff0000b"));
  QCOMPARE(painted(edit, 1), QString("0-4:#0000c0i"));
  page.rich.setStyle(14, 3, {0x0000FF, false, false});
  QCOMPARE(painted(edit, 1), QString("0-4:#0000c0i 5-3:#ff0000"));
}

void TextsTest::stylesMoveWithTheText()
{
  Page page;
  ui::CodeEdit edit;
  edit.resize(600, 400);
  const auto link = ui::linkRichText(page.rich, &edit);
  page.rich.setStyled("one\r\ntwo", {{0, {}}, {5, {0x0000FF, false, false}}});
  QCOMPARE(painted(edit, 1), QString("0-3:#ff0000"));
  edit.moveCursor(QTextCursor::Start);
  QTest::keyClick(&edit, Qt::Key_Return);
  QCOMPARE(page.rich.text(), std::string("\r\none\r\ntwo"));
  QCOMPARE(painted(edit, 1), QString());
  QCOMPARE(painted(edit, 2), QString("0-3:#ff0000"));
}

void TextsTest::nothingIsColouredOffTheScreen()
{
  Page page;
  ui::CodeEdit edit;
  edit.resize(600, 300);
  const auto link = ui::linkRichText(page.rich, &edit);
  std::string text;
  for (int i = 0; i < 1000; ++i)
    text += "doMove\r\n";
  page.rich.setStyled(text, {{0, {0x0000FF, false, false}}});
  QCOMPARE(painted(edit, 0), QString("0-6:#ff0000"));
  QCOMPARE(painted(edit, 900), QString());
  edit.verticalScrollBar()->setValue(900);
  QCOMPARE(painted(edit, 900), QString("0-6:#ff0000"));
}

namespace
{

/// A script that is coloured while it is typed.
struct Script : Page
{
  Script()
  {
    shared = {};
    setDefaultSettings();
    shared.PovolBarvy = -1;
    frmrejstrik.seznam.clear();
    frmrejstrik.seznam.add("doMove", 3);
    frmrejstrik.seznam.add("and", 2);
    rich.onChange = [this]
    {
      if (shared.PovolBarvy != 0)
        colourTyped(rich);
    };
    edit.resize(600, 400);
    link = ui::linkRichText(rich, &edit);
  }
  ~Script() override
  {
    link.reset();
    frmrejstrik.seznam.clear();
  }
  void undo() { QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier); }
  void redo() { QTest::keyClick(&edit, Qt::Key_Y, Qt::ControlModifier); }

  ui::CodeEdit edit;
  std::unique_ptr<ui::Link> link;
};

} // namespace

void TextsTest::undoTakesTheColouringWithIt()
{
  Script script;
  QTest::keyClicks(&script.edit, "x DOMOVE");
  QCOMPARE(script.edit.toPlainText(), QString("x DOMOVE"));
  QTest::keyClick(&script.edit, Qt::Key_Space);
  QCOMPARE(script.edit.toPlainText(), QString("x doMove "));
  QCOMPARE(script.edit.textCursor().position(), 9);
  QCOMPARE(painted(script.edit, 0), QString("2-6:#0000ffb"));
  QTest::keyClicks(&script.edit, "AND");
  QTest::keyClick(&script.edit, Qt::Key_Return);
  QCOMPARE(script.edit.toPlainText(), QString("x doMove and\n"));
  script.undo();
  QCOMPARE(script.edit.toPlainText(), QString("x doMove "));
  QCOMPARE(painted(script.edit, 0), QString("2-6:#0000ffb"));
  script.undo(); // the word, its spelling and its colour are one step
  QCOMPARE(script.edit.toPlainText(), QString("x "));
  QCOMPARE(painted(script.edit, 0), QString());
  script.redo();
  QCOMPARE(script.edit.toPlainText(), QString("x doMove "));
  QCOMPARE(painted(script.edit, 0), QString("2-6:#0000ffb"));
  QCOMPARE(script.edit.textCursor().position(), 9);

  script.edit.moveCursor(QTextCursor::Start);
  QTest::keyClick(&script.edit, Qt::Key_Semicolon); // the line is a comment now
  QCOMPARE(painted(script.edit, 0), QString("0-10:#00ff00i"));
  script.undo();
  QCOMPARE(painted(script.edit, 0), QString("2-6:#0000ffb"));

  ObarviSkript(script.rich); // colours are no step
  script.undo();
  QCOMPARE(script.edit.toPlainText(), QString("x "));
  script.rich.set("another script");
  script.undo();
  QCOMPARE(script.edit.toPlainText(), QString("another script"));
  QCOMPARE(script.rich.text(), std::string("another script"));
}

void TextsTest::menuTakesBack()
{
  Script script;
  script.edit.show();
  QTest::keyClicks(&script.edit, "AND ");
  for (const int entry : {0, 1})
  {
    QTimer::singleShot(50, qApp,
                       [entry]
                       {
                         auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                         QVERIFY(menu && menu->actions().at(entry)->isEnabled());
                         menu->actions().at(entry)->trigger();
                         menu->close();
                       });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), script.edit.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&script.edit, &event);
    QCOMPARE(script.rich.text(), std::string(entry == 0 ? "" : "and "));
  }
}

void TextsTest::caretAndPlaceStay()
{
  Script script;
  std::string text;
  for (int i = 0; i < 500; ++i)
    text += "DOMOVE one two\r\n";
  shared.PovolBarvy = 0;
  script.rich.set(text);
  shared.PovolBarvy = -1;
  script.rich.select(260 * 16 + 3, 4);
  script.edit.verticalScrollBar()->setValue(255);
  ObarviSkript(script.rich);
  QCOMPARE(script.edit.toPlainText().left(16), QString("doMove one two\nd"));
  QCOMPARE(script.edit.verticalScrollBar()->value(), 255);
  QCOMPARE(script.edit.textCursor().selectedText(), QString("ove "));
  QCOMPARE(painted(script.edit, 256), QString("0-6:#0000ffb"));
}

void TextsTest::numbersOfLines()
{
  Script script;
  script.rich.set("one\r\n" + std::string(3 * ui::ShownPlaces::longestRow, 'x') + "\r\nthree");
  QList<int> numbers;
  for (QTextBlock block = script.edit.document()->begin(); block.isValid(); block = block.next())
    numbers += script.edit.onNumber(block);
  QCOMPARE(numbers, QList<int>({1, 2, 0, 0, 0, 0, 0, 3}));
}

namespace
{

/// The document without the ends of rows that go on.
QString withoutRows(const ui::CodeEdit& edit)
{
  QString text;
  for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next())
  {
    if (block.blockNumber() > 0 && edit.onNumber(block) > 0)
      text += u'\n';
    text += block.text();
  }
  return text;
}

} // namespace

void TextsTest::longLine()
{
  Script script;
  const int length = 5'000'000;
  script.rich.set(std::string(length, 'x') + "\r\nlast");
  QVERIFY(script.edit.blockCount() > 1000);
  script.edit.moveCursor(QTextCursor::End);
  QTest::keyClick(&script.edit, Qt::Key_Up);
  QTest::keyClick(&script.edit, Qt::Key_End);
  QTest::keyClick(&script.edit, Qt::Key_Y);
  QCOMPARE(script.rich.length(), std::size_t{length + 7});
  QCOMPARE(script.rich.part(length - 1, 4), std::string("xy\r\n"));
  QTextCursor caret = script.edit.textCursor();
  caret.setPosition(ui::ShownPlaces::rowLength + 1); // the second row's start
  script.edit.setTextCursor(caret);
  QCOMPARE(script.edit.textCursor().columnNumber(), 0);
  QCOMPARE(script.rich.selStart(), std::size_t{ui::ShownPlaces::rowLength});
  QTest::keyClick(&script.edit, Qt::Key_Backspace); // two rows become one; nothing else is gone
  QCOMPARE(script.rich.length(), std::size_t{length + 7});
  QCOMPARE(script.edit.onNumber(script.edit.document()->findBlockByNumber(1)), 0);
  script.edit.insertPlainText("é");
  QCOMPARE(script.rich.part(ui::ShownPlaces::rowLength - 1, 3), std::string("xéx"));
  QCOMPARE(withoutRows(script.edit), ui::shownText(script.rich.text()));
  script.edit.insertPlainText(QString(100'000, u'z'));
  QCOMPARE(script.rich.length(), std::size_t{length + 100'008});
  for (QTextBlock block = script.edit.document()->begin(); block.isValid(); block = block.next())
    QVERIFY(block.length() - 1 <= ui::ShownPlaces::longestRow);
  QCOMPARE(withoutRows(script.edit), ui::shownText(script.rich.text()));
}

void TextsTest::anyEditsAgree()
{
  std::mt19937 random(3);
  const auto upTo = [&random](int limit) { return std::uniform_int_distribution<int>(0, limit)(random); };
  const QString longPart(ui::ShownPlaces::longestRow, u'w');
  const QStringList pieces = {"a",          "\n", "ž", " ",      "DOMOVE ", ";", "\U0001F600",
                              "b\nAND c\n", "",   "",  longPart, longPart,  "",  "\t"};
  Script script;
  shared.PovolBarvy = -1;
  for (int i = 0; i < 400; ++i)
  {
    const int length = script.edit.document()->characterCount() - 1;
    QTextCursor cursor = script.edit.textCursor();
    cursor.setPosition(upTo(length));
    cursor.setPosition(std::min(length, cursor.position() + upTo(upTo(9) == 0 ? 9000 : 3)), QTextCursor::KeepAnchor);
    script.edit.setTextCursor(cursor);
    const std::string piece = pieces[upTo(static_cast<int>(pieces.size()) - 1)].toStdString();
    switch (upTo(9))
    {
    case 0: script.rich.replaceSelection(piece); break;
    case 1: ObarviSkript(script.rich); break;
    case 2: script.undo(); break;
    case 3: script.redo(); break;
    case 4: script.rich.userEdit(static_cast<std::size_t>(upTo(length)), 2, piece + "\r"); break;
    case 5: script.rich.append(piece); break;
    default: script.edit.insertPlainText(QString::fromStdString(piece));
    }
    QCOMPARE(withoutRows(script.edit), ui::shownText(script.rich.text()));
    cursor = script.edit.textCursor();
    cursor.setPosition(upTo(script.edit.document()->characterCount() - 1));
    if (cursor.position() > 0 && script.edit.document()->characterAt(cursor.position()).isLowSurrogate())
      continue;
    script.edit.setTextCursor(cursor);
    const QTextBlock block = cursor.block();
    int rows = 0;
    for (QTextBlock before = block; before.isValid() && before.blockNumber() > 0; before = before.previous())
      rows += script.edit.onNumber(before) == 0 ? 1 : 0;
    QCOMPARE(script.rich.selStart(), ui::charactersBefore(script.rich.text(), cursor.position() - rows));
    QCOMPARE(script.edit.textCursor().position(), cursor.position());
  }
}

void TextsTest::charactersNobodyShows()
{
  Script script;
  shared.PovolBarvy = 0;
  std::string text = "a";
  for (const char* const odd : {"\xC2\xA0", "\xEF\xB7\x90", "\xE2\x80\xA8", "\xEF\xBF\xBC", "\x01", "\x7F", "\xC2\x81"})
    text += odd;
  text += '\0';
  text += "z";
  script.rich.set(text);
  script.edit.moveCursor(QTextCursor::End);
  QTest::keyClick(&script.edit, Qt::Key_X);
  QCOMPARE(script.rich.text(), text + "x");
  script.rich.setStyled(text + "xy", {}); // told as a whole
  QCOMPARE(script.edit.document()->characterCount() - 1, 12);
  QTest::keyClick(&script.edit, Qt::Key_X);
  QCOMPARE(script.rich.text(), text + "xxy");
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
