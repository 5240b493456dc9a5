#include "core/exit.h"

#include "core/attempt.h"
#include "core/forms/all_forms.h"
#include "core/forms/form3.h"
#include "core/forms/frmmain.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/settings.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/clock.h"

namespace tarvelin
{

namespace
{

bool ended = false;

} // namespace

void exitProgram()
{
  if (ended || !frmmain.loaded()) // never started: nothing to save over the user's settings
    return;
  frmmain.hide();
  Form3.setCaption(Texty(51));
  Form3.Label1.setCaption(Texty(52));
  attempt([] { Form3.show(); });
  Form3.refresh();
  UlozNastaveni(programFile("\\Tarvinfo.cfg"));
  ZapisLog("Konec programu: " + platform::dateText() + ", " + platform::timeText() + std::string(crlf));
  saveRunLog();
  for (Form* const form : allForms())
    if (form != &Form3)
      form->unload();
  Form3.unload();
  ended = true;
}

bool programEnded()
{
  return ended;
}

void forgetEnd()
{
  ended = false;
}

} // namespace tarvelin
