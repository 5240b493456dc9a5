// How tarvelin-script is called and how it ends.

#include "tests/test_home.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace tarvelin::test;

namespace
{

class CommandLine : public testing::Test
{
protected:
  void SetUp() override
  {
    fs::create_directories(home);
    makeHome(home);
  }

  Outcome run(const std::string& arguments, const std::string& script = {})
  {
    writeBytes(scratch / "script.lua", script);
    return runProgram(quoted(TARVELIN_HOST) + " " + arguments, scratch.path(), scratch / "user");
  }

  Outcome play(const std::string& script, const std::string& arguments = {})
  {
    return run("--home " + quoted(home.string()) + " script.lua " + arguments, script);
  }

  Scratch scratch;
  fs::path home = scratch / "a home; with 'quotes'";
};

TEST_F(CommandLine, AScriptThatRunsToItsEndGivesZero)
{
  const Outcome outcome = play("print('through')");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "through\n");
  EXPECT_EQ(outcome.errors, "");
}

TEST_F(CommandLine, AnErrorGivesOneWithMessageAndTraceback)
{
  const Outcome outcome = play("local function inner() error('went wrong') end\ninner()");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("script.lua:1: went wrong"), std::string::npos) << outcome.errors;
  EXPECT_NE(outcome.errors.find("stack traceback:"), std::string::npos) << outcome.errors;
}

TEST_F(CommandLine, ASyntaxErrorAndAMissingScriptGiveOne)
{
  EXPECT_EQ(play("this is no Lua").status, 1);
  EXPECT_EQ(run("--home " + quoted(home.string()) + " missing.lua").status, 1);
}

TEST_F(CommandLine, AWrongCommandLineGivesTwo)
{
  for (const char* const arguments : {"", "--home", "--home /nowhere/at/all script.lua", "--strange script.lua", "-x"})
  {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_NE(outcome.errors.find("usage: tarvelin-script"), std::string::npos) << arguments;
  }
  EXPECT_EQ(run("--home " + quoted(home.string())).status, 2);
}

TEST_F(CommandLine, AnUntrappedFailureGivesSeventy)
{
  const Outcome outcome = play("print('before') proc.HodnotaRadku('')");
  EXPECT_EQ(outcome.status, 70);
  EXPECT_EQ(outcome.output, "before\n");
  EXPECT_EQ(outcome.errors.substr(0, 53), "run-time error 5: Invalid procedure call or argument\n");
}

TEST_F(CommandLine, AFailureThatTheScriptCatchesIsNoEnd)
{
  EXPECT_EQ(play("pcall(proc.HodnotaRadku, '') print('on')").output, "on\n");
  EXPECT_EQ(play("pcall(proc.HodnotaRadku, '') error('own')").status, 1);
}

TEST_F(CommandLine, AnArrayElementOutOfBoundsIsTheScriptsError)
{
  const Outcome outcome = play("print(shared.Texty[500])");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("run-time error 9: Subscript out of range"), std::string::npos) << outcome.errors;
}

TEST_F(CommandLine, TheArgumentsAreInArg)
{
  EXPECT_EQ(play("print(#arg, arg[0], arg[1], arg[2], ...)", "one 'two words'").output,
            "2\tscript.lua\tone\ttwo words\tone\ttwo words\n");
}

TEST_F(CommandLine, TheScriptMayComeFromStandardInput)
{
  writeBytes(scratch / "piped.lua", "print('piped', arg[1])");
  const Outcome outcome =
      runProgram("sh -c " + quoted(quoted(TARVELIN_HOST) + " --home " + quoted(home.string()) + " - there <piped.lua"),
                 scratch.path(), scratch / "user");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, "piped\tthere\n");
}

TEST_F(CommandLine, TheWholeStandardLibraryIsThere)
{
  EXPECT_EQ(
      play("for _, n in ipairs{'string', 'table', 'math', 'io', 'os', 'coroutine', 'utf8', 'debug', 'package'} do "
           "assert(type(_G[n]) == 'table', n) end print(utf8.len('žluť'))")
          .output,
      "4\n");
}

TEST_F(CommandLine, ARelativeHomeIsFound)
{
  const Outcome outcome =
      run("--home " + quoted("a home; with 'quotes'") + " script.lua", "start() print(shared.Texty[1]) quit()");
  EXPECT_EQ(outcome.output, "T1\n") << outcome.errors;
  EXPECT_TRUE(fs::exists(home / "Bfdata" / "LogFiles"));
}

TEST_F(CommandLine, AnErrorObjectWithoutAMessageIsReported)
{
  const Outcome outcome = play("error({})");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("error object is a table value"), std::string::npos) << outcome.errors;
}

} // namespace
