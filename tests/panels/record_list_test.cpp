// Adding to and removing from a list and the records behind it.

#include "core/forms/form.h"
#include "panels/record_list.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

namespace tarvelin
{

namespace
{

struct Records : testing::Test
{
  Form form{"form", "Form"};
  List list{&form, "list", List::Style::checkMarks};
  Array<std::string> records;
  std::int16_t count = 0;

  void add(const std::string& record) { records.at(addRow(list, records, count, "Item")) = record; }

  std::string content() const
  {
    std::string text;
    for (int i = 0; i < list.count(); ++i)
      text += list.text(i) + ":" + std::to_string(list.tag(i)) + ":" + records.at(list.tag(i)) + " ";
    return text + std::to_string(count) + "/" + std::to_string(records.bound());
  }
};

TEST_F(Records, GrowWithOneSpare)
{
  add("a");
  EXPECT_EQ(content(), "Item 1:0:a 1/1");
  add("b");
  EXPECT_EQ(content(), "Item 1:0:a Item 2:1:b 2/2");
}

TEST_F(Records, CloseUp)
{
  for (const char* const record : {"a", "b", "c", "d"})
    add(record);
  list.remove(1);
  closeGap(list, records, count, 1);
  EXPECT_EQ(content(), "Item 1:0:a Item 3:1:c Item 4:2:d 3/3");
  list.remove(2);
  closeGap(list, records, count, 2);
  EXPECT_EQ(content(), "Item 1:0:a Item 3:1:c 2/2");
  list.remove(0);
  closeGap(list, records, count, 0);
  list.remove(0);
  closeGap(list, records, count, 0);
  EXPECT_EQ(content(), "0/0");
}

TEST_F(Records, StopCountingAtTheHighestNumber)
{
  count = INT16_MAX - 1;
  addRow(list, records, count, "Item");
  EXPECT_EQ(list.text(0), "Item 32767");
  EXPECT_EQ(records.bound(), INT16_MAX);
  addRow(list, records, count, "Item");
  EXPECT_EQ(list.text(1), "Item 32767");
  EXPECT_EQ(count, INT16_MAX);
  EXPECT_EQ(records.bound(), INT16_MAX);
}

} // namespace

} // namespace tarvelin
