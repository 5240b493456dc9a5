#pragma once

namespace tarvelin::message
{

// Places of the messages in the language packs (Hlasky).
inline constexpr int noSoundChosen = 1;       ///< a sound tool without a file
inline constexpr int copySlow[] = {2, 3, 4};  ///< a sound does not reach the tools' folder, whose name follows
inline constexpr int logsDeleted = 5;         ///< behind the number of deleted log files
inline constexpr int noCampaignFolder = 6;    ///< the campaign has no folder
inline constexpr int noCampaignName = 7;      ///< the campaign has no name
inline constexpr int languageInUse = 8;       ///< the chosen language is the one in use
inline constexpr int chapterLink = 9;         ///< a chapter cannot lead to a mission
inline constexpr int missionLink = 10;        ///< a mission cannot lead to a chapter
inline constexpr int notLowestPenalty = 11;   ///< only the penalty of the lowest limit ends the campaign
inline constexpr int deleteChapter = 12;      ///< question before a chapter is deleted
inline constexpr int noPboUtility = 13;       ///< the settings have no PBO utility
inline constexpr int noMissionOpen = 14;      ///< a command that needs an open mission
inline constexpr int copySlowEnd = 15;        ///< behind the name of the tools' folder
inline constexpr int associated = 16;         ///< the association was made, before its keys
inline constexpr int foreignAssociation = 17; ///< question: remove the association of another program?
inline constexpr int keyNotWritten = 18;      ///< before the key
inline constexpr int keyNotDeleted = 19;      ///< before the key
inline constexpr int keyUnreadable = 20;      ///< before a key that cannot be opened; question when it exists already
inline constexpr int valueUnreadable = 21;    ///< before the key
inline constexpr int previewLeft = 22;        ///< the preview left a file that is being replaced
inline constexpr int editorMissing = 23;      ///< behind the path of the sibling editor

} // namespace tarvelin::message
