#include "mission/overview_writer.h"

namespace tarvelin
{

void UlozOverview(const std::string&, const std::string&) {}

} // namespace tarvelin
