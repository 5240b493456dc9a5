#include "core/logged_steps.h"

#include "core/run_log.h"

namespace tarvelin
{

void LoggedSteps::log(const Failure& failure) const
{
  ZapisLog(m_line(failure));
}

} // namespace tarvelin
