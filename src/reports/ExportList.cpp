#include "ExportList.h"

#include "core/AtomicFileWriter.h"

namespace coinlight {

namespace {

constexpr std::size_t kZoneWidth = 14;

} // namespace

std::string PrintZones(std::initializer_list<std::string_view> items) {
    std::string line;
    bool first = true;
    for (const std::string_view item : items) {
        if (!first) {
            line.append((line.size() / kZoneWidth + 1) * kZoneWidth - line.size(), ' ');
        }
        line.append(item);
        first = false;
    }
    return line;
}

std::string ExportFileName(std::string_view view) {
    return std::string(view) + ".txt";
}

UserMessage ConfirmExportQuestion() {
    UserMessage question;
    question.title = "Confirm Export";
    question.text =
        "Do you want to export this list of machines as a text file in the Coinlight Output "
        "folder?";
    question.icon = MessageIcon::Question;
    question.buttons = MessageButtons::YesNo;
    return question;
}

UserMessage ExportList(const std::filesystem::path& file, bool otherMachines, int count,
                       const std::function<ExportRow(int)>& row) {
    AtomicFileWriter out(file);
    out.WriteLine(PrintZones({"ROM", otherMachines ? "Machine" : "Title"}));
    out.WriteLine("");
    for (int i = 0; i < count; ++i) {
        const ExportRow exported = row(i);
        out.WriteLine(PrintZones({exported.shortName, exported.text}));
    }
    out.WriteLine("");
    out.WriteLine("Total: " + std::to_string(count));
    UserMessage message;
    message.title = "Export List";
    message.icon = MessageIcon::Information;
    if (!out.Commit()) {
        message.title = "Coinlight";
        message.icon = MessageIcon::Critical;
        message.text = "Error In Export: " + out.Error() + "\nLine Number: 3";
        return message;
    }
    message.text = "Export complete.  List exported as " + file.filename().string() + ".";
    return message;
}

} // namespace coinlight
