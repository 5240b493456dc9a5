#pragma once

#include <string>

namespace tarvelin
{

class Combo;

/// Reads a catalogue of faces or voices, pairs of lines: code, display name. The names become rows of `combo`; with
/// `storeCodes` the codes go to KodyObliceju, each at the place of its row. Failures are logged.
void NactiObliceje(const std::string& file, Combo& combo, bool storeCodes);

/// Puts the words of the language pack into the identity form: the glasses, the row of the custom face at the end of
/// the faces, the suggested class name. The identities keep what they have.
void brejle();

/// Gives the identity on show a picture of its own as its face.
void setCustomFace(const std::string& path);

/// Puts the handlers of the identity form on its fields. They work on the mission's identities, with KampanMod on the
/// campaign's.
void attachIdentities();

} // namespace tarvelin
