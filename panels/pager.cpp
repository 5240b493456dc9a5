#include "panels/pager.h"

#include <algorithm>
#include <string>

namespace tarvelin
{

namespace
{

void show(const Pager& pager, int current)
{
  pager.current = static_cast<std::int16_t>(current);
  pager.position.setCaption(std::to_string(current + 1) + "/" + std::to_string(pager.count));
  pager.previous.enable(current > 0);
  pager.next.enable(current < pager.count - 1);
}

} // namespace

void pageOn(const Pager& pager)
{
  show(pager, std::min(pager.current + 1, pager.count - 1));
}

void pageBack(const Pager& pager)
{
  show(pager, std::max(pager.current - 1, 0));
}

} // namespace tarvelin
