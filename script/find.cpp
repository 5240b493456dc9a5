#include "script/find.h"

#include "core/desk.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnajit.h"
#include "core/shared.h"
#include "core/strings.h"
#include "script/colouring.h"

#include <string>

namespace tarvelin
{

namespace
{

/// True for a byte of a letter, a digit or "_"; what is not ASCII counts as a letter.
constexpr bool inWord(char byte)
{
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_' ||
         static_cast<unsigned char>(byte) >= 0x80;
}

bool isWholeWord(std::string_view text, std::size_t at, std::size_t size)
{
  const std::size_t end = at + size;
  return (at == 0 || !inWord(text[at - 1])) && (end == text.size() || !inWord(text[end]));
}

/// Searches `text` as it stands, from byte `at` on.
std::size_t findBytes(std::string_view text, std::string_view needle, std::size_t at, bool wholeWord)
{
  at = text.find(needle, at);
  while (wholeWord && at != std::string_view::npos && !isWholeWord(text, at, needle.size()))
    at = text.find(needle, at + 1);
  return at;
}

void find()
{
  const FindOptions options{frmnajit.chkmv.checked(), frmnajit.chkcela.checked()};
  const auto hit = findText(frmmain.skript.text(), frmnajit.txthledane.text(),
                            static_cast<std::size_t>(frmnajit.pozice.value + 1), options);
  frmnajit.pozice = hit ? static_cast<std::int32_t>(*hit) : -1;
  frmnajit.cmdnahradit.enable(hit.has_value());
  if (!hit)
    return tell("Hledaný text nenalezen");
  frmmain.skript.select(*hit, frmnajit.txthledane.length());
  frmmain.show(); // takes the focus, so that the hit is seen
}

void cmddalsi_Click()
{
  frmnajit.pozice = frmnajit.pozice + 1; // find() adds one more: a hit right behind the last one is passed over
  find();
}

void cmdnahradit_Click()
{
  frmmain.skript.replaceSelection(frmnajit.txtnahradit.text());
  if (shared.Nastaveni.UkazovatBarvy != 0)
    ObarviSkript(frmmain.skript);
}

} // namespace

std::optional<std::size_t> findText(std::string_view text, std::string_view needle, std::size_t from,
                                    const FindOptions& options)
{
  if (!options.matchCase)
    return findText(upper(text), upper(needle), from, {true, options.wholeWord}); // as many characters as before
  if (needle.empty() || from > length(text))
    return std::nullopt;
  const std::size_t at = findBytes(text, needle, byteOffset(text, from), options.wholeWord);
  return at == std::string_view::npos ? std::nullopt : std::optional(length(text.substr(0, at)));
}

void attachFind()
{
  frmnajit.cmdnajdi.onClick = find;
  frmnajit.cmddalsi.onClick = cmddalsi_Click;
  frmnajit.cmdnahradit.onClick = cmdnahradit_Click;
  frmnajit.Command4.onClick = [] { frmnajit.hide(); };
}

} // namespace tarvelin
