#include "mission/mission_reset.h"

#include "core/attempt.h"
#include "core/default_texts.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
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

void resetRecords()
{
  empty(shared.Znacky, shared.Senzory, shared.Ukoly, shared.UkolyZapad, shared.UkolyVychod, shared.UkolyPartyzani,
        shared.UkolyCivilisti, shared.Konce, shared.Radia, shared.Hudby, shared.Zvuky, shared.RadiaKampane,
        shared.HudbyKampane, shared.ZvukyKampane, shared.Identity, shared.CestySouboru);
  for (std::int16_t* const count :
       {&shared.PocetZnacek, &shared.AktualniZnacka, &shared.PocetSenzoru, &shared.AktualniSenzor, &shared.PocetUkolu,
        &shared.PocetUkoluZapad, &shared.PocetUkoluVychod, &shared.PocetUkoluPartyzani, &shared.PocetUkoluCivilisti,
        &shared.PocetKoncu, &shared.PocetRadii, &shared.PocetHudeb, &shared.PocetZvuku, &shared.PocetRadiiKampane,
        &shared.PocetHudebKampane, &shared.PocetZvukuKampane, &shared.PocetIdentit, &shared.AktualniIdentita,
        &shared.PocetSouboru})
    *count = 0;
  for (std::string* const text :
       {&shared.BrifingJmeno, &shared.BrifingPopis, &shared.Spojenci, &shared.Mesic, &shared.Den, &shared.Hodina,
        &shared.Minuta, &shared.Pocasi, &shared.Mlha, &shared.PredpovedPocasi, &shared.PredpovedMlhy})
    text->clear();
}

void resetTexts()
{
  for (List* const list : {&frmmain.seznamhudby, &frmmain.seznamradia, &frmmain.seznamzvuku, &frmmain.List1})
    list->clear();
  setMissionTexts();
  frmmain.txtcekat.set("10");
  frmmain.lbljmeno.setCaption("");
}

/// Behind the fields: they keep a default text for the side on show, and a briefing that is read would go on from it.
void resetSideTexts()
{
  for (std::string* const text :
       {&shared.PoznamkyZapad, &shared.PoznamkyVychod, &shared.PoznamkyPartyzani, &shared.PoznamkyCivilisti,
        &shared.PlanZapad, &shared.PlanVychod, &shared.PlanPartyzani, &shared.PlanCivilisti})
    text->clear();
}

void resetOtherForms()
{
  clearIdentityRows(IdentitySide::mission);
  frmdebrief.txtjmeno.set("");
  frmdebrief.txtdebrief.set("");
  frmdebrief.List1.clear();
}

void resetMissionFields()
{
  frmmain.Picnahled.clear();
  for (Field* const field : std::initializer_list<Field*>{
           &frmmain.lblDen, &frmmain.lblMesic, &frmmain.lblHodina, &frmmain.lblPocasi, &frmmain.lblPredpovedMlhy,
           &frmmain.lblMlha, &frmmain.lblPredpovedPocasi, &frmmain.lblMinuta, &frmmain.txtBrifingPopis,
           &frmmain.txtBrifingJmeno, &frmmain.txtSpojenci, &frmmain.lblJmenoZnacky, &frmmain.lbltypZnacky,
           &frmmain.lblPopisZnacky})
    field->setCaption("");
  frmmain.lblznackypocet.setCaption("0");
  frmmain.lblcisloznacky.setCaption("1");
  for (Check* const check : {&frmmain.respawn, &frmmain.Skore})
    check->set(false);
  for (Check* const check : {&frmmain.showMap, &frmmain.showCompass, &frmmain.showGPS, &frmmain.showNotepad,
                             &frmmain.showWatch, &frmmain.Debrifing})
    check->set(true);
  frmmain.minScore.set("0");
  frmmain.avgScore.set("3000");
  frmmain.maxScore.set("6000");
  frmmain.txtcekat.set("10");
}

} // namespace

void resetMission()
{
  resetRecords();
  resetTexts();
  resetSideTexts();
  resetOtherForms();
  resetMissionFields();
  frmmain.StranaBrifing = "";
  frmmain.StranaOverview = "";
  shared.JazykOverview.clear();
  shared.JazykBrifing.clear();
}

} // namespace tarvelin
