#include "platform/codepage.h"

#include "platform/linux/environment.h"

namespace tarvelin::platform
{

int codePage()
{
  static const int page = codePageOfLocale(localeName("LC_CTYPE"));
  return page;
}

} // namespace tarvelin::platform
