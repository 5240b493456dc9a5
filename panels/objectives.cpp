#include "panels/objectives.h"

#include "core/forms/frmmain.h"
#include "core/strings.h"
#include "panels/chosen_side.h"
#include "panels/record_list.h"

#include <initializer_list>

namespace tarvelin
{

namespace
{

List& list = frmmain.List1;

void cmdpridat_Click()
{
  const ObjectiveStore* const objectives = objectivesOnShow();
  if (!objectives)
    return;
  frmmain.PridavaUkol = true; // List1 keeps still
  const int added = addRow(list, objectives->records, objectives->count, Texty(112));
  attempt([&] { objectives->records.at(added) = {frmmain.txtUkol.text(), -1}; });
  list.mark(added, true);
  frmmain.txtUkol.set({});
  frmmain.PridavaUkol = false;
}

void cmdodebrat_Click()
{
  const int removed = list.index();
  if (!attempt([&] { list.remove(removed); }))
    return;
  if (const ObjectiveStore* const objectives = objectivesOnShow())
    closeGap(list, objectives->records, objectives->count, removed);
}

void cmdsmazvse_Click()
{
  if (!frmmain.chkvicestran.checked())
  {
    list.clear();
    shared.PocetUkolu = 0;
    shared.Ukoly.reset();
    return;
  }
  // The sides' Czech names, not those of the language pack: with another pack nothing is deleted.
  const std::string name = upper(frmmain.strany.text());
  for (const Side& side : sides)
    if (name == side.czechName)
    {
      list.clear();
      side.objectives.count = 0;
    }
}

void cmdsmaztext_Click()
{
  frmmain.txtUkol.set({});
}

void List1_Click()
{
  if (frmmain.PridavaUkol || list.count() == 0)
    return;
  const ObjectiveStore* const objectives = objectivesOnShow();
  if (!objectives)
    return;
  frmmain.txtUkol.set({});
  attempt([&] { frmmain.txtUkol.set(objectives->records.at(list.index()).Text); });
  attempt([&] { objectives->records.at(list.index()).Pouzit = flagOf(list.marked(list.index())); });
}

void txtUkol_Change()
{
  for (Command* const command : {&frmmain.cmdpridat, &frmmain.cmdodebrat, &frmmain.cmdsmazvse})
    command->enable(!frmmain.txtUkol.empty());
}

} // namespace

void attachObjectives()
{
  frmmain.cmdpridat.onClick = cmdpridat_Click;
  frmmain.cmdodebrat.onClick = cmdodebrat_Click;
  frmmain.cmdsmazvse.onClick = cmdsmazvse_Click;
  frmmain.cmdsmaztext.onClick = cmdsmaztext_Click;
  list.onClick = List1_Click;
  frmmain.txtUkol.onChange = txtUkol_Change;
}

} // namespace tarvelin
