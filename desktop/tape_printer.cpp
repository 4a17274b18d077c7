#include "tape_printer.hpp"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QStringList>

namespace tessarine::desktop {

int PrintTapeText(const Desktop::PrintJob& job, QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return 0;
  // The job's geometry is in points; the painter draws in device pixels, and the
  // font's point size already follows the printer's resolution.
  const double scale = printer.resolution() / 72.0;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(10);
  painter.setFont(font);
  const double line_height = QFontMetricsF(font, &printer).lineSpacing();
  const double block_height = job.block_height * scale;
  const int lines_per_page = std::max(1, static_cast<int>(block_height / line_height));

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
    const QRectF block(job.left * scale, job.top * scale + on_page * line_height,
                       job.block_width * scale, line_height);
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

}  // namespace tessarine::desktop
