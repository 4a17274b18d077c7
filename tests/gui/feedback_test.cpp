// The feedback module and its sounds: the module beside the program loads and gives
// a player, which stays silent without an audio device or speech service; and the
// build made the eleven sounds as short 16-bit mono WAV files.
#include <QFile>
#include <QLibrary>
#include <QTest>

#include "feedback_module.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

class FeedbackTest : public QObject {
  Q_OBJECT

 private slots:
  void theModuleLoadsAndPlaysWithoutADevice() {
    QLibrary module(QStringLiteral(TESSARINE_FEEDBACK_MODULE));
    const auto create =
        reinterpret_cast<CreateFeedbackModuleFunction>(module.resolve(kCreateFeedbackModule));
    QVERIFY2(create, qPrintable(module.errorString()));
    std::unique_ptr<FeedbackModule> feedback(create(TESSARINE_SOUNDS_FOLDER));
    QVERIFY(feedback);
    feedback->PlaySound("Pop");
    feedback->PlaySound("NoSuchSound");  // a missing file is silence
    QTest::qWait(50);
  }

  void theElevenSoundsAreShortWavFiles() {
    for (const char* name : {"Basso", "Boop", "Click", "Clickclack", "Kachick", "Keybrd", "Pop",
                             "Thump", "Tick", "Type", "Typetty"}) {
      QFile file(QStringLiteral(TESSARINE_SOUNDS_FOLDER "/%1.wav").arg(QLatin1String(name)));
      QVERIFY2(file.open(QIODevice::ReadOnly), name);
      const QByteArray head = file.read(44);
      QCOMPARE(head.left(4), QByteArray("RIFF"));
      QCOMPARE(head.mid(8, 8), QByteArray("WAVEfmt "));
      const auto u16 = [&](int at) { return quint8(head[at]) | quint8(head[at + 1]) << 8; };
      QCOMPARE(u16(22), 1);   // mono
      QCOMPARE(u16(34), 16);  // 16-bit
      const qint64 samples = (file.size() - 44) / 2;
      QVERIFY2(samples > 100 && samples < 44100 / 2, name);  // some sound, under half a second
    }
  }
};

TESSARINE_GUI_SUITE(FeedbackTest, "feedback");

}  // namespace tessarine::desktop::testing

#include "feedback_test.moc"
