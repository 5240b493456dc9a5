#include "tools/tips.h"

#include "core/attempt.h"
#include "core/forms/frmtips.h"
#include "core/numbers.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/files.h"

#include <algorithm>
#include <vector>

namespace tarvelin
{

namespace
{

/// The folder of the tips bears the name of the language pack without ".lng".
std::string tipFolder()
{
  const std::string& pack = shared.Nastaveni.SouborJazyka;
  const std::string file = mid(pack, inStrRev(pack, "\\") + 1);
  return programFile("\\Bfdata\\tips\\") + left(file, std::max(0, static_cast<int>(length(file)) - 4));
}

} // namespace

void NactiTip()
{
  std::int16_t& current = frmtips.Aktualni.value;
  const std::string folder = tipFolder();
  std::vector<std::string> files;
  attempt([&] { files = platform::listFiles(folder); });
  if (current < 1 || current > static_cast<int>(files.size()))
    current = 1;
  frmtips.WebBrowser1.navigate(files.empty() ? "" : folder + "\\" + files[static_cast<std::size_t>(current - 1)]);
  current = counted(current);
}

void attachTips()
{
  frmtips.onLoad = NactiTip;
  frmtips.Command1.onClick = [] { frmtips.hide(); };
  frmtips.Command2.onClick = NactiTip;
}

} // namespace tarvelin
