#include "campaign/path_names.h"
#include "platform/failure.h"

#include <gtest/gtest.h>
#include <string>

using namespace tarvelin;

namespace
{

TEST(PathNames, TheTextBehindTheLastBackslash)
{
  EXPECT_EQ(JmenoZCesty("c:\\hry\\mise\\Útok na most.Eden"), "Útok na most.Eden");
  EXPECT_EQ(JmenoZCesty("\\x"), "x");
  EXPECT_EQ(JmenoZCesty("\\\\server\\a;b\""), "a;b\"");
  EXPECT_EQ(JmenoZCesty("\\hry\\"), "");
  EXPECT_EQ(JmenoZCesty("Utok.Eden"), "");
  EXPECT_EQ(JmenoZCesty("hry/Utok.Eden"), "");
  EXPECT_EQ(JmenoZCesty(""), "");
}

TEST(PathNames, TheNumberAtTheEndOfAKey)
{
  EXPECT_EQ(CisloZKlice("PART1"), 1);
  EXPECT_EQ(CisloZKlice("PART10MISSION27"), 27);
  EXPECT_EQ(CisloZKlice("PART007"), 7);
  EXPECT_EQ(CisloZKlice("č3"), 3);
  EXPECT_EQ(CisloZKlice("PART1 "), 0);
  EXPECT_EQ(CisloZKlice("PART"), 0);
  EXPECT_EQ(CisloZKlice("15"), 0); // nothing in front of the digits
  EXPECT_EQ(CisloZKlice(""), 0);
  EXPECT_EQ(CisloZKlice("PART2147483647"), 2147483647);
}

TEST(PathNames, ANumberThatIsTooLargeFails)
{
  try
  {
    CisloZKlice("PART" + std::string(400, '9'));
    FAIL() << "no failure";
  }
  catch (const Failure& failure)
  {
    EXPECT_EQ(failure.number, 6);
  }
}

} // namespace
