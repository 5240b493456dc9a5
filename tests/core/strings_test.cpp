#include "core/strings.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

using namespace tarvelin;

namespace
{

int failureOf(auto action)
{
  try
  {
    action();
  }
  catch (const Failure& failure)
  {
    return failure.number;
  }
  return 0;
}

TEST(Strings, CountsCharactersNotBytes)
{
  EXPECT_EQ(length(""), 0u);
  EXPECT_EQ(length("abc"), 3u);
  EXPECT_EQ(length("žluť"), 4u);
  EXPECT_EQ(length("€😀"), 2u);
}

TEST(Strings, TakesParts)
{
  EXPECT_EQ(left("žluť", 2), "žl");
  EXPECT_EQ(left("žluť", 0), "");
  EXPECT_EQ(left("žluť", 99), "žluť");
  EXPECT_EQ(right("žluť", 2), "uť");
  EXPECT_EQ(right("žluť", 99), "žluť");
  EXPECT_EQ(mid("žluť", 2), "luť");
  EXPECT_EQ(mid("žluť", 5), "");
  EXPECT_EQ(mid("žluť", 99), "");
  EXPECT_EQ(mid("žluť", 2, 2), "lu");
  EXPECT_EQ(mid("žluť", 4, 9), "ť");
}

TEST(Strings, PartsWithImpossiblePlacesFail)
{
  EXPECT_EQ(failureOf([] { (void)left("a", -1); }), 5);
  EXPECT_EQ(failureOf([] { (void)right("a", -1); }), 5);
  EXPECT_EQ(failureOf([] { (void)mid("a", 0); }), 5);
  EXPECT_EQ(failureOf([] { (void)mid("a", -1, 1); }), 5);
  EXPECT_EQ(failureOf([] { (void)mid("a", 1, -1); }), 5);
}

TEST(Strings, FindsPlacesFromOne)
{
  EXPECT_EQ(inStr("žluť=1=2", "="), 5);
  EXPECT_EQ(inStrRev("žluť=1=2", "="), 7);
  EXPECT_EQ(inStr("abc", "x"), 0);
  EXPECT_EQ(inStrRev("abc", "x"), 0);
}

TEST(Strings, UpperCaseKnowsTheLettersOfTheCodePages)
{
  EXPECT_EQ(upper("abc žluťoučký kůň"), "ABC ŽLUŤOUČKÝ KŮŇ");
  EXPECT_EQ(upper("straße"), "STRAßE");
  EXPECT_EQ(upper("éàüñçøåł"), "ÉÀÜÑÇØÅŁ");
  EXPECT_EQ(upper("привет ё"), "ПРИВЕТ Ё");
  EXPECT_EQ(upper("ελλάς"), "ΕΛΛΆΣ");
  EXPECT_EQ(upper("123 [{;"), "123 [{;");
  EXPECT_EQ(upper("\xFF\xC3"), "\xFF\xC3");
}

TEST(Strings, TrimsBlanksAlone)
{
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("\ta\t"), "\ta\t");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(trim(""), "");
}

TEST(Strings, ValTakesTheNumberAtTheHead)
{
  EXPECT_EQ(val("12abc"), 12);
  EXPECT_EQ(val("  -2.5;"), -2.5);
  EXPECT_EQ(val("+3"), 3);
  EXPECT_EQ(val(".5"), 0.5);
  EXPECT_EQ(val("5."), 5);
  EXPECT_EQ(val("1e3x"), 1000);
  EXPECT_EQ(val("1e"), 1);
  EXPECT_EQ(val("1,5"), 1);
  EXPECT_EQ(val("abc"), 0);
  EXPECT_EQ(val("-"), 0);
  EXPECT_EQ(val("."), 0);
  EXPECT_EQ(val(""), 0);
  EXPECT_EQ(val("\"1\""), 0);
  EXPECT_EQ(failureOf([] { (void)val("1e999"); }), 6);
}

TEST(Strings, IntegersRoundAHalfToTheEvenNumber)
{
  EXPECT_EQ(integerVal("2.5"), 2);
  EXPECT_EQ(integerVal("3.5"), 4);
  EXPECT_EQ(integerVal("-2.5"), -2);
  EXPECT_EQ(integerVal("2.51 pieces"), 3);
  EXPECT_EQ(integerVal("x"), 0);
  EXPECT_EQ(integerVal("32767.4"), 32767);
  EXPECT_EQ(failureOf([] { (void)integerVal("32767.5"); }), 6);
  EXPECT_EQ(failureOf([] { (void)integerVal("-32769"); }), 6);
  EXPECT_EQ(toInteger(" 007 "), 7);
  EXPECT_EQ(toInteger("3.6"), 4);
  EXPECT_EQ(failureOf([] { (void)toInteger(""); }), 13);
  EXPECT_EQ(failureOf([] { (void)toInteger("7 x"); }), 13);
  EXPECT_EQ(failureOf([] { (void)toInteger("40000"); }), 6);
}

TEST(Strings, NumbersAreWrittenPlainly)
{
  EXPECT_EQ(numberText(0), "0");
  EXPECT_EQ(numberText(-0.0), "0");
  EXPECT_EQ(numberText(7), "7");
  EXPECT_EQ(numberText(-2), "-2");
  EXPECT_EQ(numberText(0.5), "0.5");
  EXPECT_EQ(numberText(10.75), "10.75");
}

TEST(Strings, Replaces)
{
  EXPECT_EQ(replaced("a,b,,c", ",", "; "), "a; b; ; c");
  EXPECT_EQ(replaced("abc", "x", "y"), "abc");
  EXPECT_EQ(replaced("abc", "", "y"), "abc");
}

TEST(Strings, ComparesWithoutCase)
{
  EXPECT_TRUE(sameAscii("TxtUkol", "txtukol"));
  EXPECT_FALSE(sameAscii("Ž", "ž"));
  EXPECT_FALSE(sameAscii("a", "ab"));
  EXPECT_TRUE(sameIgnoringCase("ŽLUŤ", "žluť"));
  EXPECT_TRUE(containsIgnoringCase("My Žluť.html", "ŽLUŤ"));
  EXPECT_FALSE(containsIgnoringCase("abc", "abcd"));
  EXPECT_TRUE(containsIgnoringCase("abc", ""));
}

TEST(Strings, FindsBytesOfCharacters)
{
  EXPECT_EQ(byteOffset("žluť", 0), 0u);
  EXPECT_EQ(byteOffset("žluť", 1), 2u);
  EXPECT_EQ(byteOffset("žluť", 99), 6u);
  EXPECT_EQ(characterSize("žl", 0), 2u);
  EXPECT_EQ(characterSize("žl", 2), 1u);
}

} // namespace
