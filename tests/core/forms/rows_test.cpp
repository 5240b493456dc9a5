#include "core/attempt.h"
#include "core/forms/kinds.h"

#include <gtest/gtest.h>
#include <string>

using namespace tarvelin;

namespace
{

struct RowsForm : Form
{
  RowsForm() : Form("form", "Form") {}
  List plain{this, "plain"};
  List sorted{this, "sorted", List::Style::sorted};
  List marked{this, "marked", List::Style::checkMarks};
  Combo combo{this, "combo"};
};

std::string texts(const Rows& rows)
{
  std::string all;
  for (int i = 0; i < rows.count(); ++i)
    all += rows.text(i) + "|";
  return all;
}

int failureOf(auto action)
{
  int number = 0;
  attempt(action, [&](const Failure& failure) { number = failure.number; });
  return number;
}

TEST(Rows, AddAndRemove)
{
  RowsForm form;
  List& list = form.plain;
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.newest(), -1);
  EXPECT_EQ(list.add("b", 7), 0);
  EXPECT_EQ(list.add("a"), 1);
  EXPECT_EQ(list.newest(), 1);
  EXPECT_EQ(texts(list), "b|a|");
  EXPECT_EQ(list.tag(0), 7);
  EXPECT_EQ(list.tag(1), 0);
  list.remove(0);
  EXPECT_EQ(list.newest(), -1);
  EXPECT_EQ(texts(list), "a|");
  list.clear();
  EXPECT_EQ(list.count(), 0);
}

TEST(Rows, OutOfBoundsFails)
{
  RowsForm form;
  EXPECT_EQ(failureOf([&] { form.plain.remove(-1); }), 5);
  EXPECT_EQ(failureOf([&] { form.plain.remove(0); }), 5);
  EXPECT_EQ(failureOf([&] { (void)form.plain.text(0); }), 5);
  EXPECT_EQ(failureOf([&] { form.plain.setTag(0, 1); }), 5);
  EXPECT_EQ(failureOf([&] { form.plain.mark(-1, true); }), 5);
  EXPECT_EQ(failureOf([&] { form.plain.select(0); }), 380);
  EXPECT_EQ(failureOf([&] { form.plain.select(-2); }), 380);
}

TEST(Rows, TheHighlightFollowsItsRow)
{
  RowsForm form;
  for (const char* const text : {"a", "b", "c", "d"})
    form.plain.add(text);
  form.plain.select(2);
  form.plain.remove(0);
  EXPECT_EQ(form.plain.index(), 1);
  form.plain.remove(2);
  EXPECT_EQ(form.plain.index(), 1);
  form.plain.remove(1);
  EXPECT_EQ(form.plain.index(), -1);
  form.sorted.add("m");
  form.sorted.select(0);
  form.sorted.add("a");
  EXPECT_EQ(form.sorted.index(), 1);
}

TEST(Rows, TagsAndMarksStayWithTheirRow)
{
  RowsForm form;
  for (int i = 0; i < 4; ++i)
  {
    form.marked.add(std::to_string(i), i * 10);
    form.marked.mark(i, i % 2 == 1);
  }
  form.marked.remove(0);
  EXPECT_EQ(form.marked.tag(0), 10);
  EXPECT_TRUE(form.marked.marked(0));
  EXPECT_FALSE(form.marked.marked(1));
}

TEST(Rows, ASortedListOrdersByUpperCaseCharacterByCharacter)
{
  RowsForm form;
  for (const char* const text : {"beta", "Alfa", "_x", "alfa1", "Žluť", "zeta", "BETA", "1"})
    form.sorted.add(text);
  EXPECT_EQ(texts(form.sorted), "1|Alfa|alfa1|beta|BETA|zeta|_x|Žluť|");
  EXPECT_EQ(form.sorted.add("gama"), 5);
  EXPECT_EQ(form.sorted.newest(), 5);
}

TEST(Rows, SelectingFromCodeRunsTheClickHandler)
{
  RowsForm form;
  int clicks = 0;
  form.plain.add("a");
  form.plain.onClick = [&] { ++clicks; };
  form.plain.select(0);
  EXPECT_EQ(clicks, 1);
  form.plain.select(-1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.plain.index(), -1);
  form.plain.mark(0, true); // marking from code is no click
  EXPECT_EQ(clicks, 2);
}

TEST(Rows, TheUsersClickIsPressThenClick)
{
  RowsForm form;
  std::string order;
  form.marked.add("a");
  form.marked.add("b");
  form.marked.onPress = [&](MouseButton button) { order += button == MouseButton::left ? "L" : "R"; };
  form.marked.onClick = [&] { order += "C" + std::to_string(form.marked.index()); };
  form.marked.userSelect(1);
  EXPECT_EQ(order, "LC1");
  form.marked.userPress(MouseButton::right);
  EXPECT_EQ(order, "LC1R");
  EXPECT_EQ(form.marked.index(), 1);
  form.marked.onClick = [&] { order += form.marked.marked(0) ? "marked" : "unmarked"; };
  form.marked.userMark(0, true);
  EXPECT_EQ(order, "LC1Rmarked");
  EXPECT_EQ(form.marked.index(), 0);
}

TEST(Combo, ShowsTheTextOfItsRow)
{
  RowsForm form;
  form.combo.add("one");
  form.combo.add("two");
  EXPECT_EQ(form.combo.text(), "");
  form.combo.select(1);
  EXPECT_EQ(form.combo.text(), "two");
  form.combo.clear();
  EXPECT_EQ(form.combo.text(), "");
  EXPECT_EQ(form.combo.index(), -1);
}

} // namespace
