#include "panels/sound_choice.h"

#include "core/attempt.h"
#include "core/forms/frmopen2.h"
#include "core/forms/text.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

constexpr std::int16_t choosesSound = 8;

} // namespace

void chooseSound(Text& box)
{
  shared.RezimOtevreni = choosesSound;
  attempt([] { frmopen2.showModal(); });
  const std::string& folder = frmopen2.Slozka;
  const std::string& file = frmopen2.Soubor;
  if (!folder.empty() && !file.empty())
    box.set(folder + "\\" + file);
}

} // namespace tarvelin
