#include "LaunchCommand.h"

#include "core/CommandLine.h"

namespace coinlight {

std::filesystem::path StandardOutputFile(const DataLayout& data) {
    return data.Temp() / "results.txt";
}

std::filesystem::path StandardErrorFile(const DataLayout& data) {
    return data.Temp() / "error.txt";
}

std::string FoldDoubleBlanks(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        folded.push_back(text[at]);
        if (text[at] == ' ' && at + 1 < text.size() && text[at + 1] == ' ') {
            ++at;
        }
    }
    return folded;
}

std::optional<std::string> ComposeLaunchCommandLine(const Preferences& preferences,
                                                    const DataLayout& data,
                                                    std::string_view machine,
                                                    std::string_view tail) {
    if (!IsShortName(machine)) {
        return std::nullopt;
    }
    CommandLine line(preferences.searchPaths.mame, preferences.mame.executable);
    line.Word("-inipath").Path(preferences.searchPaths.ini).ShortName(machine);
    // Outside the quoted paths two blanks can only meet around the tail: the fixed words
    // stand one blank apart and a short name holds none. So folding the tail together with
    // the blank after the machine and the one before ">" is the single pass over the whole
    // line; that last blank is then left to the redirection, which writes its own.
    std::string spaced = FoldDoubleBlanks(" " + std::string(tail) + " ");
    spaced.pop_back();
    line.UserText(spaced);
    line.RedirectOutput(StandardOutputFile(data)).RedirectError(StandardErrorFile(data));
    if (!line.IsValid()) {
        return std::nullopt;
    }
    return line.LowerCasedText();
}

} // namespace coinlight
