// The campaign wizard: a chain of forms, each of which shows the next one and hides itself. No step is modal and
// nothing is lost on the way; the last step generates the whole campaign.
#include "campaign/wizard.h"

#include "campaign/campaign_reset.h"
#include "campaign/copying.h"
#include "campaign/description_writer.h"
#include "campaign/finish.h"
#include "campaign/overview.h"
#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/form2.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmcamp2.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcamp6.h"
#include "core/forms/frmcampobr.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopen2.h"
#include "core/messages.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/sqm_writer.h"
#include "mission/stringtable_writer.h"

namespace tarvelin
{

namespace
{

constexpr std::int16_t choosesFolder = 4;

void takeLives()
{
  attempt([] { shared.Zivoty = integerVal(frmcamp1.txtzivoty.text()); });
}

void frmcamp1_Load()
{
  attempt([] { frmcamp1.txtkampJmeno.set(Texty(74)); });
}

/// A new run begins with the folder of the language pack; name and lives are those of the last one.
void frmcamp1_Activate()
{
  if (shared.CestaKampane.empty())
    attempt([] { frmcamp1.txtkampcesta.set(Texty(75)); });
  shared.CestaKampane = frmcamp1.txtkampcesta.text();
  shared.JmenoKampane = frmcamp1.txtkampJmeno.text();
  takeLives();
}

void cmdadresar_Click()
{
  shared.RezimOtevreni = choosesFolder;
  shared.SlozkaKampane.clear();
  frmopen2.showModal();
  if (!shared.SlozkaKampane.empty())
    shared.CestaKampane = shared.SlozkaKampane;
  frmcamp1.txtkampcesta.set(shared.CestaKampane);
}

void goTo(Form& from, Form& to)
{
  to.show();
  from.hide();
}

void frmcamp1_cmdNext_Click()
{
  if (frmcamp1.txtkampcesta.empty())
    tell(Hlasky(message::noCampaignFolder));
  else if (frmcamp1.txtkampJmeno.empty())
    tell(Hlasky(message::noCampaignName));
  else
    goTo(frmcamp1, frmcamp2);
}

void frmcamp2_cmdnext_Click()
{
  shared.KampanMod = -1;
  goTo(frmcamp2, Form2);
}

/// Each step logs its own failures and does not stop the next one.
void generate()
{
  if (campaignIsCopied())
    return;
  frmcamp6.hide();
  const std::string folder = shared.CestaKampane + "\\" + shared.JmenoKampane + ".Eden\\";
  attempt([] { KopirujKampan(shared.CestaKampane); });
  attempt([&] { UlozKampanDescription(folder + "Description.ext"); });
  attempt([&] { UlozStringtable(folder + "Stringtable.csv", -1); });
  attempt([&] { UlozKampanOverview(folder + "Overview.html", frmcampobr.txtkampover.text()); });
  attempt([&] { UlozSqm(folder + "mission.sqm"); });
  showFinishedCampaign();
}

/// While a campaign is being copied the main window lives; its way into the wizard is closed.
void mnucampaignedit_Click()
{
  if (!campaignIsCopied())
    frmcamp1.show();
}

struct Step
{
  Form& form;
  Command& cancel;
};

const Step steps[] = {
    {frmcamp1, frmcamp1.cmdstorno}, {frmcamp2, frmcamp2.cmdstorno}, {frmcamp3, frmcamp3.cmdstorno},
    {frmcamp4, frmcamp4.cmdstorno}, {frmcamp5, frmcamp5.cmdstorno}, {frmcampobr, frmcampobr.cmdstorno},
    {frmcamp6, frmcamp6.cmdstorno},
};

struct Way
{
  Command& command;
  Form& from;
  Form& to;
};

const Way ways[] = {
    {frmcamp2.cmdPrev, frmcamp2, frmcamp1},     {frmcamp3.cmdnext, frmcamp3, frmcamp4},
    {frmcamp3.cmdPrev, frmcamp3, Form2},        {frmcamp4.cmddale, frmcamp4, frmcamp5},
    {frmcamp4.cmdPrev, frmcamp4, frmcamp3},     {frmcamp5.cmdnext, frmcamp5, frmcampobr},
    {frmcamp5.cmdPrev, frmcamp5, frmcamp4},     {frmcampobr.cmdnext, frmcampobr, frmcamp6},
    {frmcampobr.cmdPrev, frmcampobr, frmcamp5}, {frmcamp6.cmdPrev, frmcamp6, frmcamp5}, // past frmcampobr
};

} // namespace

void attachCampaignWizard()
{
  frmmain.mnucampaignedit.onClick = mnucampaignedit_Click;
  frmcamp1.onLoad = frmcamp1_Load;
  frmcamp1.onActivate = frmcamp1_Activate;
  frmcamp1.cmdadresar.onClick = cmdadresar_Click;
  frmcamp1.txtkampJmeno.onChange = [] { shared.JmenoKampane = frmcamp1.txtkampJmeno.text(); };
  frmcamp1.txtzivoty.onChange = takeLives;
  frmcamp1.cmdNext.onClick = frmcamp1_cmdNext_Click;
  frmcamp2.cmdnext.onClick = frmcamp2_cmdnext_Click;
  frmcamp6.cmdnext.onClick = generate;
  for (const Way& way : ways)
    way.command.onClick = [&way] { goTo(way.from, way.to); };
  for (const Step& step : steps)
    step.cancel.onClick = [&step]
    {
      ResetKampan();
      step.form.hide();
    };
}

} // namespace tarvelin
