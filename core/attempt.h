#pragma once

#include "platform/failure.h"

#include <utility>

namespace tarvelin
{

/// Runs one step; a step that fails is skipped. False when it failed.
template <class Step> bool attempt(Step&& step)
{
  try
  {
    std::forward<Step>(step)();
    return true;
  }
  catch (const Failure&)
  {
    return false;
  }
}

/// Runs one step; one that fails is skipped after `report(failure)`. False when it failed.
template <class Step, class Report> bool attempt(Step&& step, Report&& report)
{
  try
  {
    std::forward<Step>(step)();
    return true;
  }
  catch (const Failure& failure)
  {
    std::forward<Report>(report)(failure);
    return false;
  }
}

} // namespace tarvelin
