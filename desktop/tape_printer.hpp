// Printing the paper tape: blocks of plain monospaced text at the job's margins, as
// many pages as the text needs; and the page setup, kept by the program as an
// opaque text ("WIDTHxHEIGHT" of the paper in points, then the page size's id and
// the orientation).
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "runtime/platform/desktop.hpp"

class QPrinter;
class QWidget;

namespace tessarine::desktop {

// Lays the job's text out on the printer, page after page. Returns the pages printed.
int PrintTapeText(const Desktop::PrintJob& job, QPrinter& printer);
// Applies a page setup text to a printer; an empty or unknown text leaves it as it is.
void ApplyPageSetup(const std::string& setup, QPrinter& printer);
std::string PageSetupText(const QPrinter& printer);

}  // namespace tessarine::desktop
