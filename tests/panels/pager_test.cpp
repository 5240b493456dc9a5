// Paging: what is on show, and which way one can go.

#include "core/forms/form.h"
#include "panels/pager.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace tarvelin
{

namespace
{

struct Paging : testing::Test
{
  Form form{"form", "Form"};
  Label position{&form, "position"};
  Command previous{&form, "previous"};
  Command next{&form, "next"};
  std::int16_t current = 0;
  std::int16_t count = 0;
  Pager pager{current, count, position, previous, next};

  std::string shown() const
  {
    return (previous.enabled() ? "<" : "") + position.caption() + (next.enabled() ? ">" : "");
  }
};

TEST_F(Paging, ThroughThree)
{
  count = 3;
  pageOn(pager);
  EXPECT_EQ(shown(), "<2/3>");
  pageOn(pager);
  EXPECT_EQ(shown(), "<3/3");
  pageOn(pager);
  EXPECT_EQ(shown(), "<3/3");
  EXPECT_EQ(current, 2);
  pageBack(pager);
  EXPECT_EQ(shown(), "<2/3>");
  pageBack(pager);
  EXPECT_EQ(shown(), "1/3>");
  pageBack(pager);
  EXPECT_EQ(shown(), "1/3>");
  EXPECT_EQ(current, 0);
}

TEST_F(Paging, ThroughNothing)
{
  pageOn(pager);
  EXPECT_EQ(current, -1);
  EXPECT_EQ(shown(), "0/0");
  pageBack(pager);
  EXPECT_EQ(current, 0);
  EXPECT_EQ(shown(), "1/0");
}

TEST_F(Paging, ToTheHighestNumber)
{
  count = INT16_MAX;
  current = INT16_MAX - 1;
  pageOn(pager);
  EXPECT_EQ(current, INT16_MAX - 1);
  EXPECT_EQ(shown(), "<32767/32767");
}

} // namespace

} // namespace tarvelin
