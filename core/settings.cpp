#include "core/settings.h"

#include "core/attempt.h"
#include "core/binary_file.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/files.h"

#include <type_traits>

namespace tarvelin
{

namespace
{

constexpr std::size_t paddingBeforeFontColour = 2;

struct SettingsWriter
{
  BinaryWriter& file;

  void operator()(std::string_view, const auto& member) const { file.put(member); }

  void operator()(std::string_view, const Array<ZaznamPisma>& fonts) const
  {
    for (int i = 0; i <= fonts.bound(); ++i)
      ZaznamPisma::members(fonts.at(i),
                           [this](std::string_view, const auto& member)
                           {
                             if constexpr (std::is_same_v<std::decay_t<decltype(member)>, Colour>)
                               file.pad(paddingBeforeFontColour);
                             file.put(member);
                           });
  }
};

struct SettingsReader
{
  BinaryReader& file;

  void operator()(std::string_view, auto& member) const { file.get(member); }

  void operator()(std::string_view, Array<ZaznamPisma>& fonts) const
  {
    for (int i = 0; i <= fonts.bound(); ++i)
      ZaznamPisma::members(fonts.at(i),
                           [this](std::string_view, auto& member)
                           {
                             if constexpr (std::is_same_v<std::decay_t<decltype(member)>, Colour>)
                               file.skip(paddingBeforeFontColour);
                             file.get(member);
                           });
  }
};

} // namespace

void UlozNastaveni(std::string_view path)
{
  BinaryWriter file;
  ZaznamNastaveni::members(std::as_const(shared.Nastaveni), SettingsWriter{file});
  attempt([&] { platform::writeFile(path, file.bytes()); },
          [&](const Failure& failure)
          {
            ZapisLog("Nastala chyba při ukládání nastavení do: " + std::string(path) + ", " +
                     std::to_string(failure.number) + failure.description + std::string(crlf));
          });
}

void NactiNastaveni(std::string_view path)
{
  shared.Nastaveni = {};
  BinaryReader file(platform::readFile(path));
  ZaznamNastaveni::members(shared.Nastaveni, SettingsReader{file});
}

void setDefaultSettings()
{
  ZaznamNastaveni& set = shared.Nastaveni;
  set.FunkceBarva = 0xFF0000;
  set.FunkceTucne = -1;
  set.KomentarBarva = 0x00FF00;
  set.KomentarKurziva = -1;
  set.Konst1Barva = 0x0040C0;
  set.Konst1Tucne = -1;
  set.Konst2Barva = 0x404040;
  set.Konst2Tucne = -1;
  set.OperatorBarva = 0x0000FF;
  set.VybaveniBarva = 0x0080FF;
  set.CestaPbo = programFile("\\tarvpbou.exe");
  set.UkazovatBarvy = -1;
  set.UkazovatTipy = -1;
}

} // namespace tarvelin
