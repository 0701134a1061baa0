#include "MakeLists.h"

#include "core/LineReader.h"
#include "XmlLineScanners.h"

namespace coinlight {

namespace {

struct MachineTraits {
    std::string name;
    bool isDevice = false;
    bool takesCoins = false;
    bool hasSoftwareList = false;
};

std::string_view WithoutIndent(std::string_view line) {
    const std::size_t start = line.find_first_not_of(" \t");
    return start == std::string_view::npos ? std::string_view() : line.substr(start);
}

} // namespace

std::variant<MadeLists, RunTimeError> MakeLists(const std::filesystem::path& machineXml) {
    LineReader reader(machineXml);
    if (!reader.IsOpen()) {
        return RunTimeError{kErrorFileNotFound, kFileNotFoundText, 1};
    }
    std::string build = "unknown";
    std::string arcade = "|";
    std::string other = "|";
    MadeLists made;
    MachineTraits machine;
    std::string_view raw;
    while (reader.Next(raw)) {
        const std::string_view line = WithoutIndent(raw);
        if (line.starts_with("<mame ")) {
            build = std::string(GetXMLAttribute(line, "build=").value);
        } else if (line.starts_with("<machine ")) {
            machine = {std::string(GetXMLAttribute(line, "name=").value),
                       line.find("isdevice=\"yes\"") != std::string_view::npos, false, false};
        } else if (line.starts_with("<input ")) {
            machine.takesCoins =
                machine.takesCoins || line.find(" coins=") != std::string_view::npos;
        } else if (line.starts_with("<softwarelist ")) {
            machine.hasSoftwareList = true;
        } else if (line.starts_with("</machine>") && !machine.isDevice && !machine.name.empty()) {
            const bool isOther = machine.hasSoftwareList || !machine.takesCoins;
            (isOther ? other : arcade).append(machine.name).push_back('|');
            ++(isOther ? made.other : made.arcade);
            machine = {};
        }
    }
    if (reader.Failed()) {
        return RunTimeError{kErrorDeviceIo, kDeviceIoText, 2};
    }
    made.text = "Coinlight machine lists for MAME " + build +
                "\r\n"
                "Made by coinlight-tool make-lists: devices are left out; a machine with a "
                "software list or without coin inputs is Other, every other machine Arcade."
                "\r\n\r\nArcade\r\n" +
                arcade + "\r\nOther\r\n" + other + "\r\n";
    return made;
}

} // namespace coinlight
