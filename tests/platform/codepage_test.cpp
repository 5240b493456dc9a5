#include "platform/codepage.h"

#include <gtest/gtest.h>
#include <string>

namespace tarvelin::platform
{

namespace
{

constexpr int allPages[] = {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

std::string allBytes()
{
  std::string bytes;
  for (int i = 0; i < 256; ++i)
    bytes.push_back(static_cast<char>(i));
  return bytes;
}

struct Sample
{
  int page;
  const char* bytes;
  const char* text;
};

constexpr Sample samples[] = {
    {1250, "P\xF8\xEDli\x9A \x9Elu\x9Dou\xE8k\xFD k\xF9\xF2", "Příliš žluťoučký kůň"},
    {1250, "\xD8\x8A\x8E\xC8\xCF\xD2\x8D", "ŘŠŽČĎŇŤ"},
    {1250, "\xA3\xF3\x64\x9F", "Łódź"},
    {1250, "\x80\x82\x84\x85\x93\x94\x95\x96\x97\x99\xA0\xFF", "€‚„…“”•–—™\u00A0˙"},
    {1251, "\xCF\xF0\xE8\xE2\xE5\xF2 \xA8\xB8 \xB9", "Привет Ёё №"},
    {1251, "\x80\x81\x8F\x90\x9F\xAA\xAF\xB2\xB3\xBF", "ЂЃЏђџЄЇІії"},
    {1252, "\x80\x8A\x8C\x8E\x9E\x9F\xC4\xD6\xDC\xDF\xE9", "€ŠŒŽžŸÄÖÜßé"},
    {1253, "\xC1\xE8\xDE\xED\xE1 \xA2\xB8\xD3\xF2\xF3", "Αθήνα ΆΈΣςσ"},
    {1254, "\xD0\xDD\xDE\xF0\xFD\xFE", "ĞİŞğış"},
    {1255, "\xF9\xEC\xE5\xED \xA4\xE0\xFA", "שלום ₪את"},
    {1256, "\xC7\xE1\xD3\xE1\xC7\xE3 \x81\x8D\x90", "السلام پچگ"},
    {1257, "\xC0\xDE\xFE\xE6\xF0\xCB", "ĄŽžęšĖ"},
    {1258, "\xD0\xF0\xFE\xD5\xFD\xC3", "Đđ₫ƠưĂ"},
};

TEST(CodePage, DecodesAndEncodesTheLettersOfEachPage)
{
  for (const Sample& sample : samples)
  {
    EXPECT_EQ(decode(sample.bytes, sample.page), sample.text) << sample.page;
    EXPECT_EQ(encode(sample.text, sample.page), sample.bytes) << sample.page;
  }
}

TEST(CodePage, EveryByteComesBackFromEachPage)
{
  const std::string bytes = allBytes();
  for (const int page : allPages)
    EXPECT_EQ(encode(decode(bytes, page), page), bytes) << page;
}

TEST(CodePage, EveryByteIsACharacterOfItsOwn)
{
  for (const int page : allPages)
    for (int a = 0; a < 256; ++a)
      for (int b = 0; b < a; ++b)
        ASSERT_NE(decode(std::string(1, static_cast<char>(a)), page),
                  decode(std::string(1, static_cast<char>(b)), page))
            << page << ": " << a << ", " << b;
}

TEST(CodePage, AsciiIsTheSameInEachPage)
{
  const std::string ascii = allBytes().substr(0, 128);
  for (const int page : allPages)
  {
    EXPECT_EQ(decode(ascii, page), ascii);
    EXPECT_EQ(encode(ascii, page), ascii);
  }
}

TEST(CodePage, AnUndefinedByteIsTheControlOfItsNumber)
{
  EXPECT_EQ(decode("\x81", 1250), "\u0081");
  EXPECT_EQ(decode("\x98", 1251), "\u0098");
  EXPECT_EQ(decode("\x9D", 1252), "\u009D");
  EXPECT_EQ(encode("\u0081", 1250), "\x81");
  EXPECT_EQ(encode("\u009D", 1252), "\x9D");
}

TEST(CodePage, AMissingCharacterBecomesAQuestionMark)
{
  EXPECT_EQ(encode("aПb漢c", 1250), "a?b?c");
  EXPECT_EQ(encode("ř", 1252), "?");
  EXPECT_EQ(encode("😀!", 1250), "?!");
  EXPECT_EQ(encode("\u0080", 1250), "?"); // the byte 0x80 is taken by the euro
}

TEST(CodePage, BytesThatAreNoUtf8BecomeQuestionMarks)
{
  EXPECT_EQ(encode("a\xFFz", 1250), "a?z");
  EXPECT_EQ(encode("\x80", 1250), "?");
  EXPECT_EQ(encode("k\xC5", 1250), "k?");              // cut in the middle
  EXPECT_EQ(encode("\xC5x", 1250), "?x");              // a lead byte alone
  EXPECT_EQ(encode("\xC0\xAF", 1250), "??");           // overlong
  EXPECT_EQ(encode("\xED\xA0\x80", 1250), "???");      // half of a pair
  EXPECT_EQ(encode("\xF4\x90\x80\x80", 1250), "????"); // beyond the last character
}

TEST(CodePage, ZeroBytesAndLongTextsPass)
{
  std::string bytes;
  for (int i = 0; i < 1000; ++i)
    bytes += std::string("mission\0sqm ", 12) + "\xE8" + std::string(static_cast<std::size_t>(i % 17), 'x');
  const std::string text = decode(bytes, 1250);
  EXPECT_EQ(text.size(), bytes.size() + 1000); // each č takes two bytes
  EXPECT_EQ(encode(text, 1250), bytes);
}

TEST(CodePage, EmptyStaysEmpty)
{
  EXPECT_EQ(decode("", 1250), "");
  EXPECT_EQ(encode("", 1250), "");
}

TEST(CodePage, AnUnknownNumberCountsAs1250)
{
  for (const int page : {0, 437, 1249, 1259, 65001, -1})
  {
    EXPECT_EQ(decode("\xE8", page), "č") << page;
    EXPECT_EQ(encode("č", page), "\xE8") << page;
  }
}

struct LocalePage
{
  const char* locale;
  int page;
};

constexpr LocalePage localePages[] = {
    {"cs_CZ.UTF-8", 1250},
    {"cs_CZ", 1250},
    {"cs", 1250},
    {"CS_cz", 1250},
    {"sk_SK.UTF-8", 1250},
    {"pl_PL.UTF-8", 1250},
    {"hu_HU.UTF-8", 1250},
    {"sl_SI.UTF-8", 1250},
    {"hr_HR.UTF-8", 1250},
    {"ro_RO.UTF-8", 1250},
    {"sq_AL.UTF-8", 1250},
    {"ru_RU.UTF-8", 1251},
    {"ru_RU.KOI8-R", 1251},
    {"uk_UA.UTF-8", 1251},
    {"be_BY.UTF-8", 1251},
    {"bg_BG.UTF-8", 1251},
    {"sr_RS.UTF-8", 1251},
    {"sr_RS@latin", 1250},
    {"el_GR.UTF-8", 1253},
    {"tr_TR.UTF-8", 1254},
    {"et_EE.UTF-8", 1257},
    {"lv_LV.UTF-8", 1257},
    {"lt_LT.UTF-8", 1257},
    {"de_DE.UTF-8", 1252},
    {"de_DE@euro", 1252},
    {"fr_FR.UTF-8", 1252},
    {"es_ES.UTF-8", 1252},
    {"it_IT.UTF-8", 1252},
    {"pt_BR.UTF-8", 1252},
    {"nl_NL.UTF-8", 1252},
    {"sv_SE.UTF-8", 1252},
    {"da_DK.UTF-8", 1252},
    {"nb_NO.UTF-8", 1252},
    {"nn_NO.UTF-8", 1252},
    {"fi_FI.UTF-8", 1252},
    {"is_IS.UTF-8", 1252},
    {"ga_IE.UTF-8", 1252},
    {"ca_ES.UTF-8", 1252},
    {"en_US.UTF-8", 1250},
    {"en_GB", 1250},
    {"C", 1250},
    {"C.UTF-8", 1250},
    {"POSIX", 1250},
    {"", 1250},
    {"ja_JP.UTF-8", 1250},
    {"csb_PL", 1250},
    {"nonsense", 1250},
    {"_", 1250},
    {"rum", 1250},
};

TEST(CodePage, FollowsTheLanguageOfTheLocale)
{
  for (const LocalePage& row : localePages)
    EXPECT_EQ(codePageOfLocale(row.locale), row.page) << row.locale;
}

TEST(CodePage, TheMachineHasOneOfThePages)
{
  EXPECT_GE(codePage(), 1250);
  EXPECT_LE(codePage(), 1258);
  EXPECT_EQ(encode(decode(allBytes())), allBytes());
}

} // namespace

} // namespace tarvelin::platform
