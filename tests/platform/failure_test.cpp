#include "platform/failure.h"

#include <gtest/gtest.h>

namespace tarvelin
{

namespace
{

struct Words
{
  int number;
  const char* text;
};

constexpr Words words[] = {
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {13, "Type mismatch"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {55, "File already open"},
    {57, "Device I/O error"},
    {58, "File already exists"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {67, "Too many files"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {71, "Disk not ready"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {91, "Object variable or With block variable not set"},
    {321, "Invalid file format"},
    {380, "Invalid property value"},
    {481, "Invalid picture"},
};

TEST(Failure, HasTheNumberAndTheWordsThatUsersKnow)
{
  for (const Words& row : words)
  {
    const Failure failure(static_cast<Fault>(row.number));
    EXPECT_EQ(failure.number, row.number);
    EXPECT_EQ(failure.description, row.text);
    EXPECT_STREQ(failure.what(), row.text);
  }
}

TEST(Failure, AnUnknownNumberHasWordsToo)
{
  EXPECT_EQ(Failure(static_cast<Fault>(9999)).description, "Application-defined or object-defined error");
}

} // namespace

} // namespace tarvelin
