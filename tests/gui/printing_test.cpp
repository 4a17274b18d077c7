// Printing the tape, to a PDF file read back with pdftotext: every line arrives,
// in order, and a long tape takes as many pages as its blocks need. The page setup
// text comes back as it went.
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "suites.hpp"
#include "tape_printer.hpp"

namespace tessarine::desktop::testing {

namespace {

QString PdfText(const QString& path) {
  QProcess pdftotext;
  pdftotext.start(QStringLiteral("pdftotext"),
                  {QStringLiteral("-layout"), path, QStringLiteral("-")});
  if (!pdftotext.waitForFinished(30000)) return QString();
  return QString::fromUtf8(pdftotext.readAllStandardOutput());
}

// A printer that writes a PDF file.
void ToPdf(QPrinter& printer, const QString& path) {
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
}

Desktop::PrintJob Job(const std::string& text) {
  Desktop::PrintJob job;
  job.text = text;
  job.left = 36;
  job.top = 36;
  job.block_width = 540 - 48;
  job.block_height = 648 - 48;
  return job;
}

}  // namespace

class PrintingTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
      QFAIL("pdftotext (poppler-utils) is needed to read the printed PDF back");
  }

  void theTapesLinesArriveInOrder() {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tape.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    ToPdf(printer, path);
    const std::string tape =
        "\r             2     +\r             3     =\r             5     \xE2\x97\x8A\r";
    QCOMPARE(PrintTapeText(Job(tape), printer), 1);
    const QString text = PdfText(path);
    // The text extractor keeps the order of lines, not every blank between value and mark.
    const int plus = text.indexOf(QRegularExpression(QStringLiteral("2 +\\+")));
    const int equals = text.indexOf(QRegularExpression(QStringLiteral("3 +=")));
    const int result = text.indexOf(QRegularExpression(QStringLiteral("5 +◊")));
    QVERIFY2(plus >= 0 && equals > plus && result > equals, qPrintable(text));
  }

  void aLongTapeTakesSeveralPages() {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("long.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    ToPdf(printer, path);
    std::string tape;
    for (int i = 1; i <= 200; ++i) tape += "line " + std::to_string(i) + "\r";
    const int pages = PrintTapeText(Job(tape), printer);
    QVERIFY2(pages >= 3, qPrintable(QString::number(pages)));
    const QString text = PdfText(path);
    QVERIFY(text.contains(QStringLiteral("line 1\n")) || text.contains(QStringLiteral("line 1 ")));
    QVERIFY(text.contains(QStringLiteral("line 200")));
    QCOMPARE(text.count(QChar('\f')), pages);  // one form feed a page
  }

  void aPageSetupComesBackAsItWent() {
    QPrinter printer;
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    const std::string setup = PageSetupText(printer);
    QVERIFY2(setup.rfind("842x595 ", 0) == 0, setup.c_str());
    QPrinter again;
    ApplyPageSetup(setup, again);
    QCOMPARE(PageSetupText(again), setup);
    ApplyPageSetup("nonsense", again);  // an unknown text leaves the printer as it is
    QCOMPARE(PageSetupText(again), setup);
  }
};

TESSARINE_GUI_SUITE(PrintingTest, "printing");

}  // namespace tessarine::desktop::testing

#include "printing_test.moc"
