#include "tools/about.h"

#include "core/forms/frmabout.h"
#include "core/forms/frmabout2.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

void frmabout2_Activate()
{
  frmabout2.lblcesta.setCaption(shared.CestaHry);
  frmabout2.lblCD.setCaption(shared.MechanikaCD);
}

} // namespace

void attachAbout()
{
  frmabout2.onActivate = frmabout2_Activate;
  frmabout2.Command1.onClick = [] { frmabout2.hide(); };
  frmmain.mnuabout2.onClick = [] { frmabout.show(); };
  frmmain.mnuaboutflashpoint.onClick = [] { frmabout2.show(); };
}

} // namespace tarvelin
