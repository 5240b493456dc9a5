#include "tools/mission_readme.h"

namespace tarvelin
{

void NactiReadme(const std::string&, RichText&) {}

} // namespace tarvelin
