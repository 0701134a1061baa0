#include "CatverMaker.h"

#include <algorithm>
#include <vector>

#include "MameVersion.h"
#include "catalogue/MachineLists.h"
#include "catalogue/XmlLineScanners.h"
#include "core/LineReader.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

struct CatverLine {
    std::string sortKey; // version ^ category ^ name, as the sorted list held them
    std::string version;
    std::string category;
    std::string name;
};

std::string WithoutTabs(std::string_view line) {
    std::string text(line);
    std::erase(text, '\t');
    return text;
}

class PreviousCatver {
public:
    explicit PreviousCatver(const ProfileDocument* document) : m_document(document) {
        if (m_document != nullptr) {
            m_category = m_document->SectionOrdinal("Category");
            m_verAdded = m_document->SectionOrdinal("VerAdded");
        }
    }
    std::optional<std::string_view> Category(std::string_view name) const {
        return Find(m_category, name);
    }
    std::optional<std::string_view> VerAdded(std::string_view name) const {
        return Find(m_verAdded, name);
    }

private:
    std::optional<std::string_view> Find(int section, std::string_view name) const {
        if (m_document == nullptr || section < 0) {
            return std::nullopt;
        }
        return m_document->FindInSection(section, name);
    }

    const ProfileDocument* m_document;
    int m_category = -1;
    int m_verAdded = -1;
};

std::string CategoryOf(std::string_view line, std::string_view name, const PreviousCatver& previous,
                       const NameList* otherList) {
    if (line.find("isbios=\"yes\"") != std::string_view::npos) {
        return "System / BIOS";
    }
    if (line.find("isdevice=\"yes\"") != std::string_view::npos) {
        return "System / Device";
    }
    std::string category(previous.Category(name).value_or("Unknown"));
    if (category != "Unknown") {
        return category;
    }
    const bool mechanical = line.find("ismechanical=\"yes\"") != std::string_view::npos;
    const std::string_view parent = GetXMLAttribute(line, "cloneof=").value;
    const bool other = otherList != nullptr && otherList->Contains(name);
    category += other ? " / OTHER" : " / ARCADE";
    if (!parent.empty()) {
        category += " | Clone of ";
        category += parent;
        category += " (";
        category += previous.Category(parent).value_or("No Previous Category");
        category += ")";
    }
    if (mechanical) {
        category += " | Mechanical";
    }
    return category;
}

bool SortedBefore(const CatverLine& a, const CatverLine& b) {
    // A sorted list box orders without regard to case; the bytes settle ties.
    const auto folded = std::lexicographical_compare_three_way(
        a.sortKey.begin(), a.sortKey.end(), b.sortKey.begin(), b.sortKey.end(),
        [](char x, char y) { return LowerAscii(x) <=> LowerAscii(y); });
    return folded != 0 ? folded < 0 : a.sortKey < b.sortKey;
}

} // namespace

MadeCatver MakeCatver(const CatverSources& sources) {
    const PreviousCatver previous(sources.previous);
    std::vector<CatverLine> lines;
    MadeCatver made;
    std::string_view raw;
    while (sources.nextMachineLine(raw)) {
        const std::string line = WithoutTabs(raw);
        const XmlAttribute name = GetXMLAttribute(line, "machine name=");
        if (name.Failed() || name.value.empty()) {
            continue;
        }
        CatverLine entry;
        entry.name = std::string(name.value);
        entry.category = CategoryOf(line, entry.name, previous, sources.otherList);
        const auto verAdded = previous.VerAdded(entry.name);
        entry.version = std::string(verAdded.value_or(sources.mameVersion));
        entry.sortKey = entry.version + '^' + entry.category + '^' + entry.name;
        made.newMachines += verAdded ? 0 : 1;
        lines.push_back(std::move(entry));
    }
    std::stable_sort(lines.begin(), lines.end(), SortedBefore);
    made.machines = lines.size();

    std::string& text = made.text;
    text += "# CATVER INI ";
    text += sources.mameVersion;
    text += "     ";
    text += sources.today;
    text += "     Coinlight\r\n\r\n[Category]\r\n";
    for (const CatverLine& entry : lines) {
        text += entry.name + '=' + entry.category + "\r\n";
    }
    text += "\r\n[VerAdded]\r\n";
    for (const CatverLine& entry : lines) {
        text += entry.name + '=' + entry.version + "\r\n";
    }
    return made;
}

std::function<bool(std::string_view&)> MachineLinesOf(std::string_view machineXml) {
    return [machineXml, at = std::size_t{0}](std::string_view& line) mutable {
        while (at < machineXml.size()) {
            std::size_t end = machineXml.find('\n', at);
            if (end == std::string_view::npos) {
                end = machineXml.size();
            }
            line = machineXml.substr(at, end - at);
            at = end + 1;
            if (line.find("<mach") != std::string_view::npos) {
                return true;
            }
        }
        return false;
    };
}

std::variant<MadeCatver, std::string> MakeCatverFromFiles(const std::filesystem::path& machineXml,
                                                          const std::filesystem::path& listsTxt,
                                                          const std::filesystem::path& previous,
                                                          std::string_view mameVersion,
                                                          std::string_view today) {
    LineReader reader(machineXml);
    if (!reader.IsOpen()) {
        return "Cannot read " + machineXml.string();
    }
    const auto lists = ReadListsFile(listsTxt);
    if (const auto* error = std::get_if<RunTimeError>(&lists)) {
        return listsTxt.string() + ": " + error->description;
    }
    const auto old = ReadFileBytes(previous);
    if (!old) {
        return "Cannot read " + previous.string();
    }
    const ProfileDocument document(*old);
    CatverSources sources;
    sources.nextMachineLine = [&reader](std::string_view& line) {
        return reader.NextHolding("<mach", line);
    };
    sources.otherList = &std::get<MachineLists>(lists).other;
    sources.previous = &document;
    sources.mameVersion = mameVersion;
    sources.today = today;
    MadeCatver made = MakeCatver(sources);
    if (reader.Failed()) {
        return "Cannot read " + machineXml.string();
    }
    return made;
}

std::string MameVersionOfList(const std::filesystem::path& machineXml) {
    LineReader reader(machineXml);
    std::string_view line;
    // The head comes within the first lines; a file without one is not read to its end.
    for (int read = 0; read < 64 && reader.Next(line); ++read) {
        if (line.find("<mame ") != std::string_view::npos) {
            return MameVersionFromOutput(GetXMLAttribute(line, "build=").value);
        }
    }
    return {};
}

} // namespace coinlight
