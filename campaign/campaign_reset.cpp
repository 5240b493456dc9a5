#include "campaign/campaign_reset.h"

#include "core/attempt.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcampobr.h"
#include "core/forms/frmopen.h"
#include "core/identity_rows.h"
#include "core/shared.h"

namespace tarvelin
{

namespace
{

template <class... Records> void empty(Array<Records>&... arrays)
{
  (arrays.reset(), ...);
}

void resetStores()
{
  empty(shared.IdentityKampane, shared.Odmeny, shared.Tresty, shared.RadiaKampane, shared.HudbyKampane,
        shared.ZvukyKampane, shared.Kapitoly);
  for (std::int16_t* const count :
       {&shared.PocetIdentitKampane, &shared.AktualniIdentitaKampane, &shared.PocetOdmen, &shared.PocetTrestu,
        &shared.PocetRadiiKampane, &shared.PocetHudebKampane, &shared.PocetZvukuKampane, &shared.PocetTextuKampane,
        &shared.PocetMisi, &shared.AktualniKapitola, &shared.AktualniMise, &shared.PocetKapitol})
    *count = 0;
  shared.ZadnaUkoncovaci = -1;
  shared.KampanMod = 0;
  shared.VybranaMise = 0;
  for (std::string* const text : {&shared.CestaKampane, &shared.JmenoKampane, &shared.VybranaCesta,
                                  &shared.VybranySoubor, &shared.KlicKapitoly, &shared.KlicUzlu})
    text->clear();
}

void resetLists()
{
  clearIdentityRows(IdentitySide::campaign);
  showIdentityRows(); // the mission's come back
  for (List* const list : {&frmcamp3.awardlist, &frmcamp3.penaltylist})
    list->clear();
  frmcamp3.awardlimit.set("10");
  frmcamp3.penaltylimit.set("-10");
}

/// A step that is left in the middle of an entry is ready for a new one: the tree takes clicks again.
void resetTree()
{
  frmcamp4.campfiles.clear();
  frmcamp4.campfiles.enable(true);
  frmcamp4.cmdaddmission.enable(false);
  attempt([] { frmcamp4.cmdaddpart.setCaption(Texty(15)); });
  attempt([] { frmcamp4.cmdmissionedit.setCaption(Texty(17)); });
  for (Field* const field : std::initializer_list<Field*>{&frmcamp4.txtpartname, &frmcamp4.cmdne,
                                                          &frmcamp4.txtdalsimise, &frmcamp4.seznamakci})
    field->show(false);
}

void resetSounds()
{
  for (List* const list : {&frmcamp5.seznamhudby, &frmcamp5.seznamradia, &frmcamp5.seznamzvuku, &frmcamp5.seznamtextu})
    list->clear();
  for (Command* const command : {&frmcamp5.cmdodebrathudbu, &frmcamp5.cmdodebratradio, &frmcamp5.cmdodebratzvuk})
    command->enable(false);
}

void resetOverview()
{
  frmcampobr.imgnahled.clear();
  shared.ObrazekKampane.clear();
  Frmopen.ProKampan = false; // or the picture of a mission would become the next campaign's
}

} // namespace

void ResetKampan()
{
  resetStores();
  resetLists();
  resetTree();
  resetSounds();
  resetOverview();
}

} // namespace tarvelin
