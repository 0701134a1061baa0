#pragma once

#include <QString>

class QTextDocument;

namespace coinlight {

class Prompter;

/// Prints a report on the default printer, page by page with the margins of a letter.
/// Without a printer the user is asked for a PDF file, and the report is written there.
/// The box that follows says how it went; a cancelled question prints nothing and says
/// nothing.
void PrintReport(const QTextDocument& report, Prompter& prompter);

} // namespace coinlight
