#pragma once

#include "core/attempt.h"

#include <functional>
#include <string>
#include <utility>

namespace tarvelin
{

/// Runs the steps of a reader or writer one by one: a step that fails adds a line to the run log and is skipped.
class LoggedSteps
{
public:
  /// The line for a failure, with its CR LF.
  using Line = std::function<std::string(const Failure&)>;

  explicit LoggedSteps(Line line) : m_line(std::move(line)) {}

  /// False when the step failed.
  template <class Step> bool operator()(Step&& step) const
  {
    return attempt(std::forward<Step>(step), [this](const Failure& failure) { log(failure); });
  }

private:
  void log(const Failure& failure) const;

  Line m_line;
};

} // namespace tarvelin
