// The suites of the GUI tests, each a Qt Test class in its own file.
#pragma once

namespace tessarine::desktop::testing {

int RunKeypadTests(int argc, char** argv);
int RunModesTests(int argc, char** argv);
int RunMenusTests(int argc, char** argv);
int RunLoopsTests(int argc, char** argv);
int RunViewTests(int argc, char** argv);
int RunPrintingTests(int argc, char** argv);
int RunFeedbackTests(int argc, char** argv);
int RunConversionTests(int argc, char** argv);
int RunStatisticsTests(int argc, char** argv);
int RunFractionsTests(int argc, char** argv);
int RunExpressionTests(int argc, char** argv);
int RunHttpTests(int argc, char** argv);
int RunPreferencesTests(int argc, char** argv);
int RunHelpTests(int argc, char** argv);
int RunDesktopTests(int argc, char** argv);
int RunLookTests(int argc, char** argv);

}  // namespace tessarine::desktop::testing
