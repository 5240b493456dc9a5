#include "core/attempt.h"
#include "core/text_file.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <gtest/gtest.h>
#include <vector>

using namespace tarvelin;

namespace
{

std::vector<std::string> linesOf(std::string_view text)
{
  std::vector<std::string> lines;
  for (LineWalker walker(text); !walker.atEnd();)
    lines.emplace_back(walker.next());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(TextFile, LinesEndAtCrLfOrLfOrCr)
{
  EXPECT_EQ(linesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
  EXPECT_EQ(linesOf("a\r\n"), (Lines{"a"}));
  EXPECT_EQ(linesOf("\r\n\n\r"), (Lines{"", "", ""}));
  EXPECT_EQ(linesOf("\n\r"), (Lines{"", ""}));
  EXPECT_EQ(linesOf(""), Lines{});
  EXPECT_EQ(linesOf(std::string_view("a\0b\r\n", 5)), (Lines{std::string("a\0b", 3)}));
}

TEST(TextFile, BehindTheLastLineTheReadingFails)
{
  LineWalker walker("a");
  walker.next();
  EXPECT_TRUE(walker.atEnd());
  EXPECT_THROW(walker.next(), Failure);
}

TEST(TextFile, IsWrittenInTheCodePageWithOneMoreLineEnd)
{
  const test::Scratch scratch;
  const std::string path = platform::toProgram((scratch / "t.txt").string());
  writeText(path, "žluť\r\n€ ∞");
  EXPECT_EQ(test::readBytes(scratch / "t.txt"), "\x9Elu\x9D\r\n\x80 ?\r\n");
  LineReader reader(path);
  EXPECT_EQ(reader.next(), "žluť");
  EXPECT_EQ(reader.next(), "€ ?");
  EXPECT_TRUE(reader.atEnd());
}

} // namespace
