#include "MameVersion.h"

#include "core/CommandLine.h"
#include "core/TextFile.h"

namespace coinlight {

std::string MameVersionFromOutput(std::string_view output) {
    const auto blank = [](char c) {
        return c == ' ' || c == '\t' || c == '\r' || c == '\n';
    };
    std::size_t begin = 0;
    while (begin < output.size() && blank(output[begin])) {
        ++begin;
    }
    std::size_t end = begin;
    while (end < output.size() && !blank(output[end])) {
        ++end;
    }
    std::string version(output.substr(begin, end - begin));
    for (std::size_t at; (at = version.find(".0.0")) != std::string::npos;) {
        version.erase(at, 4);
    }
    return version;
}

std::string MameVersion(const std::filesystem::path& mameFolder, std::string_view executable,
                        const std::filesystem::path& tempFolder, const ExecPump& pump) {
    const auto capture = tempFolder / "version.txt";
    CommandLine line(mameFolder, executable);
    line.Word("-version").RedirectOutput(capture);
    const ExecResult run = ExecCmd(line.Text(), mameFolder, pump);
    const auto output = ReadFileBytes(capture);
    std::error_code ignored;
    std::filesystem::remove(capture, ignored);
    if (run.outcome != ExecOutcome::Finished || !output) {
        return {};
    }
    return MameVersionFromOutput(*output);
}

} // namespace coinlight
