#pragma once

#include "core/array.h"
#include "core/attempt.h"
#include "core/forms/rows.h"
#include "core/numbers.h"

#include <cstdint>
#include <string>
#include <string_view>

// A list whose rows carry the index of their record, and the array of the records with one spare element behind the
// last. The labels of the rows are numbered when they are added and keep their numbers.
namespace tarvelin
{

/// Adds a row "LABEL N" and room for its record. Gives the index of both.
template <class Record> int addRow(List& list, Array<Record>& records, std::int16_t& count, std::string_view label)
{
  attempt([&] { count = counted(count); });
  list.add(std::string(label) + " " + std::to_string(count));
  const int newest = list.newest();
  list.setTag(newest, newest);
  attempt([&] { records.redimPreserve(count); });
  return newest;
}

/// Takes record `removed` out, whose row is gone already: the records behind it move up, and so do the tags.
template <class Record> void closeGap(List& list, Array<Record>& records, std::int16_t& count, int removed)
{
  for (int i = removed; i < count; ++i)
  {
    attempt([&] { records.at(i) = records.at(i + 1); });
    attempt([&] { list.setTag(i, i); }); // the last one has no row any more
  }
  attempt([&] { count = counted(count, -1); });
  attempt([&] { records.redimPreserve(count); });
}

} // namespace tarvelin
