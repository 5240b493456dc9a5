#include "mission/overview_reader.h"

namespace tarvelin
{

void NactiOverview(const std::string&, Text&) {}

} // namespace tarvelin
