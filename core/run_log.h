#pragma once

#include "platform/failure.h"

#include <string>
#include <string_view>

namespace tarvelin
{

/// Adds a text to the run log (frmload.log) as it stands; a line brings its own CR LF.
void ZapisLog(std::string_view text);

/// Adds a line with its CR LF.
void logLine(std::string_view line);

/// "number, description" of a failure, as most log lines end.
std::string failureText(const Failure& failure);

/// Saves the run log under a name made of the clock into \Bfdata\LogFiles; a failure is ignored.
void saveRunLog();

/// Puts the handlers of the log viewer on its fields.
void attachRunLog();

} // namespace tarvelin
