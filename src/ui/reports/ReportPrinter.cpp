#include "ReportPrinter.h"

#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

#include "ui/Prompter.h"

namespace coinlight {

namespace {

/// A copy of the report laid out on the printer's pages, so the page on screen keeps its
/// own layout.
bool PrintOn(QPrinter& printer, const QTextDocument& report) {
    printer.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    std::unique_ptr<QTextDocument> copy(report.clone());
    copy->print(&printer);
    return printer.printerState() != QPrinter::Error;
}

} // namespace

void PrintReport(const QTextDocument& report, Prompter& prompter) {
    const QPrinterInfo printerInfo = QPrinterInfo::defaultPrinter();
    if (!printerInfo.isNull()) {
        QPrinter printer(printerInfo, QPrinter::HighResolution);
        const bool printed = PrintOn(printer, report);
        prompter.Message(QStringLiteral("Coinlight"),
                         printed ? QStringLiteral("List sent to default printer.")
                                 : QStringLiteral("Unknown printing error."),
                         printed ? PromptIcon::Information : PromptIcon::Critical);
        return;
    }
    const auto file =
        prompter.SaveFile(QStringLiteral("Save List As PDF"), QStringLiteral("report.pdf"),
                          QStringLiteral("PDF Files (*.pdf)"));
    if (!file || file->isEmpty()) {
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(*file);
    const bool printed = PrintOn(printer, report) && QFileInfo(*file).size() > 0;
    prompter.Message(QStringLiteral("Coinlight"),
                     printed ? QStringLiteral("List saved as ") + *file + QStringLiteral(".")
                             : QStringLiteral("Unknown printing error."),
                     printed ? PromptIcon::Information : PromptIcon::Critical);
}

} // namespace coinlight
