#include "tests/lib/class_file.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvelin::test
{

namespace
{

std::string refusalsOf(std::string_view text)
{
  return told(ClassFile(text).refusals());
}

} // namespace

TEST(ClassFile, TakesWhatTheGameTakes)
{
  const std::vector<std::string_view> good{
      "",
      "// nothing\r\n",
      "/* nothing\r\n at all */",
      "x=1;",
      "x = -1.5;\r\ny = db+10;\r\nz = $STRM_Call;",
      "text = \"a \"\"quoted\"\" word; and // no comment\";",
      "class A {};",
      "class A\r\n{\r\n}; class B: A {};\r\nclass C : B { x=1; };",
      "class A { class B {}; class C: B {}; };",
      "class A { class B {}; }; class C: A { class D: B {}; };", // a base among what the class around inherits
      "class A {}; class B { class C: A {}; };",
      "class A {x=1;}; class B {x=1;}; x=1;",
      "class A; class B { class C: A {}; }; class A { x=1; };",
      "class 9K32Launcher\r\n    {count = 1;};",
      "CLASS a {X=1;}; Class b: A {};",
      "a[]={}; b[]={1,\"two\",three words,{4,{5}},{}}; c [ ] = { 1 , 2 } ;",
      "a[]=\r\n{\r\n  0,$STRM_One;\r\n  1,$STRM_Two;\r\n};", // ";" for ","
      "a[]={one,two,};",                                     // a separator behind the last item
      "end1 = ;\r\nend2 = The bridge;",
      "x = 1\r\ny = \"text\"\r\nclass A {};", // the line's end closes a value
      "class A {x = 1\r\n};",
      "x = 1 // why\r\ny = 2; /* one */ z = 3;",
      "#include \"bases.hpp\"\r\nclass A: FromThere {};",
      "#define LEFT 1\r\n#define BOX(a) class a { \\\r\n  x=1; };\r\nBOX(A)\r\nx = LEFT;",
      "#ifdef NEVER\r\nthis is not read {\r\n#else\r\nx=1;\r\n#endif\r\n#ifndef NEVER\r\ny=1;\r\n#endif",
      "enum { one, two = 5 };\r\n__EXEC(a = 5)\r\nx = __EVAL(a);",
  };
  for (const std::string_view text : good)
    EXPECT_EQ(refusalsOf(text), "") << text;
}

TEST(ClassFile, TellsLineAndReasonOfWhatTheGameRefuses)
{
  const std::vector<std::pair<std::string_view, std::string_view>> bad{
      {"class A {x=1;}", "line 1: class A without ; behind its }\n"},
      {"class A {}\r\nclass B {};", "line 1: class A without ; behind its }\n"},
      {"\r\nclass A\r\n{\r\n  x=1;\r\n", "line 3: class A has no }\n"},
      {"class A { class B { x=1; };", "line 1: class A has no }\n"},
      {"class A {};\r\n};\r\nclass B {};", "line 2: } closes nothing\n"},
      {"class A {x=1};", "line 1: x without ; before }\n"},
      {"class A: B {};", "line 1: class A has an unknown base B\n"},
      {"class A: A {};", "line 1: class A has an unknown base A\n"},
      {"class A { class B {}; }; class C: B {};", "line 1: class C has an unknown base B\n"},
      {"class B: A {};\r\nclass A {};", "line 1: class B has an unknown base A\n"},
      {"class A {};\r\nclass a {};", "line 2: class a stands twice\n"},
      {"class A {\r\nx=1;\r\nX=2;\r\n};", "line 3: X stands twice\n"},
      {"class A {}; A=1;", "line 1: A stands twice\n"},
      {"x=1;\r\nclass x {};", "line 2: class x stands twice\n"},
      {"x[]={1}; x[]={2};", "line 1: x stands twice\n"},
      {"count 5;", "line 1: count without =\n"},
      {"class A { count };", "line 1: count without =\n"},
      {"class {};", "line 1: no name of a class\n"},
      {"class The bridge\r\n{\r\n  x=1;\r\n};", "line 1: class The without {\n"},
      {"class A: {};", "line 1: no name of a base class\n"},
      {"class A\r\nx=1;", "line 2: class A without {\n"},
      {"= 5;", "line 1: no name of a class or a member\n"},
      {";", "line 1: no name of a class or a member\n"},
      {"{ x=1; };", "line 1: no name of a class or a member\n"},
      {"x=\r\ny=1;", "line 1: x has no value\n"},
      {"x={1};", "line 1: x takes an array but has no []\n"},
      {"x=the \"bridge\";", "line 1: x has a quote in its value\n"},
      {"x=\"the bridge;\r\ny=1;", "line 1: text without an end\n"},
      {"x=\"the \"old\" bridge\";\r\ny=1;", "line 1: x goes on behind its closing quote\n"},
      {"x[=1;", "line 1: x[ without ]\n"},
      {"x[]=1;", "line 1: x[] without {\n"},
      {"x[]={1}\r\ny=2;", "line 1: x[] without ; behind its }\n"},
      {"x[]={1,,2};", "line 1: empty item in an array\n"},
      {"x[]={,};", "line 1: empty item in an array\n"},
      {"x[]={1\r\n2};", "line 2: no , between items of an array\n"},
      {"x[]={{1}{2}};", "line 1: no , between items of an array\n"},
      {"x[]={1,\r\ny=2;", "line 2: no = may stand in an item of an array\n"},
      {"x[]={1,2", "line 1: array has no }\n"},
      {"/* for ever", "line 1: comment without an end\n"},
      {"#wrong\r\nx=1;", "line 1: unknown #wrong\n"},
      {"#include\r\n", "line 1: #include without a file\n"},
      {"#define\r\n", "line 1: #define without a name\n"},
      {"x=1;\r\n#endif", "line 2: #endif without #ifdef\n"},
      {"#ifdef A\r\nx=1;", "line 2: #ifdef without #endif\n"},
      {"enum one;", "line 1: enum without {\n"},
      {"__EXEC a=1;", "line 1: __EXEC without (\n"},
  };
  for (const auto& [text, reason] : bad)
    EXPECT_EQ(refusalsOf(text), reason) << text;
}

TEST(ClassFile, GoesOnBehindARefusal)
{
  EXPECT_EQ(refusalsOf("class A\r\n{\r\n  name = \"the \"old\" one\";\r\n  x = 1;\r\n  x = 2;\r\n};\r\n"
                       "class No way\r\n{\r\n  class B {};\r\n};\r\n};\r\nclass C: A {}\r\n"),
            "line 3: name goes on behind its closing quote\nline 5: x stands twice\nline 7: class No without {\n"
            "line 11: } closes nothing\nline 12: class C without ; behind its }\n");
}

TEST(ClassFile, KeepsWhatStandsInTheClasses)
{
  const ClassFile file("limit = -30\r\nclass Titles\r\n{\r\n  titles[]={ One, {2,\"three\"},};\r\n"
                       "  class One: Base { text=\"say \"\"no\"\"\"; };\r\n};\r\nclass Base {};");
  EXPECT_EQ(file.root().members.at("LIMIT"), "-30");
  const ClassBody& titles = *file.root().classes.at("TITLES");
  EXPECT_EQ(titles.members.at("TITLES[]"), "One,{2,three}");
  EXPECT_EQ(titles.classes.at("ONE")->base, "BASE");
  EXPECT_EQ(titles.classes.at("ONE")->members.at("TEXT"), "say \"no\"");
  EXPECT_EQ(told(file.refusals()), "line 5: class One has an unknown base BASE\n");
}

} // namespace tarvelin::test
