// The rate update of the Convert page against a scripted server: a page that
// replaces the table, the dates and the file; the positions read from odd pages;
// and every way the request can fail or be cancelled.
#include <algorithm>
#include <string>
#include <vector>

#include "conversion/convert_tab.hpp"
#include "conversion/version_update_error_window.hpp"
#include "net_fixture.hpp"
#include "runtime/text.hpp"

namespace tessarine::testing {
namespace {

using End = Reply::End;
using Rows = std::vector<std::pair<std::string, std::string>>;

Rows AllRows() {
  Rows rows;
  const auto units = CurrencyUnits();
  for (int i = 0; i < kCurrencyCount; ++i)
    rows.emplace_back(std::string(units[i].name), std::to_string(i) + ".5");
  return rows;
}

class RateUpdateTest : public NetFixture {
 protected:
  ConvertTab& Tab() { return *Calc().Part<ConvertTab>(); }
  void UpdateFrom(const ScriptedServer& server) {
    Open(server.port(), true, false);
    Started();
    Net(3000);
  }
};

// The button's caption, the age line and the page's path are the end-to-end server
// test's, against the real pages.
TEST_F(RateUpdateTest, PageReplacesTableDatesAndFile) {
  ScriptedServer server({Page(RatesBody(AllRows()))});
  UpdateFrom(server);
  EXPECT_EQ(Tab().Currency(0), "0.5       ");
  EXPECT_EQ(Tab().Currency(46), "46.5      ");

  // Written at once: a store read afresh from the file holds the new rates and dates.
  PrefsModule reread(files_, ".");
  reread.SetName("Tessarine4 Preferences", "PREF");
  EXPECT_EQ(reread.GetStringValue("CurrencyRate23", "", true), "23.5      ");
  EXPECT_EQ(reread.GetStringValue("CurrencyUpdateDate", "", true), Tab().CurrencyDate);
  EXPECT_EQ(reread.GetStringValue("CurrencyUpdateTimeAndDate", "", true),
            Tab().CurrencyTimeAndDate);
}

TEST_F(RateUpdateTest, RatesComeFromTheComputedPositions) {
  struct Case {
    const char* name;
    std::string body;
    int index;
    std::string rate;
  };
  Rows without_qatar = AllRows();
  without_qatar.erase(without_qatar.begin() + 35);
  const std::string no_qatar = RatesBody(without_qatar);
  Rows dashes = AllRows();
  dashes[4].second = "--";
  const std::vector<Case> cases = {
      {"name missing: ten characters from its length plus two", no_qatar, 35,
       Mid(no_qatar, 13, 10)},
      {"Euro in the title captures the row", RatesBody(AllRows(), "Euro rates of today"), 0,
       "ates of to"},
      {"unavailable rate stored as it stands", RatesBody(dashes), 4, "--        "},
      {"a lone Korean won row", "Korean won  1146.7    \n", 23, "1146.7    "},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ScriptedServer server({Page(c.body)});
    UpdateFrom(server);
    EXPECT_EQ(Tab().Currency(c.index), c.rate);
  }
}

TEST_F(RateUpdateTest, FailuresKeepTheTable) {
  const std::string header = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n";
  struct Case {
    const char* name;
    std::string caption, info;
    bool error_sheet;
    std::vector<Reply> replies;  // empty: a port where nobody listens
  };
  const std::vector<Case> cases = {
      {"refused", "Update", "Last updated: NEVER", true, {}},
      {"reset mid-page", "Update", "Last updated: NEVER", true,
       std::vector<Reply>{Reply{{header, "Euro: 1.1"}, 20, End::kReset}}},
      {"404 is silent", "Cancel", "Connecting to server...", false,
       std::vector<Reply>{Reply{{"HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\n\r\nNot Found"}}}},
      {"stall waits", "Cancel", "Connecting to server...", false,
       std::vector<Reply>{Reply{{}, 0, End::kStall}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::unique_ptr<ScriptedServer> server;
    if (!c.replies.empty()) server = std::make_unique<ScriptedServer>(c.replies);
    Open(server ? server->port() : ClosedPort(), true, false);
    Started();
    Net(500);
    EXPECT_EQ(Caption("UpdateCurrencyButton"), c.caption);
    EXPECT_EQ(Text("CurrencyConversionInfo"), c.info);
    EXPECT_EQ(Tab().Currency(1), "110.1");
    const Window* sheet = program_->FindOpenWindow(VersionUpdateErrorWindow::kName);
    ASSERT_EQ(sheet != nullptr, c.error_sheet);
    const std::vector<std::string> events = Events();
    if (c.error_sheet) {
      EXPECT_EQ(sheet->Get("ErrorMessage").Text(), std::string("Error: ") + kRatesNotUpdatedText);
      EXPECT_NE(std::find(events.begin(), events.end(), "beep "), events.end());
    } else {
      // The keypad goes on while the request hangs; the button then cancels it.
      Calc().KeyDown("7");
      EXPECT_EQ(Text("Display"), "7");
      Calc().Get("UpdateCurrencyButton").Click();
      EXPECT_EQ(Caption("UpdateCurrencyButton"), "Update");
      EXPECT_EQ(Text("CurrencyConversionInfo"), "Last updated: NEVER");
    }
  }
}

TEST_F(RateUpdateTest, CancelMidTransferIgnoresTheRest) {
  const std::string body = RatesBody(AllRows());
  const std::string head =
      "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n";
  ScriptedServer server({Reply{{head + body.substr(0, 100), body.substr(100)}, 400, End::kClose}});
  Open(server.port(), true, false);
  Started();
  Net(150);
  Calc().Get("UpdateCurrencyButton").Click();
  EXPECT_EQ(Caption("UpdateCurrencyButton"), "Update");
  Net(1000);
  EXPECT_EQ(Text("CurrencyConversionInfo"), "Last updated: NEVER");
  EXPECT_EQ(Tab().Currency(0), "1.2219");
  EXPECT_EQ(program_->FindOpenWindow(VersionUpdateErrorWindow::kName), nullptr);
}

TEST_F(RateUpdateTest, SettingOffMakesNoRequestAtStart) {
  ScriptedServer server({Page(RatesBody(AllRows()))});
  Open(server.port(), false, false);
  Started();
  Net(200);
  EXPECT_EQ(server.Connections(), 0);
  EXPECT_EQ(Caption("UpdateCurrencyButton"), "Update");
}

}  // namespace
}  // namespace tessarine::testing
