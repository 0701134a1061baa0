#include "ClrMameFiles.h"

#include <set>

#include "catalogue/QuotedRecordFile.h"
#include "catalogue/XmlLineScanners.h"
#include "core/FileTests.h"
#include "core/LineReader.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr std::string_view kFilterItems[] = {R"(<item name="Rebuilder/filter" active="1">)",
                                             R"(<item name="Scanner/filter" active="1">)"};
constexpr std::string_view kItemStart = "<item";
constexpr std::string_view kItemEnd = "</item>";
constexpr std::string_view kMark = "<!--Coinlight-->";
// These four name samples of a set that holds none of its own.
constexpr std::string_view kSampleExceptions[] = {"nhomerun", "fantasyu", "fantasy", "homerun"};

std::string XmlEscaped(std::string_view text) {
    std::string escaped;
    for (char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find('\n', at);
        if (end == std::string_view::npos) {
            end = text.size();
        }
        std::string_view line = text.substr(at, end - at);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        at = end + 1;
    }
    return lines;
}

bool KeepsSampleLine(std::string_view line) {
    return line.find("<description>") != std::string_view::npos ||
           line.find("<year>") != std::string_view::npos ||
           line.find("<manufacturer>") != std::string_view::npos ||
           line.find("<sample name=") != std::string_view::npos;
}

bool IsSampleException(std::string_view name) {
    for (std::string_view exception : kSampleExceptions) {
        if (name == exception) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string SoftwareListFilter(const std::vector<std::string>& lists) {
    std::string filter = "xp://softwarelist[";
    bool first = true;
    for (const std::string& list : lists) {
        filter += first ? "@name='" : " or @name='";
        for (char c : list) {
            filter += c;
            if (c == '\'') {
                filter += '\'';
            }
        }
        filter += '\'';
        first = false;
    }
    filter += "]/software";
    return filter;
}

std::string ReplaceFilterItems(std::string_view settingsXml, std::string_view filter) {
    const std::string value = XmlEscaped(filter);
    std::string out;
    const auto lines = Lines(settingsXml);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::string_view line = lines[index];
        std::string_view item;
        std::size_t at = std::string_view::npos;
        for (std::string_view candidate : kFilterItems) {
            if ((at = line.find(candidate)) != std::string_view::npos) {
                item = candidate;
                break;
            }
        }
        if (item.empty()) {
            out.append(line).append("\r\n");
            continue;
        }
        // The item's old value may run over several lines: all of them go.
        std::size_t last = index;
        while (last < lines.size() && lines[last].find(kItemEnd) == std::string_view::npos) {
            ++last;
            // An item that never closes must not take the next item's close for its own.
            if (last < lines.size() && lines[last].find(kItemStart) != std::string_view::npos) {
                last = lines.size();
            }
        }
        std::string_view tail;
        if (last < lines.size()) {
            const std::string_view closing = lines[last];
            tail = closing.substr(closing.find(kItemEnd) + kItemEnd.size());
            if (tail.starts_with(kMark)) {
                tail.remove_prefix(kMark.size());
            }
            index = last;
        }
        out.append(line.substr(0, at)).append(item).append(value).append(kItemEnd).append(kMark);
        out.append(tail).append("\r\n");
    }
    return out;
}

std::string SampleMachinesXml(const std::function<bool(std::string_view&)>& nextLine,
                              std::size_t* taken) {
    std::string out = "<?xml version=\"1.0\"?>\r\n<mame>\r\n";
    std::size_t count = 0;
    bool inMachine = false;
    std::string_view line;
    while (nextLine(line)) {
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!inMachine) {
            if (line.find("<machine name=") == std::string_view::npos ||
                line.find("sampleof=") == std::string_view::npos) {
                continue;
            }
            const XmlAttribute name = GetXMLAttribute(line, "machine name=");
            if (name.Failed() || IsSampleException(name.value)) {
                continue;
            }
            inMachine = true;
            ++count;
            out.append(line).append("\r\n");
            continue;
        }
        if (line.find("</machine>") != std::string_view::npos) {
            out.append(line).append("\r\n");
            inMachine = false;
        } else if (KeepsSampleLine(line)) {
            out.append(line).append("\r\n");
        }
    }
    if (inMachine) {
        out.append("\t</machine>\r\n"); // a list cut short still gives a whole file
    }
    out.append("</mame>\r\n");
    if (taken != nullptr) {
        *taken = count;
    }
    return out;
}

ClrMameOutcome CreateClrMAMEFiles(const ClrMameRequest& request) {
    ClrMameOutcome outcome;
    const auto say = [&outcome](std::string title, std::string text, bool information) {
        outcome.messages.push_back({std::move(title), std::move(text), information});
    };
    const auto progress = [&request](const char* stage) {
        if (request.progress) {
            request.progress(stage);
        }
    };
    const auto output = request.dataFolder / "output";
    const auto favourites = LoadMachineRecords(output / "otherfavs.txt");
    if (favourites.error && favourites.records.empty()) {
        say("Coinlight",
            "A Favorite Other Machines file needs to exist before we can create other machine "
            "and software ClrMAME files.",
            true);
        return outcome;
    }
    const auto settings = request.toolFolder / "settings.xml";
    for (const char* needed : {"settings.xml", "software.xml"}) {
        if (!FileExists(request.toolFolder / needed)) {
            say(kClrMameTitle, std::string("Cannot find ") + needed + ".  Exiting sub.", true);
            return outcome;
        }
    }
    progress("Generating ClrMAME files...");

    std::vector<std::string> machines;
    std::vector<std::string> lists;
    std::set<std::string> seen;
    for (const MachineRecord& record : favourites.records) {
        machines.emplace_back(record.Field(MachineField::Rom));
        std::string_view field = record.Field(MachineField::SoftwareLists);
        while (!field.empty()) {
            const std::size_t end = field.find(';');
            const std::string_view list = field.substr(0, end);
            if (!list.empty() && list != "N/A" && seen.insert(std::string(list)).second) {
                lists.emplace_back(list);
            }
            field = end == std::string_view::npos ? std::string_view() : field.substr(end + 1);
        }
    }
    outcome.favourites = machines.size();
    outcome.softwareLists = lists.size();
    std::string error;
    if (!WriteTextLines(request.toolFolder / "machine.txt", machines, &error)) {
        say(kClrMameTitle, "Process Incomplete.", false);
        return outcome;
    }

    LineReader machineList(output / "machine.xml");
    if (!machineList.IsOpen()) {
        say(kClrMameTitle, "Process Incomplete.", false);
        return outcome;
    }
    const std::string samples =
        SampleMachinesXml([&machineList](std::string_view& line) { return machineList.Next(line); },
                          &outcome.sampleMachines);
    if (machineList.Failed() ||
        !WriteFileBytes(request.toolFolder / "sample.xml", samples, &error)) {
        say(kClrMameTitle, "Process Incomplete.", false);
        return outcome;
    }

    progress("Updating ClrMAME settings.xml...");
    const auto old = ReadFileBytes(settings);
    const auto temp = request.dataFolder / "temp" / "settings.xml";
    if (!old || !WriteFileBytes(request.toolFolder / "settings.bak", *old, &error)) {
        say(kClrMameTitle, "Process Incomplete.", false);
        return outcome;
    }
    const std::string updated = ReplaceFilterItems(*old, SoftwareListFilter(lists));
    if (!WriteFileBytes(temp, updated, &error)) {
        say(kClrMameTitle, "Process Incomplete.", false);
        return outcome;
    }
    if (updated.size() < kSmallSettingsLimit) {
        say("Coinlight", "New settings.xml is small.  Not overwriting original.", true);
    } else if (WriteFileBytes(settings, updated, &error)) {
        outcome.settingsReplaced = true;
    } else {
        say(kClrMameTitle, "Process Incomplete.", false);
    }
    std::error_code ignored;
    std::filesystem::remove(temp, ignored);
    return outcome;
}

} // namespace coinlight
