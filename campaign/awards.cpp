// Awards and penalties of a campaign: short missions that the game plays when the score passes a limit. Both are lists
// of like records, so both have the same handlers on fields of their own; only a penalty can end the campaign.
#include "campaign/awards.h"

#include "campaign/mission_choice.h"
#include "campaign/path_names.h"
#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmcamp3.h"
#include "core/messages.h"
#include "core/shared.h"
#include "core/strings.h"

namespace tarvelin
{

namespace
{

constexpr int rowsAtMost = 1000; // tested before a row comes in, so there can be one more

struct Scores
{
  List& list;
  Combo& island;
  Text& limit;
  Text& mission; ///< name of the folder for the chosen island
  Command& add;
  Command& remove;
  Command& pick;
  Array<ZaznamHodnoceni>& records;
  std::int16_t& count;
  std::string_view rowText;
  int limitStep;
};

const Scores awards{frmcamp3.awardlist,
                    frmcamp3.awardlend,
                    frmcamp3.awardlimit,
                    frmcamp3.txtcesta2,
                    frmcamp3.cmdaddA,
                    frmcamp3.cmddelA,
                    frmcamp3.Command2,
                    shared.Odmeny,
                    shared.PocetOdmen,
                    "Award ",
                    10};
const Scores penalties{frmcamp3.penaltylist,
                       frmcamp3.penaltyland,
                       frmcamp3.penaltylimit,
                       frmcamp3.txtcesta,
                       frmcamp3.cdmaddP,
                       frmcamp3.cmddelP,
                       frmcamp3.Command1,
                       shared.Tresty,
                       shared.PocetTrestu,
                       "Penalty ",
                       -10};

ZaznamHodnoceni& recordOf(const Scores& scores, int row)
{
  return scores.records.at(scores.list.tag(row));
}

ZaznamHodnoceni& highlighted(const Scores& scores)
{
  return recordOf(scores, scores.list.index());
}

void enableCommands(const Scores& scores, bool on)
{
  scores.pick.enable(on);
  scores.remove.enable(on);
}

void island_Click(const Scores& scores)
{
  attempt([&] { scores.mission.set(JmenoZCesty(highlighted(scores).Soubory.at(scores.island.index()))); });
}

void pick_Click(const Scores& scores)
{
  if (!chooseCampaignMission())
    return;
  for (int island = 0; island < shared.PocetOstrovu; ++island)
    attempt(
        [&]
        {
          if (shared.OstrovyJmena.at(island) != scores.island.text())
            return;
          highlighted(scores).Soubory.at(island) = shared.VybranaCesta;
          island_Click(scores);
        });
  // The limit is reset at each pick, one typed by hand too.
  scores.limit.set(std::to_string(scores.count * scores.limitStep));
  attempt([&] { highlighted(scores).Limit = toInteger(scores.limit.text()); });
}

void remove_Click(const Scores& scores)
{
  const int removed = scores.list.index();
  if (removed < 0)
    return;
  if (recordOf(scores, removed).Ukoncovaci)
    shared.ZadnaUkoncovaci = -1;
  scores.list.remove(removed);
  for (int row = removed; row < scores.list.count(); ++row)
    attempt(
        [&]
        {
          scores.records.at(row) = scores.records.at(row + 1);
          scores.list.setTag(row, row);
        });
  --scores.count;
  if (scores.count <= 0)
    enableCommands(scores, false);
  attempt([&] { scores.records.redimPreserve(scores.count); });
}

void add_Click(const Scores& scores)
{
  if (scores.list.count() > rowsAtMost)
    return tell("Nelze přidat další položku. Byl přečerpán rozsah 1000", Icon::critical);
  ++scores.count;
  scores.records.redimPreserve(scores.count);
  const int row = scores.list.add(std::string(scores.rowText) + std::to_string(scores.count));
  scores.list.setTag(row, row);
  scores.list.mark(row, true);
  attempt([&] { recordOf(scores, row).Soubory.redim(shared.PocetOstrovu); });
  scores.list.select(row); // the mission is picked for the new row
  pick_Click(scores);
  if (shared.VybranaCesta.empty())
  {
    scores.list.select(row);
    remove_Click(scores);
  }
  else
    enableCommands(scores, true);
}

void limit_Change(const Scores& scores)
{
  attempt([&] { highlighted(scores).Limit = toInteger(scores.limit.text()); });
}

void list_Click(const Scores& scores)
{
  if (&scores == &penalties)
    attempt([&] { frmcamp3.cmdukon.set(highlighted(scores).Ukoncovaci != 0); });
  attempt([&] { scores.limit.set(std::to_string(highlighted(scores).Limit)); });
  island_Click(scores);
}

bool isLowest(const ZaznamHodnoceni& penalty)
{
  for (int row = 0; row < penalties.list.count(); ++row)
    if (recordOf(penalties, row).Limit < penalty.Limit)
      return false;
  return true;
}

/// The penalty that may be made or unmade the terminating one: the one that is, or any while none is.
int changeablePenalty()
{
  int found = 0;
  for (int row = 0; row < penalties.list.count(); ++row)
    if (recordOf(penalties, row).Ukoncovaci)
    {
      found = row;
      shared.ZadnaUkoncovaci = 0;
    }
  return shared.ZadnaUkoncovaci ? penalties.list.index() : found;
}

void cmdukon_Click()
{
  const int row = penalties.list.index();
  if (row < 0)
    return;
  const bool on = frmcamp3.cmdukon.checked();
  ZaznamHodnoceni& penalty = recordOf(penalties, row);
  if (on && !isLowest(penalty))
  {
    tell(Hlasky(message::notLowestPenalty));
    frmcamp3.cmdukon.set(false);
    return;
  }
  if (row != changeablePenalty())
    return; // the box stays as the author left it
  penalty.Ukoncovaci = flagOf(on);
  shared.ZadnaUkoncovaci = flagOf(!on);
}

} // namespace

void attachAwards()
{
  for (const Scores* const scores : {&awards, &penalties})
  {
    scores->add.onClick = [scores] { attempt([&] { add_Click(*scores); }); };
    scores->remove.onClick = [scores] { attempt([&] { remove_Click(*scores); }); };
    scores->pick.onClick = [scores] { pick_Click(*scores); };
    scores->list.onClick = [scores] { list_Click(*scores); };
    scores->island.onClick = [scores] { island_Click(*scores); };
    scores->limit.onChange = [scores] { limit_Change(*scores); };
  }
  frmcamp3.cmdukon.onClick = [] { attempt(cmdukon_Click); };
  frmcamp3.onLoad = [] { shared.ZadnaUkoncovaci = -1; };
}

} // namespace tarvelin
