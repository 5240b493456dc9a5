#include "panels/debriefing.h"

#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/shared.h"
#include "panels/pager.h"
#include "panels/record_list.h"

#include <initializer_list>

namespace tarvelin
{

namespace
{

void frmdebrief_Load()
{
  frmdebrief.txtjmeno.set(Texty(86));
  frmdebrief.txtdebrief.set(Texty(87));
}

void cmddebrief_Click()
{
  frmdebrief.show();
}

void cmdOK_Click()
{
  frmdebrief.hide();
  frmmain.show();
}

void cmdpridat_Click()
{
  frmdebrief.PridavaKonec = true; // List1 keeps still
  const int added = addRow(frmdebrief.List1, shared.Konce, shared.PocetKoncu, Texty(121));
  attempt([&] { shared.Konce.at(added) = {frmdebrief.txtjmeno.text(), frmdebrief.txtdebrief.text()}; });
  frmdebrief.List1.mark(added, true);
  frmdebrief.txtjmeno.set({});
  frmdebrief.txtdebrief.set({});
  frmdebrief.PridavaKonec = false;
}

void cmdodebrat_Click()
{
  const int removed = frmdebrief.List1.index();
  if (attempt([&] { frmdebrief.List1.remove(removed); }))
    closeGap(frmdebrief.List1, shared.Konce, shared.PocetKoncu, removed);
}

void cmdsmazvse_Click()
{
  frmdebrief.List1.clear();
  shared.PocetKoncu = 0;
  shared.Konce.reset();
}

void List1_Click()
{
  if (frmdebrief.PridavaKonec || frmdebrief.List1.count() == 0)
    return;
  const auto end = []() -> const ZaznamKonce& { return shared.Konce.at(frmdebrief.List1.index()); };
  frmdebrief.txtdebrief.set({});
  attempt([&] { frmdebrief.txtdebrief.set(end().Text); });
  attempt([&] { frmdebrief.txtjmeno.set(end().Nadpis); });
}

void txtdebrief_Change()
{
  for (Command* const command : {&frmdebrief.cmdpridat, &frmdebrief.cmdodebrat, &frmdebrief.cmdsmazvse})
    command->enable(!frmdebrief.txtdebrief.empty());
}

const Pager sensors{shared.AktualniSenzor, shared.PocetSenzoru, frmdebrief.lblpocetkoncu, frmdebrief.cmdprev,
                    frmdebrief.cmdnext};

void showSensor()
{
  const auto sensor = []() -> const ZaznamSenzoru& { return shared.Senzory.at(shared.AktualniSenzor); };
  attempt([&] { frmdebrief.lbltyp.setCaption(sensor().Type); });
  attempt([&] { frmdebrief.lbltext.setCaption(sensor().Text); });
  attempt([&] { frmdebrief.lblpodminka.setCaption(sensor().Expcond); });
}

void cmdnext_Click()
{
  pageOn(sensors);
  showSensor();
}

void cmdprev_Click()
{
  pageBack(sensors);
  showSensor();
}

} // namespace

void attachDebriefing()
{
  frmmain.cmddebrief.onClick = cmddebrief_Click;
  frmdebrief.onLoad = frmdebrief_Load;
  frmdebrief.cmdOK.onClick = cmdOK_Click;
  frmdebrief.cmdpridat.onClick = cmdpridat_Click;
  frmdebrief.cmdodebrat.onClick = cmdodebrat_Click;
  frmdebrief.cmdsmazvse.onClick = cmdsmazvse_Click;
  frmdebrief.List1.onClick = List1_Click;
  frmdebrief.txtdebrief.onChange = txtdebrief_Change;
  frmdebrief.cmdnext.onClick = cmdnext_Click;
  frmdebrief.cmdprev.onClick = cmdprev_Click;
}

} // namespace tarvelin
