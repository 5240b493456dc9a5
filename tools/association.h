#pragma once

#include <cstdint>
#include <string>

namespace tarvelin
{

/// Makes this program the handler of mission files (.sqm), with the icon in IkonaAsociace. Boxes tell what could not be
/// done and what was.
void Asociuj();

/// Takes the association away; asks before it takes away that of another program.
void ZrusAsociaci();

/// A string value of the registry ("" for a key's default). `root` is the number of a root key: 0x80000000 classes,
/// 0x80000001 the user, 0x80000002 the machine. A box tells what could not be read; the result is then empty.
std::string CtiKlic(std::int64_t root, const std::string& key, const std::string& value);

/// Puts the handlers of the association on their fields.
void attachAssociation();

} // namespace tarvelin
