#include "tape_printer.hpp"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringList>

namespace tessarine::desktop {

int PrintTapeText(const Desktop::PrintJob& job, QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return 0;
  // The job's geometry is in points; the painter draws in device pixels.
  const double scale = printer.resolution() / 72.0;
  painter.scale(scale, scale);
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(10);
  painter.setFont(font);
  const QFontMetricsF metrics(font, &printer);
  const double line_height = metrics.lineSpacing() / scale;
  const int lines_per_page =
      std::max(1, static_cast<int>(job.block_height / std::max(line_height, 1.0)));

  // The tape's lines end in a carriage return.
  QString text = QString::fromStdString(job.text);
  text.replace("\r\n", "\n").replace('\r', '\n');
  QStringList lines = text.split('\n');
  if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();

  int pages = 1;
  int on_page = 0;
  for (const QString& line : lines) {
    if (on_page == lines_per_page) {
      printer.newPage();
      ++pages;
      on_page = 0;
    }
    const QRectF block(job.left, job.top + on_page * line_height, job.block_width, line_height);
    painter.drawText(block, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, line);
    ++on_page;
  }
  painter.end();
  return pages;
}

void ApplyPageSetup(const std::string& setup, QPrinter& printer) {
  const QStringList parts = QString::fromStdString(setup).split(' ', Qt::SkipEmptyParts);
  if (parts.size() < 3) return;
  const QPageSize size(static_cast<QPageSize::PageSizeId>(parts[1].toInt()));
  if (size.isValid()) printer.setPageSize(size);
  printer.setPageOrientation(parts[2] == "landscape" ? QPageLayout::Landscape
                                                     : QPageLayout::Portrait);
}

std::string PageSetupText(const QPrinter& printer) {
  const QPageLayout layout = printer.pageLayout();
  const QSizeF paper = layout.fullRect(QPageLayout::Point).size();
  return QString("%1x%2 %3 %4")
      .arg(qRound(paper.width()))
      .arg(qRound(paper.height()))
      .arg(static_cast<int>(layout.pageSize().id()))
      .arg(layout.orientation() == QPageLayout::Landscape ? "landscape" : "portrait")
      .toStdString();
}

std::optional<std::string> RunPageSetupDialog(const std::string& current, QWidget* parent) {
  QPrinter printer;
  ApplyPageSetup(current, printer);
  QPageSetupDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return PageSetupText(printer);
}

bool RunPrintDialog(const Desktop::PrintJob& job, QWidget* parent) {
  QPrinter printer;
  ApplyPageSetup(job.page_setup, printer);
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle("Print Tape");
  if (dialog.exec() != QDialog::Accepted) return false;
  PrintTapeText(job, printer);
  return true;
}

}  // namespace tessarine::desktop
