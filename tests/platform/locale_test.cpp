#include "platform/clock.h"
#include "platform/locale.h"
#include "tests/platform/scratch.h"

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>

namespace tarvelin::platform
{

namespace
{

using tests::Variable;

TEST(Locale, TheSeparatorIsAPointWithoutALocale)
{
  for (const char* name : {"C", "POSIX", "C.UTF-8", "xx_NONE.UTF-8"})
  {
    const Variable locale("LC_ALL", name);
    EXPECT_EQ(decimalSeparator(), ".") << name;
  }
}

struct LocaleLanguage
{
  const char* locale;
  const char* language;
};

constexpr LocaleLanguage localeLanguages[] = {
    {"cs_CZ.UTF-8", "cs"}, {"CS_CZ", "cs"}, {"de", "de"},   {"sr@latin", "sr"}, {"en_US.UTF-8", "en"}, {"C", ""},
    {"POSIX", ""},         {"C.UTF-8", ""}, {"ast_ES", ""},
};

TEST(Locale, TellsTheLanguage)
{
  for (const LocaleLanguage& row : localeLanguages)
  {
    const Variable locale("LC_ALL", row.locale);
    EXPECT_EQ(language(), row.language) << row.locale;
  }
}

TEST(Locale, TheFirstVariableThatIsSetTellsTheLanguage)
{
  const Variable all("LC_ALL", "");
  const Variable lang("LANG", "pl_PL.UTF-8");
  {
    const Variable messages("LC_MESSAGES", "cs_CZ.UTF-8");
    EXPECT_EQ(language(), "cs");
  }
  const Variable messages("LC_MESSAGES", std::nullopt);
  EXPECT_EQ(language(), "pl");
  const Variable none("LANG", std::nullopt);
  EXPECT_EQ(language(), "");
}

TEST(Locale, TheProcessStaysInTheNeutralLocale)
{
  const Variable locale("LC_ALL", "C.UTF-8");
  const std::string before = std::setlocale(LC_ALL, nullptr);
  decimalSeparator();
  language();
  dateText();
  timeText();
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
  char number[16];
  std::snprintf(number, sizeof(number), "%.1f", 1.5);
  EXPECT_STREQ(number, "1.5");
}

} // namespace

} // namespace tarvelin::platform
