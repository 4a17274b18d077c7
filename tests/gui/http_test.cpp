// The HTTP client on the Qt platform's sockets: pages fetched from a loopback
// server within the Qt event loop, the peer's close ending a page of unknown
// length, and a refused connection reported with the program's code.
#include <sys/socket.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>

#include "http/basic_http.hpp"
#include "qt_platform.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

namespace {

// Answers every request with `reply`, once the request's header has come, then
// closes the connection, in order or with a reset.
class LoopbackServer : public QObject {
 public:
  LoopbackServer(QByteArray reply, bool reset) : reply_(std::move(reply)) {
    server_.listen(QHostAddress::LocalHost);
    connect(&server_, &QTcpServer::newConnection, this, [this, reset] {
      while (QTcpSocket* peer = server_.nextPendingConnection()) {
        connect(peer, &QTcpSocket::readyRead, peer, [this, peer, reset] {
          request_ += peer->readAll();
          if (!request_.contains("\r\n\r\n")) return;
          peer->write(reply_);
          if (!reset) return peer->disconnectFromHost();
          peer->flush();
          const linger at_once{1, 0};
          setsockopt(static_cast<int>(peer->socketDescriptor()), SOL_SOCKET, SO_LINGER, &at_once,
                     sizeof at_once);
          peer->abort();
        });
        connect(peer, &QTcpSocket::disconnected, peer, &QObject::deleteLater);
      }
    });
  }
  int port() const { return server_.serverPort(); }

 private:
  QTcpServer server_;
  QByteArray reply_;
  QByteArray request_;
};

}  // namespace

class HttpTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    platform_ = std::make_unique<QtPlatform>(folder_.path().toStdString());
    http_ = std::make_unique<BasicHTTP>(platform_->platform().sockets, platform_->platform().clock);
    outcome_.clear();
    http_->PageReceived = [this](const std::string&, const std::string& page, bool) {
      outcome_ = "Page " + std::to_string(page.size()) + " " + page.substr(0, 11);
    };
    http_->TCPError = [this](int code) { outcome_ = "TCPError " + std::to_string(code); };
  }
  void cleanup() {
    http_.reset();
    platform_.reset();
  }

  void fetchesAPage_data() {
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("known_length") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello")
                                  << false << "Page 5 hello";
    QTest::newRow("ended_by_the_peer")
        << QByteArray("HTTP/1.0 200 OK\r\n\r\nuntil close") << false << "Page 11 until close";
    QTest::newRow("reset_by_the_peer")
        << QByteArray("HTTP/1.0 200 OK\r\n\r\nuntil reset") << true << "TCPError 105";
    const QByteArray big(3 * 1024 * 1024, 'x');
    QTest::newRow("beyond_the_read_buffer")
        << "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(big.size()) + "\r\n\r\n" + big
        << false << "Page 3145728 xxxxxxxxxxx";
  }
  void fetchesAPage() {
    QFETCH(QByteArray, reply);
    QFETCH(bool, reset);
    QFETCH(QString, outcome);
    LoopbackServer server(reply, reset);
    http_->Get("http://127.0.0.1:" + std::to_string(server.port()) + "/rates.txt");
    QTRY_VERIFY_WITH_TIMEOUT(!outcome_.empty(), 10000);
    QCOMPARE(QString::fromStdString(outcome_), outcome);
  }

  // A name is looked up on a helper thread, whose end wakes the event loop. (The
  // client takes only names with a dot, and this machine may resolve none but
  // "localhost": the socket is asked directly.)
  void aHostNameIsLookedUp() {
    struct Events final : SocketListener {
      void SocketConnected() override { seen += "connected "; }
      void SocketDataAvailable() override { seen += "data "; }
      void SocketError() override { seen += "error "; }
      std::string seen;
    } events;
    LoopbackServer server("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nnamed", false);
    const std::unique_ptr<Socket> socket = platform_->platform().sockets.NewSocket();
    socket->SetListener(&events);
    socket->Connect("localhost", server.port());
    socket->Write("GET / HTTP/1.1\r\n\r\n");
    QVERIFY(events.seen.empty());  // nothing from inside the call
    QTRY_VERIFY_WITH_TIMEOUT(socket->Lookahead().size() >= 5, 10000);
    QCOMPARE(events.seen.substr(0, 15), std::string("connected data "));
    QVERIFY(socket->ReadAll().ends_with("named"));
  }

  void aRefusedConnectionIsReported() {
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const int port = closed.serverPort();
    closed.close();
    http_->Get("http://127.0.0.1:" + std::to_string(port) + "/");
    QVERIFY(outcome_.empty());  // nothing from inside the call
    QTRY_VERIFY_WITH_TIMEOUT(!outcome_.empty(), 10000);
    QCOMPARE(outcome_, std::string("TCPError 104"));
  }

 private:
  QTemporaryDir folder_;
  std::unique_ptr<QtPlatform> platform_;
  std::unique_ptr<BasicHTTP> http_;
  std::string outcome_;
};

TESSARINE_GUI_SUITE(HttpTest, "http");

}  // namespace tessarine::desktop::testing

#include "http_test.moc"
