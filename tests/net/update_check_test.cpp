// The version check against a scripted server: the five characters after the
// marker decide, both at start-up (silent unless newer) and through the menu's
// window, and the failures of each path.
#include <string>
#include <vector>

#include "conversion/version_update_error_window.hpp"
#include "net_fixture.hpp"
#include "shell/tessarine_app.hpp"
#include "shell/update_windows.hpp"

namespace tessarine::testing {
namespace {

class UpdateCheckTest : public NetFixture {
 protected:
  Window& Open(const char* name) {
    Window* window = program_->FindOpenWindow(name);
    EXPECT_NE(window, nullptr) << name;
    return *window;
  }
  // The menu's window, with OK pressed and the reply delivered.
  void CheckByHand(int port) {
    NetFixture::Open(port, false, false);
    Started();
    program_->App().MenuCommand("CheckForUpdatesMenu");
    Open(VersionUpdateWindow::kName).Get("ButtonOK").Click();
    Net(500);
  }
};

TEST_F(UpdateCheckTest, FiveCharactersAfterTheMarkerDecide) {
  struct Case {
    const char* page;
    bool newer;
  };
  const std::vector<Case> cases = {
      {"<p>Tsrn 4.5.2</p>", false},  {"<p>Tsrn 4.5.3</p>", true},  {"<p>Tsrn 4.5.1</p>", true},
      {"<p>Tsrn 4.5.20</p>", false}, {"<p>tSRN 4.5.2</p>", false}, {"<p>version 4.5.2</p>", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.page);
    ScriptedServer server({Page(c.page)});
    // At start-up: the download offer when newer, nothing otherwise.
    NetFixture::Open(server.port(), false, true);
    Started();
    Net(500);
    EXPECT_EQ(IsOpen(VersionUpdateDownloadWindow::kName), c.newer);
    EXPECT_FALSE(IsOpen(VersionUpToDateWindow::kName));
    // By hand: the asking window closes and one of the two answers opens.
    CheckByHand(server.port());
    EXPECT_FALSE(IsOpen(VersionUpdateWindow::kName));
    EXPECT_EQ(IsOpen(VersionUpdateDownloadWindow::kName), c.newer);
    EXPECT_EQ(IsOpen(VersionUpToDateWindow::kName), !c.newer);
    EXPECT_EQ(std::get<std::string>(*Calc().FieldByName("DataBuffer2")), c.page);
  }
}

TEST_F(UpdateCheckTest, DownloadOpensTheDownloadPage) {
  ScriptedServer server({Page("Tsrn 9.9.9")});
  CheckByHand(server.port());
  Window& offer = Open(VersionUpdateDownloadWindow::kName);
  EXPECT_EQ(offer.Get("VersionMessage").Text(), "A new version of Tessarine is now available!");
  Events();
  offer.Get("ButtonDownload").Click();
  const std::vector<std::string> expected = {
      "url http://127.0.0.1:" + std::to_string(server.port()) + "/download",
      "close VersionUpdateDownloadWindow"};
  EXPECT_EQ(Events(), expected);
}

TEST_F(UpdateCheckTest, RefusedConnection) {
  // At start-up: not a word.
  NetFixture::Open(ClosedPort(), false, true);
  Started();
  Net(500);
  EXPECT_EQ(Events(), std::vector<std::string>{});
  // By hand: the error sheet replaces the window.
  CheckByHand(ClosedPort());
  EXPECT_FALSE(IsOpen(VersionUpdateWindow::kName));
  EXPECT_EQ(Open(VersionUpdateErrorWindow::kName).Get("ErrorMessage").Text(),
            "Error: Could not connect to Brindley Software server.");
}

TEST_F(UpdateCheckTest, BadStatusOrStallLeavesTheWindowTurningUntilCancel) {
  for (const Reply& reply : {Reply{{"HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"}},
                             Reply{{}, 0, Reply::End::kStall}}) {
    ScriptedServer server({reply});
    CheckByHand(server.port());
    Net(500);
    Window& asking = Open(VersionUpdateWindow::kName);
    EXPECT_TRUE(asking.Get("CheckForUpdateChasingArrows").Visible());
    EXPECT_FALSE(asking.Get("ButtonOK").Enabled());
    EXPECT_EQ(asking.Get("InternetUpdateStatus").Text(), "Comparing versions...");
    asking.Get("ButtonCancel").Click();
    EXPECT_FALSE(IsOpen(VersionUpdateWindow::kName));
    EXPECT_FALSE(IsOpen(VersionUpdateErrorWindow::kName));
  }
}

}  // namespace
}  // namespace tessarine::testing
