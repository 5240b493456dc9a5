#include "host/lua_procs.h"

#include "campaign/campaign_reset.h"
#include "campaign/copying.h"
#include "campaign/description_writer.h"
#include "campaign/overview.h"
#include "campaign/path_names.h"
#include "campaign/tree.h"
#include "core/folder_scan.h"
#include "core/islands.h"
#include "core/language.h"
#include "core/run_log.h"
#include "core/settings.h"
#include "core/strings.h"
#include "host/procedure_call.h"
#include "mission/briefing_reader.h"
#include "mission/briefing_writer.h"
#include "mission/create_mission.h"
#include "mission/description_reader.h"
#include "mission/description_writer.h"
#include "mission/open_mission.h"
#include "mission/overview_reader.h"
#include "mission/overview_writer.h"
#include "mission/sqm_reader.h"
#include "mission/sqm_writer.h"
#include "mission/stringtable_writer.h"
#include "panels/environment_sounds.h"
#include "panels/identities.h"
#include "panels/picture_picker.h"
#include "panels/sound_copy.h"
#include "panels/sound_tools.h"
#include "panels/sounds.h"
#include "panels/weapons.h"
#include "script/colouring.h"
#include "script/editor.h"
#include "script/word_search.h"
#include "tools/association.h"
#include "tools/mission_readme.h"
#include "tools/programs_bar.h"
#include "tools/tips.h"

namespace tarvelin::host
{

namespace
{

std::string lastFailure;

/// A procedure's failure is an error that the script may catch; one that it does not catch ends the program.
template <auto procedure> int procedureCall(lua_State* lua)
{
  try
  {
    return called<procedure>(lua);
  }
  catch (const Failure& failure)
  {
    lastFailure = runTimeError(failure);
    throw;
  }
}

template <auto procedure> constexpr luaL_Reg entry(const char* name)
{
  return {name, guarded<procedureCall<procedure>>};
}

constexpr luaL_Reg procedures[] = {
    entry<AddonyDoTextu>("AddonyDoTextu"),
    entry<Akce>("Akce"),
    entry<Asociuj>("Asociuj"),
    entry<BNajdi>("BNajdi"),
    entry<BNajdi2>("BNajdi2"),
    entry<BezUvozovek>("BezUvozovek"),
    entry<CisloZKlice>("CisloZKlice"),
    entry<CtiKlic>("CtiKlic"),
    entry<DejJmenoSouboru>("DejJmenoSouboru"),
    entry<FiltrujCislo>("FiltrujCislo"),
    entry<HodnotaRadku>("HodnotaRadku"),
    entry<Jazyky>("Jazyky"),
    entry<Jazyky2>("Jazyky2"),
    entry<JmenoZCesty>("JmenoZCesty"),
    entry<KopirujKampan>("KopirujKampan"),
    entry<KopirujSlozku>("KopirujSlozku"),
    entry<KopirujZvuky>("KopirujZvuky"),
    entry<NactiAddony>("NactiAddony"),
    entry<LoadAndSaveIcons>("LoadAndSaveIcons"),
    entry<LoadPrograms>("LoadPrograms"),
    entry<MakeProgramBar>("MakeProgramBar"),
    entry<NactiBriefing>("NactiBriefing"),
    entry<NactiDescription>("NactiDescription"),
    entry<NactiJazyk>("NactiJazyk"),
    entry<NactiNastaveni>("NactiNastaveni"),
    entry<NactiObliceje>("NactiObliceje"),
    entry<NactiObrazek>("NactiObrazek"),
    entry<NactiOstrovy>("NactiOstrovy"),
    entry<NactiOverview>("NactiOverview"),
    entry<NactiReadme>("NactiReadme"),
    entry<NactiSkript>("NactiSkript"),
    entry<NactiSoubory>("NactiSoubory"),
    entry<NactiSqm>("NactiSqm"),
    entry<NactiStranky>("NactiStranky"),
    entry<NactiTip>("NactiTip"),
    entry<ObarviSkript>("ObarviSkript"),
    entry<PrecislujKapitoly>("PrecislujKapitoly"),
    entry<PrecislujMise>("PrecislujMise"),
    entry<ResetKampan>("ResetKampan"),
    entry<SlozkaSouboru>("SlozkaSouboru"),
    entry<SpocitejMise>("SpocitejMise"),
    entry<SpocitejSoubory>("SpocitejSoubory"),
    entry<Tlacitka>("Tlacitka"),
    entry<SpustAkci>("SpustAkci"),
    entry<UlozBriefing>("UlozBriefing"),
    entry<UlozDescription>("UlozDescription"),
    entry<UlozKampanDescription>("UlozKampanDescription"),
    entry<UlozKampanOverview>("UlozKampanOverview"),
    entry<UlozNastaveni>("UlozNastaveni"),
    entry<UlozOverview>("UlozOverview"),
    entry<UlozSqm>("UlozSqm"),
    entry<UlozStringtable>("UlozStringtable"),
    entry<UlozText>("UlozText"),
    entry<UlozitConfig>("UlozitConfig"),
    entry<ZapisLog>("ZapisLog"),
    entry<ZkontrolujPrikazovyRadek>("ZkontrolujPrikazovyRadek"),
    entry<createBriefing>("createBriefing"),
    entry<createDescription>("createDescription"),
    entry<createOverview>("createOverview"),
    entry<brejle>("brejle"),
    entry<ZrusAsociaci>("ZrusAsociaci"),
    {nullptr, nullptr},
};

int missing(lua_State* lua)
{
  throw ScriptError("no procedure " + toText(lua, 2));
}

} // namespace

bool isProcedureFailure(std::string_view message)
{
  return !lastFailure.empty() && message == lastFailure;
}

void openProcedures(lua_State* lua)
{
  luaL_newlib(lua, procedures);
  lua_newtable(lua);
  lua_pushcfunction(lua, guarded<missing>);
  lua_setfield(lua, -2, "__index");
  lua_setmetatable(lua, -2);
  lua_setglobal(lua, "proc");
}

} // namespace tarvelin::host
