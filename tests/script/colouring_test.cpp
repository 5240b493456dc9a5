#include "core/forms/frmrejstrik.h"
#include "core/forms/kinds.h"
#include "core/settings.h"
#include "core/shared.h"
#include "script/colouring.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace tarvelin;

namespace
{

struct Editor : Form
{
  Editor() : Form("editor", "")
  {
    shared = {};
    setDefaultSettings();
    shared.PovolBarvy = -1;
    frmrejstrik.seznam.clear();
    frmrejstrik.seznam.add("doMove", 3);
    frmrejstrik.seznam.add("and", 2);
    frmrejstrik.seznam.add("žába", 1);
    skript.onChange = [this]
    {
      if (shared.PovolBarvy != 0)
        colourTyped(skript);
    };
  }
  ~Editor() override { frmrejstrik.seznam.clear(); }
  RichText skript{this, "skript"};
};

std::vector<TextStyle> stylesOf(const RichText& box)
{
  std::vector<TextStyle> styles;
  for (std::size_t i = 0; i < box.length(); ++i)
    styles.push_back(box.styleAt(i));
  return styles;
}

TEST(Colouring, TypedTextLooksAsIfItWereColouredWhole)
{
  std::mt19937 random(6);
  const char* const pieces[] = {"domove", "AND", "ŽÁBA", "x", ";", " ", "\r\n", "\"", "y;z", "  "};
  for (int round = 0; round < 60; ++round)
  {
    Editor typed;
    std::string text;
    for (int i = 0; i < 30; ++i)
      text += pieces[random() % std::size(pieces)];
    text += "\r\n"; // closes the last word
    typed.skript.userType(text);
    Editor whole;
    whole.skript.onChange = nullptr;
    whole.skript.set(text);
    ObarviSkript(whole.skript);
    ASSERT_EQ(typed.skript.text(), whole.skript.text());
    EXPECT_EQ(typed.skript.selStart(), typed.skript.length());
    const std::vector<TextStyle> a = stylesOf(typed.skript);
    const std::vector<TextStyle> b = stylesOf(whole.skript);
    for (std::size_t i = 0; i < a.size(); ++i)
      if (typed.skript.part(i, 1) != "\r") // the CR of a comment has no look of its own
      {
        EXPECT_EQ(a[i], b[i]) << text << " at " << i;
      }
  }
}

TEST(Colouring, AnotherRunChangesNothing)
{
  Editor editor;
  editor.skript.onChange = nullptr;
  editor.skript.set("domove x;AND\r\n and žába");
  ObarviSkript(editor.skript);
  const std::string text = editor.skript.text();
  const std::vector<RichText::Run> runs = editor.skript.runs();
  EXPECT_EQ(text, "doMove x;AND\r\n and žába");
  ObarviSkript(editor.skript);
  EXPECT_EQ(editor.skript.text(), text);
  EXPECT_EQ(editor.skript.runs(), runs);
}

TEST(Colouring, TheProgramsOwnChangesDoNotRunTheHandlerAgain)
{
  Editor editor;
  int runs = 0;
  editor.skript.onChange = [&] { runs += shared.PovolBarvy != 0 ? 1 : 0; };
  editor.skript.set("DOMOVE");
  runs = 0;
  ObarviSkript(editor.skript);
  EXPECT_EQ(editor.skript.text(), "doMove");
  EXPECT_EQ(runs, 0);
  EXPECT_EQ(shared.PovolBarvy, -1);
}

} // namespace
