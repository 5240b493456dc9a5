#include "core/array.h"
#include "core/attempt.h"
#include "core/numbers.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace tarvelin;

namespace
{

int failureOf(auto action)
{
  int number = 0;
  attempt(action, [&](const Failure& failure) { number = failure.number; });
  return number;
}

TEST(Array, StartsNeverDimensioned)
{
  Array<std::string> array;
  EXPECT_EQ(array.bound(), -1);
  EXPECT_FALSE(array.dimensioned());
  EXPECT_EQ(failureOf([&] { (void)array.at(0); }), 9);
}

TEST(Array, KeepsOrDropsItsContents)
{
  Array<std::string> array;
  array.redim(1);
  array.at(1) = "x";
  array.redimPreserve(3);
  EXPECT_EQ(array.bound(), 3);
  EXPECT_EQ(array.at(1), "x");
  EXPECT_EQ(array.at(3), "");
  array.redimPreserve(0);
  array.redimPreserve(1);
  EXPECT_EQ(array.at(1), "");
  array.at(0) = "y";
  array.redim(0);
  EXPECT_EQ(array.at(0), "");
  array.reset();
  EXPECT_EQ(array.bound(), 0);
  array.erase();
  EXPECT_EQ(array.bound(), -1);
}

TEST(Array, ChecksItsBounds)
{
  Array<int> array;
  array.redim(2);
  EXPECT_EQ(failureOf([&] { array.at(3) = 1; }), 9);
  EXPECT_EQ(failureOf([&] { array.at(-1) = 1; }), 9);
  EXPECT_EQ(failureOf([&] { array.redim(-1); }), 9);
  EXPECT_EQ(failureOf([&] { array.redimPreserve(-5); }), 9);
  EXPECT_EQ(array.bound(), 2);
}

TEST(Numbers, CountsOverflow)
{
  EXPECT_EQ(counted(32766), 32767);
  EXPECT_EQ(failureOf([] { (void)counted(32767); }), 6);
  EXPECT_EQ(failureOf([] { (void)counted(-32768, -1); }), 6);
  EXPECT_EQ(failureOf([] { (void)toInt16(1e30); }), 6);
  EXPECT_EQ(failureOf([] { (void)toInt16(std::numeric_limits<double>::quiet_NaN()); }), 6);
  EXPECT_EQ(flagOf(true), -1);
  EXPECT_EQ(flagOf(false), 0);
}

TEST(Attempt, SkipsAFailingStepAndGoesOn)
{
  std::string told;
  EXPECT_TRUE(attempt([] {}));
  EXPECT_FALSE(attempt([] { throw Failure(Fault::diskFull); }));
  EXPECT_FALSE(attempt([] { throw Failure(Fault::diskFull); },
                       [&](const Failure& failure) { told = std::to_string(failure.number) + failure.description; }));
  EXPECT_EQ(told, "61Disk full");
  EXPECT_THROW(attempt([] { throw std::string("something else"); }), std::string);
}

} // namespace
