#pragma once

#include <string_view>

namespace tarvelin
{

class Rows;

/// Binary search for a row that begins with `needle`, ignoring case, among the rows `first` to `last` of a sorted list.
/// Which of several is found depends on the halving. -1 when there is none. Failures are logged.
int BNajdi(int first, int last, std::string_view needle, const Rows& list);

/// The same for a row that is `needle` as a whole.
int BNajdi2(int first, int last, std::string_view needle, const Rows& list);

} // namespace tarvelin
