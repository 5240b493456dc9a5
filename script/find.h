#pragma once

#include <optional>
#include <string_view>

namespace tarvelin
{

/// How a text is searched for.
struct FindOptions
{
  bool matchCase = false;
  bool wholeWord = false; ///< no letter, digit or "_" beside the hit
};

/// Place of the first `needle` in `text` at or behind character `from`, in characters from 0. Nothing when there is
/// none or the needle is empty.
std::optional<std::size_t> findText(std::string_view text, std::string_view needle, std::size_t from,
                                    const FindOptions& options);

/// Puts the handlers of find and replace on their fields.
void attachFind();

} // namespace tarvelin
