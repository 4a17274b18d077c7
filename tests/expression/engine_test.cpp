// The engine as the Expression tab uses it: Source, then Run, every event set.
#include <gtest/gtest.h>

#include "run_script.hpp"

namespace tessarine::expression {
namespace {

TEST(ScriptEngine, SourceReplacesTheProgram) {
  ScriptEngine engine;
  EXPECT_EQ(RunSource(engine, "Print Str(1)").printed, std::vector<std::string>{"1"});
  EXPECT_EQ(RunSource(engine, "print str(2)").printed, std::vector<std::string>{"2"});
  EXPECT_EQ(engine.Source(), "print str(2)");
}

TEST(ScriptEngine, SeveralLinesPrintInOrderAndBlankLinesAreSkipped) {
  EXPECT_EQ(RunTyped("1)\r\n\n  Print Str(2) + Str(3").printed,
            (std::vector<std::string>{"1", "23"}));
  EXPECT_TRUE(RunSource("\n \n").printed.empty());
}

TEST(ScriptEngine, PrintHandlerMayReplaceTheSourceAndRunAgain) {
  ScriptEngine engine;
  std::vector<std::string> printed;
  engine.Print = [&](const std::string& s) {
    printed.push_back(s);
    if (printed.size() == 1) {
      engine.Source("Print Str(5)");
      engine.Run();
    }
  };
  engine.Source("Print Str(1)\nPrint Str(2)");
  engine.Run();
  EXPECT_EQ(printed, (std::vector<std::string>{"1", "5", "2"}));
}

}  // namespace
}  // namespace tessarine::expression
