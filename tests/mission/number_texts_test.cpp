#include "mission/number_texts.h"
#include "platform/failure.h"

#include <gtest/gtest.h>
#include <limits>

namespace tarvelin
{

namespace
{

struct Case
{
  float value;
  const char* local; ///< with a comma
  const char* place;
  const char* colour;
};

constexpr Case cases[] = {
    {0.0F, "0", "0.0", "0.00"},
    {-0.0F, "0", "0.0", "0.00"},
    {0.25F, "0,25", "0.25", "0.25"},
    {0.5F, "0,5", "0.5", "0.5"},
    {1.0F, "1", "1.1", "1.00"},
    {1.5F, "1,5", "1.5", "1.5"},
    {2.0F, "2", "2.2", "2.00"},
    {10.75F, "10,75", "10.75", "10.75"},
    {-0.5F, "-0,5", "0.5", "0.5"}, // the sign is lost with the zero
    {-1.5F, "-1,5", "-1.5", "-1.5"},
    {-2.0F, "-2", "-2.-2", "-2.00"},
    {1020.0F, "1020", "1020.1020", "1020.00"},
    {50.0F, "50", "50.50", "50.00"},
    {0.255F, "0,255", "0.255", "0.255"},
    {1.02F, "1,02", "1.02", "1.02"},
    {0.001F, "0,001", "0.001", "0.001"},
    {1e-7F, "0,0000001", "0.0000001", "0.0000001"},
    {1.0F / 3.0F, "0,3333333", "0.3333333", "0.3333333"},
    {123456.789F, "123456,8", "123456.8", "123456.8"}, // seven digits
    {16777216.0F, "16777220", "16777220.16777220", "16777220.00"},
    {1e10F, "10000000000", "10000000000.10000000000", "10000000000.00"},
    {1.9999999F, "2", "1.2", "1.00"}, // seven digits are 2, the whole part is 1
};

TEST(NumberTexts, ThreeWays)
{
  for (const Case& c : cases)
  {
    SCOPED_TRACE(c.local);
    EXPECT_EQ(localText(c.value, ","), c.local);
    EXPECT_EQ(placeText(c.value), c.place);
    EXPECT_EQ(colourText(c.value), c.colour);
  }
}

TEST(NumberTexts, TheSeparatorIsTheLocales)
{
  EXPECT_EQ(localText(10.75F, "."), "10.75");
  EXPECT_EQ(localText(0.25F, "\u066B"), "0\u066B25");
}

TEST(NumberTexts, NoNumberIsAnOverflow)
{
  for (const float value : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::quiet_NaN()})
    for (const auto text : {placeText, colourText})
      try
      {
        text(value);
        ADD_FAILURE() << "no failure";
      }
      catch (const Failure& failure)
      {
        EXPECT_EQ(failure.number, 6);
      }
}

} // namespace

} // namespace tarvelin
