// The smaller kinds of fields, field arrays, and forms.

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/kinds.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace tarvelin;

namespace
{

struct KindsForm : Form
{
  KindsForm() : Form("form", "Form") {}
  FormValue<std::string> Word{this, "Word"};
  Label label{this, "label", "Caption"};
  Check check{this, "check", "Check"};
  OptionGroup group;
  Option one{this, "one", group};
  Option two{this, "two", group};
  Option three{this, "three", group};
  Slider slider{this, "slider", 0, 100};
  Progress progress{this, "progress"};
  Tree tree{this, "tree"};
  TabStrip tabs{this, "tabs", {"A", "B"}};
  FieldArray<Label> labels{this, "labels", {{0, "zero"}, {5, "five"}}};
  FieldArray<Text> texts{this, "texts", {1, 2}};
  Browser browser{this, "browser"};
};

int failureOf(auto action)
{
  int number = 0;
  attempt(action, [&](const Failure& failure) { number = failure.number; });
  return number;
}

TEST(Check, AChangeFromCodeIsAClick)
{
  KindsForm form;
  int clicks = 0;
  form.check.onClick = [&] { ++clicks; };
  form.check.set(true);
  form.check.set(true);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(form.check.value(), 1);
  form.check.toggle();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.check.value(), 0);
}

TEST(Option, OptionsOfAGroupExcludeEachOther)
{
  KindsForm form;
  std::string clicked;
  form.one.onClick = [&] { clicked += "1"; };
  form.two.onClick = [&] { clicked += "2"; };
  form.one.set(true);
  form.two.set(true);
  EXPECT_FALSE(form.one.value());
  EXPECT_TRUE(form.two.value());
  form.two.set(true);
  EXPECT_EQ(clicked, "12");
  form.two.set(false);
  EXPECT_EQ(clicked, "12");
}

TEST(Slider, StaysWithinItsLimits)
{
  KindsForm form;
  std::string told;
  form.slider.onChange = [&] { told += "c" + std::to_string(form.slider.value()); };
  form.slider.onScroll = [&] { told += "s"; };
  form.slider.set(40);
  form.slider.set(40);
  EXPECT_EQ(told, "c40");
  EXPECT_EQ(failureOf([&] { form.slider.set(101); }), 380);
  form.slider.userScroll(500);
  EXPECT_EQ(told, "c40sc100");
  form.slider.userScroll(100);
  EXPECT_EQ(told, "c40sc100s");
  form.slider.setRange(0, 50);
  EXPECT_EQ(form.slider.value(), 50);
}

TEST(Progress, StaysWithinItsLimits)
{
  KindsForm form;
  form.progress.setRange(0, 3);
  form.progress.set(3);
  EXPECT_EQ(failureOf([&] { form.progress.set(4); }), 380);
  EXPECT_EQ(failureOf([&] { form.progress.setRange(0, 0); }), 380);
  EXPECT_EQ(form.progress.maximum(), 3);
}

TEST(Tree, NodesByTheirKeys)
{
  KindsForm form;
  Tree& tree = form.tree;
  tree.add("", "a", "A", 1);
  tree.add("", "b", "B");
  tree.add("a", "a1", "A one");
  tree.add("a", "a2", "A two", 2);
  tree.add("a1", "deep", "Deep");
  EXPECT_EQ(failureOf([&] { tree.add("", "a1", "again"); }), 35602);
  EXPECT_EQ(failureOf([&] { tree.add("none", "x", "X"); }), 35601);
  std::string order;
  for (const Tree::Node* const node : tree.nodes())
    order += node->key + " ";
  EXPECT_EQ(order, "a a1 deep a2 b ");
  EXPECT_EQ(tree.find("deep")->parent->key, "a1");
  tree.userClick("deep");
  ASSERT_NE(tree.selected(), nullptr);
  tree.setKey("deep", "deeper");
  EXPECT_EQ(tree.selected()->key, "deeper");
  EXPECT_EQ(tree.find("deep"), nullptr);
  EXPECT_EQ(failureOf([&] { tree.setKey("a2", "b"); }), 35602);
  tree.remove("a");
  EXPECT_EQ(tree.count(), 1);
  EXPECT_EQ(tree.selected(), nullptr);
  EXPECT_EQ(failureOf([&] { tree.remove("a"); }), 35601);
  tree.clear();
  EXPECT_EQ(tree.count(), 0);
}

TEST(TabStrip, KnowsItsTabs)
{
  KindsForm form;
  form.tabs.setTab(1);
  EXPECT_EQ(form.tabs.tab(), 1);
  EXPECT_EQ(failureOf([&] { form.tabs.setTab(2); }), 380);
  form.tabs.setTabCaption(0, "New");
  EXPECT_EQ(form.tabs.tabCaption(0), "New");
  EXPECT_EQ(failureOf([&] { form.tabs.setTabCaption(-1, "x"); }), 380);
}

TEST(FieldArray, GrowsAndShrinks)
{
  KindsForm form;
  EXPECT_EQ(form.labels(5).caption(), "five");
  EXPECT_EQ(form.labels(5).fullName(), "labels(5)");
  EXPECT_EQ(failureOf([&] { (void)form.labels(1); }), 9);
  form.labels.load(1).setCaption("one");
  EXPECT_EQ(form.find("LABELS", 1)->caption(), "one");
  form.labels.unload(1);
  EXPECT_EQ(form.find("labels", 1), nullptr);
  EXPECT_TRUE(form.hasArray("Labels"));
  std::string order;
  form.texts.each([&](Text&, int index) { order += std::to_string(index); });
  EXPECT_EQ(order, "12");
}

TEST(Form, LoadsOnceAndActivatesAtEachShowing)
{
  KindsForm form;
  std::string order;
  form.onLoad = [&] { order += "L"; };
  form.onActivate = [&] { order += form.visible() ? "A" : "a"; };
  form.load();
  form.show();
  form.show();
  form.hide();
  form.show();
  EXPECT_EQ(order, "LAAA");
  form.unload();
  EXPECT_FALSE(form.visible());
  form.show();
  EXPECT_EQ(order, "LAAALA");
}

/// A user who notes what he sees.
class NotingDesk : public Desk
{
public:
  void showModal(Form& form) override { seen += form.modal() && form.visible() ? "modal" : "wrong"; }
  Answer box(std::string_view, Buttons, Icon) override { return Answer::ok; }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override {}

  std::string seen;
};

TEST(Form, AModalFormIsClosedWhenTheUserIsDone)
{
  KindsForm form;
  NotingDesk noting;
  setDesk(&noting);
  form.showModal();
  EXPECT_EQ(noting.seen, "modal");
  EXPECT_FALSE(form.visible());
  EXPECT_FALSE(form.modal());
  std::string closed;
  form.onClose = [&]
  {
    closed += "closed";
    form.hide();
  };
  form.showModal();
  EXPECT_EQ(closed, "closed");
  setDesk(nullptr);
}

TEST(Form, ValuesBesideTheFields)
{
  KindsForm form;
  form.Word = "x";
  const FormValueEntry* const entry = form.findValue("WORD");
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(*std::get<std::string*>(entry->value), "x");
  EXPECT_EQ(form.findValue("other"), nullptr);
}

TEST(Desk, WithoutAUserEverythingIsDeclined)
{
  setDesk(nullptr);
  EXPECT_EQ(desk().box("x", Buttons::ok, Icon::none), Answer::ok);
  EXPECT_FALSE(askYesNo("x"));
  EXPECT_FALSE(desk().prompt("x", "", "default").has_value());
  KindsForm form;
  Dialog dialog(&form, "dialog");
  dialog.color = 7;
  EXPECT_EQ(failureOf([&] { dialog.showColor(); }), 32755);
  EXPECT_EQ(dialog.color, 7u);
}

} // namespace
