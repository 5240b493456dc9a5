#pragma once

namespace tarvelin
{

/// Number of missions of a chapter (from 1), counted in the tree. A chapter's key is searched for as a text, so those
/// of PART10 to PART19 count for PART1 as well; the bounds of the arrays go by this count.
int SpocitejMise(int chapter);

/// Lowers the numbers of all chapters above `chapter` in the keys of the tree, with those of their missions. The texts
/// of the nodes keep theirs.
void PrecislujKapitoly(int chapter);

/// Lowers the numbers of the missions above `mission` in one chapter.
void PrecislujMise(int chapter, int mission);

/// Puts the handlers of the chapters and missions on their fields.
void attachCampaignTree();

} // namespace tarvelin
