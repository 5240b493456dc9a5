#pragma once

#include "core/array.h"
#include "core/attempt.h"
#include "core/forms/rows.h"

#include <initializer_list>
#include <string_view>

// What the panels do with a list and the records behind it.
namespace tarvelin
{

/// Adds a row with its check mark set.
inline void addMarked(List& list, std::string_view text)
{
  list.mark(list.add(text), true);
}

/// Closes the gap of a removed row: the records from `index` to `last` each take their successor. With -1 (nothing was
/// highlighted) the first one is lost although its row stays; copies that fail are skipped.
template <class Record> void closeGap(Array<Record>& records, int index, int last)
{
  for (int i = index; i <= last; ++i)
    attempt([&] { records.at(i) = records.at(i + 1); });
}

template <class Fields> void enableAll(const Fields& fields, bool on)
{
  for (Field* const field : fields)
    field->enable(on);
}

} // namespace tarvelin
