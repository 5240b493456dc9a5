#include "core/forms/form.h"
#include "core/forms/rich_text.h"
#include "core/strings.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace tarvelin;

namespace
{

constexpr TextStyle blue{.color = 0xFF0000, .bold = true, .italic = false};
constexpr TextStyle green{.color = 0x00FF00, .bold = false, .italic = true};

struct Page : Form
{
  Page() : Form("page", "") { rich.keepSteps(); }
  RichText rich{this, "rich"};
};

/// Text and styles of a field.
struct State
{
  explicit State(const RichText& rich) : text(rich.text()), runs(rich.runs()) {}
  bool operator==(const State&) const = default;
  std::string text;
  std::vector<RichText::Run> runs;
};

/// Puts each word "DO" that a blank closes into lower case, and colours it.
void correct(RichText& rich)
{
  const std::size_t caret = rich.selStart();
  if (caret < 3 || rich.part(caret - 3, 3) != "DO ")
    return;
  rich.userEdit(caret - 3, 2, "do");
  rich.setStyle(caret - 3, 2, blue);
  rich.select(caret, 0);
}

TEST(EditSteps, ATypedWordIsOneStepWithItsCorrection)
{
  Page page;
  page.rich.onChange = [&] { correct(page.rich); };
  page.rich.userType("x ");
  page.rich.userType("DO ");
  page.rich.userType("y");
  EXPECT_EQ(page.rich.text(), "x do y");
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "x do ");
  EXPECT_EQ(page.rich.styleAt(2), blue);
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "x ");
  EXPECT_EQ(page.rich.selStart(), 2u);
  page.rich.redo();
  EXPECT_EQ(page.rich.text(), "x do ");
  EXPECT_EQ(page.rich.styleAt(2), blue);
  EXPECT_EQ(page.rich.styleAt(4), TextStyle{});
  EXPECT_EQ(page.rich.selStart(), 5u);
  page.rich.undo();
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "");
  EXPECT_FALSE(page.rich.canUndo());
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "");
  page.rich.redo();
  page.rich.redo();
  page.rich.redo();
  EXPECT_EQ(page.rich.text(), "x do y");
  EXPECT_FALSE(page.rich.canRedo());
}

TEST(EditSteps, TheHandlerDoesNotRunAgain)
{
  Page page;
  int runs = 0;
  page.rich.onChange = [&] { ++runs; };
  page.rich.userType("ab");
  EXPECT_EQ(runs, 2);
  page.rich.undo();
  page.rich.redo();
  EXPECT_EQ(runs, 2);
}

TEST(EditSteps, DeletingIsAStepOfItsOwn)
{
  Page page;
  page.rich.userType("abcd");
  page.rich.userEdit(3, 1, "");
  page.rich.userEdit(2, 1, ""); // back
  page.rich.userEdit(0, 1, ""); // somewhere else
  EXPECT_EQ(page.rich.text(), "b");
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "ab");
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "abcd");
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "");
}

TEST(EditSteps, WhatTheProgramSetsCannotBeTakenBack)
{
  Page page;
  page.rich.userType("ab");
  page.rich.set("another");
  EXPECT_FALSE(page.rich.canUndo());
  page.rich.userType("c");
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "another");
  EXPECT_TRUE(page.rich.canRedo());
  page.rich.append(" one");
  EXPECT_FALSE(page.rich.canUndo() || page.rich.canRedo());
}

TEST(EditSteps, ColouringIsNeverAStepOfItsOwn)
{
  Page page;
  page.rich.set("DO it");
  page.rich.setStyled("do it", {{0, blue}, {2, {}}});
  EXPECT_FALSE(page.rich.canUndo());
  page.rich.select(5, 0);
  page.rich.userType("!");
  page.rich.setStyled("do IT!", {{0, blue}, {2, {}}, {3, green}, {5, {}}});
  const State coloured(page.rich);
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "do it");
  EXPECT_EQ(page.rich.styleAt(4), TextStyle{});
  EXPECT_FALSE(page.rich.canUndo());
  page.rich.redo();
  EXPECT_EQ(State(page.rich), coloured);

  page.rich.setStyle(0, 6, green); // looks alone
  page.rich.undo();
  EXPECT_EQ(page.rich.text(), "do it");
}

TEST(EditSteps, NewTypingEndsWhatWasTakenBack)
{
  Page page;
  page.rich.userType("one two");
  page.rich.undo();
  EXPECT_TRUE(page.rich.canRedo());
  page.rich.userType("x");
  EXPECT_FALSE(page.rich.canRedo());
  EXPECT_EQ(page.rich.text(), "one x");
}

TEST(EditSteps, TheSelectionComesBack)
{
  Page page;
  page.rich.set("one two three");
  page.rich.select(4, 3);
  page.rich.replaceSelection("2");
  page.rich.undo();
  EXPECT_EQ(page.rich.selected(), "two");
}

TEST(EditSteps, AnyEditsAreTakenBackAndMadeAgain)
{
  std::mt19937 random(5);
  const auto upTo = [&](std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit)(random); };
  const char* const pieces[] = {"a", "ž", "\r\n", " ", "DO", ";", "", "žluťoučký DO kůň"};
  for (int round = 0; round < 40; ++round)
  {
    Page page;
    page.rich.setStyled("žluť DO x\r\n", {{0, green}, {4, {}}});
    page.rich.onChange = [&] // whatever a handler may do
    {
      if (page.rich.length() == 0)
        return;
      const std::size_t at = upTo(page.rich.length() - 1);
      page.rich.setStyle(at, upTo(4), upTo(1) == 0 ? blue : green);
      page.rich.setTypingStyle(upTo(1) == 0 ? TextStyle{} : green);
      correct(page.rich);
    };
    const State first(page.rich);
    for (int i = 0; i < 60; ++i)
    {
      const std::size_t start = upTo(page.rich.length());
      page.rich.userEdit(start, upTo(3), pieces[upTo(7)]);
      if (upTo(3) == 0)
        page.rich.userType("DO x");
      if (upTo(9) == 0)
        page.rich.undo();
    }
    while (page.rich.canRedo()) // the loop may have ended with one taken back
      page.rich.redo();
    const State last(page.rich);
    while (page.rich.canUndo())
      page.rich.undo();
    ASSERT_EQ(page.rich.text(), first.text);
    ASSERT_EQ(page.rich.runs(), first.runs);
    while (page.rich.canRedo())
      page.rich.redo();
    ASSERT_EQ(page.rich.text(), last.text);
    ASSERT_EQ(page.rich.runs(), last.runs);
  }
}

} // namespace
