#include "core/forms/kinds.h"
#include "core/strings.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace tarvelin;

namespace
{

struct TextForm : Form
{
  TextForm() : Form("form", "Form") {}
  Text text{this, "text"};
  RichText rich{this, "rich"};
};

/// Notes what a view is told.
struct Watcher : FieldObserver
{
  void fieldChanged(Field&, const FieldChange& change) override { changes.push_back(change); }
  std::vector<FieldChange> changes;
};

TEST(Text, TheHandlerRunsWhenTheTextDidChange)
{
  TextForm form;
  int runs = 0;
  form.text.onChange = [&] { ++runs; };
  form.text.set("a");
  form.text.set("a");
  EXPECT_EQ(runs, 1);
  form.text.append("");
  EXPECT_EQ(runs, 1);
  form.text.append("b");
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(form.text.text(), "ab");
  form.text.userSet("ab"); // the user's write counts whatever was there
  EXPECT_EQ(runs, 3);
  form.text.userType("xyz");
  EXPECT_EQ(runs, 6);
}

TEST(Text, AHandlerMayChangeTheTextItself)
{
  TextForm form;
  form.text.onChange = [&]
  {
    if (form.text.text().size() > 3)
      form.text.set(form.text.text().substr(0, 3));
  };
  form.text.userType("abcdef");
  EXPECT_EQ(form.text.text(), "abc");
  EXPECT_EQ(form.text.selStart(), 3u);
}

TEST(Text, ATextMayBeSetFromAPartOfItself)
{
  TextForm form;
  form.text.set(std::string(100, 'a') + "tail");
  form.text.set(std::string_view(form.text.text()).substr(50));
  EXPECT_EQ(form.text.text(), std::string(50, 'a') + "tail");
}

TEST(Text, TheCaretStaysInsideTheText)
{
  TextForm form;
  form.text.set("žluťoučký");
  form.text.select(4, 3);
  EXPECT_EQ(form.text.selected(), "ouč");
  form.text.select(100, 5);
  EXPECT_EQ(form.text.selStart(), 9u);
  EXPECT_EQ(form.text.selLength(), 0u);
  form.text.select(2, 100);
  EXPECT_EQ(form.text.selLength(), 7u);
  form.text.set("ab");
  EXPECT_EQ(form.text.selStart(), 2u);
  EXPECT_EQ(form.text.selLength(), 0u);
}

TEST(Text, ViewsAreToldEachSplice)
{
  TextForm form;
  form.text.set("žluť");
  Watcher watcher;
  form.text.observe(watcher);
  form.text.userEdit(1, 2, "č€");
  ASSERT_FALSE(watcher.changes.empty());
  EXPECT_EQ(watcher.changes[0].what, Change::text);
  EXPECT_EQ(watcher.changes[0].first, 1u);
  EXPECT_EQ(watcher.changes[0].removed, 2u);
  EXPECT_EQ(watcher.changes[0].added, 2u);
  EXPECT_EQ(form.text.text(), "žč€ť");
  form.text.stopObserving(watcher);
  watcher.changes.clear();
  form.text.set("x");
  EXPECT_TRUE(watcher.changes.empty());
}

TEST(Text, ABulkChangeReachesViewsAsOne)
{
  TextForm form;
  Watcher watcher;
  form.rich.observe(watcher);
  {
    const BulkChange outer(form.rich);
    for (int i = 0; i < 50; ++i)
      form.rich.append("abc ");
    const BulkChange inner(form.rich);
    form.rich.setStyle(0, 10, {1, true, false});
  }
  ASSERT_EQ(watcher.changes.size(), 1u);
  EXPECT_EQ(watcher.changes[0].what, Change::everything);
  {
    const BulkChange nothing(form.rich);
  }
  EXPECT_EQ(watcher.changes.size(), 1u);
}

/// The same text and styles, character by character.
struct Model
{
  std::u32string text;
  std::vector<TextStyle> styles;
};

void expectSame(const RichText& rich, const Model& model)
{
  ASSERT_EQ(rich.length(), model.text.size());
  ASSERT_EQ(length(rich.text()), model.text.size());
  for (std::size_t i = 0; i < model.text.size(); ++i)
    ASSERT_EQ(rich.styleAt(i), model.styles[i]) << "character " << i;
  for (std::size_t i = 1; i < rich.runs().size(); ++i)
  {
    ASSERT_LT(rich.runs()[i - 1].start, rich.runs()[i].start);
    ASSERT_NE(rich.runs()[i - 1].style, rich.runs()[i].style) << "equal neighbours are one run";
  }
  if (!model.text.empty())
  {
    ASSERT_EQ(rich.runs().front().start, 0u);
    ASSERT_LT(rich.runs().back().start, model.text.size());
  }
}

TEST(RichText, KeepsAStyleForEachCharacter)
{
  std::mt19937 random(11);
  const auto upTo = [&](std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit)(random); };
  TextForm form;
  Model model;
  const char* const pieces[] = {"a", "ž", "€", "bc", "", "žluť "};
  const std::size_t lengths[] = {1, 1, 1, 2, 0, 5};
  for (int step = 0; step < 3000; ++step)
  {
    const std::size_t size = model.text.size();
    const std::size_t start = upTo(size);
    const std::size_t count = upTo(std::min<std::size_t>(size - start, 6));
    if (upTo(2) == 0)
    {
      const TextStyle style{static_cast<Colour>(upTo(2)), upTo(1) == 1, false};
      form.rich.setStyle(start, count, style);
      std::fill_n(model.styles.begin() + static_cast<std::ptrdiff_t>(start), count, style);
    }
    else
    {
      const std::size_t piece = upTo(5);
      const TextStyle typed{static_cast<Colour>(upTo(1)), false, false};
      form.rich.setTypingStyle(typed);
      form.rich.userEdit(start, count, pieces[piece]);
      model.text.replace(start, count, lengths[piece], U'x');
      model.styles.erase(model.styles.begin() + static_cast<std::ptrdiff_t>(start),
                         model.styles.begin() + static_cast<std::ptrdiff_t>(start + count));
      model.styles.insert(model.styles.begin() + static_cast<std::ptrdiff_t>(start), lengths[piece], typed);
    }
    expectSame(form.rich, model);
    if (HasFatalFailure())
      FAIL() << "step " << step;
  }
}

TEST(RichText, TakesTextAndStylesAsOneChange)
{
  TextForm form;
  Watcher watcher;
  form.rich.observe(watcher);
  int runs = 0;
  form.rich.onChange = [&] { ++runs; };
  form.rich.setStyled("žluť x", {{0, {5, true, false}}, {4, {}}, {5, {}}, {99, {7, false, false}}});
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(watcher.changes.size(), 1u);
  EXPECT_EQ(form.rich.runs().size(), 2u);
  EXPECT_EQ(form.rich.styleAt(3), (TextStyle{5, true, false}));
  EXPECT_EQ(form.rich.styleAt(5), TextStyle{});
  form.rich.setStyled("žluť x", {});
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(form.rich.styleAt(0), TextStyle{});
}

TEST(RichText, AMillionCharactersLoadAndGrow)
{
  TextForm form;
  std::string text;
  for (int i = 0; i < 100000; ++i)
    text += "žluťoučký ";
  form.rich.set(text);
  EXPECT_EQ(form.rich.length(), 1000000u);
  for (int i = 0; i < 100000; ++i)
    form.rich.append("č\r\n");
  EXPECT_EQ(form.rich.length(), 1300000u);
  EXPECT_EQ(form.rich.part(999990, 13), "žluťoučký č\r\n");
  EXPECT_EQ(form.rich.part(1299997, 99), "č\r\n");
}

TEST(TextIndex, FindsTheSameBytesAsAWalkFromTheStart)
{
  std::mt19937 random(5);
  TextIndex index;
  std::string text;
  for (int round = 0; round < 300; ++round)
  {
    const std::size_t size = length(text);
    const std::size_t start = std::uniform_int_distribution<std::size_t>(0, size)(random);
    const std::size_t removed =
        std::uniform_int_distribution<std::size_t>(0, std::min<std::size_t>(size - start, 400))(random);
    std::string added;
    const std::size_t count = std::uniform_int_distribution<std::size_t>(0, 600)(random);
    for (std::size_t i = 0; i < count; ++i)
      added += random() % 3 == 0 ? "ž" : "a";
    const std::size_t from = index.offset(text, start);
    ASSERT_EQ(from, byteOffset(text, start));
    const std::size_t to = index.offset(text, start + removed);
    ASSERT_EQ(to, byteOffset(text, start + removed));
    text.replace(from, to - from, added);
    index.spliced(start, removed, count);
    ASSERT_EQ(index.length(text), length(text));
    const std::size_t somewhere = std::uniform_int_distribution<std::size_t>(0, length(text) + 10)(random);
    ASSERT_EQ(index.offset(text, somewhere), byteOffset(text, somewhere));
  }
}

} // namespace
