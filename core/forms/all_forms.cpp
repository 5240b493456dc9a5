#include "core/forms/all_forms.h"

#include "core/forms/form1.h"
#include "core/forms/form2.h"
#include "core/forms/form3.h"
#include "core/forms/form4.h"
#include "core/forms/frmabout.h"
#include "core/forms/frmabout2.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmcamp2.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcamp6.h"
#include "core/forms/frmcamp7.h"
#include "core/forms/frmcampobr.h"
#include "core/forms/frmcopy.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmeditsetup.h"
#include "core/forms/frmload.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnactizvuky.h"
#include "core/forms/frmnahled.h"
#include "core/forms/frmnajit.h"
#include "core/forms/frmopen.h"
#include "core/forms/frmopen2.h"
#include "core/forms/frmopenmission.h"
#include "core/forms/frmrejstrik.h"
#include "core/forms/frmsettings.h"
#include "core/forms/frmstart.h"
#include "core/forms/frmtips.h"
#include "core/forms/tmpfrm.h"
#include "core/strings.h"

#include <tuple>

namespace tarvelin
{
namespace
{

auto everyForm()
{
  return std::tie(frmmain, frmstart, Form3, tmpfrm, frmload, frmloadsite, frmopenmission, Frmopen, frmnahled,
                  frmdebrief, frmnactizvuky, Form1, frmopen2, Form2, frmdalsinast, frmrejstrik, frmnajit, frmeditsetup,
                  frmcamp1, frmcamp2, frmcamp3, frmcamp4, frmcamp5, frmcampobr, frmcamp6, frmcamp7, frmcopy,
                  frmsettings, frmtips, Form4, frmabout2, frmabout);
}

template <class T> void renew(T& form)
{
  std::destroy_at(&form);
  std::construct_at(&form);
}

} // namespace

const std::vector<Form*>& allForms()
{
  static const std::vector<Form*> forms =
      std::apply([](auto&... form) { return std::vector<Form*>{&form...}; }, everyForm());
  return forms;
}

Form* findForm(std::string_view name)
{
  for (Form* form : allForms())
    if (sameAscii(form->name(), name))
      return form;
  return nullptr;
}

void renewForms()
{
  std::apply([](auto&... form) { (renew(form), ...); }, everyForm());
}

} // namespace tarvelin
