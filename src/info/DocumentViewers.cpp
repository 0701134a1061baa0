#include "DocumentViewers.h"

#include "core/FileTests.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr std::string_view kRstSecondLine =
    "This file comes with MAME and should be in a sub-folder in the docs directory.";

DocumentToShow RstDocument(const DocumentFolders& folders, const char* routine, const char* caption,
                           std::vector<std::string> sections) {
    DocumentToShow document;
    document.routine = routine;
    document.caption = caption;
    for (const auto& section : sections) {
        document.files.push_back(folders.mameFolder / "docs" / "source" / (section + ".rst"));
    }
    document.missingText = "Cannot find " + document.files.front().filename().string() + ".\n" +
                           std::string(kRstSecondLine);
    document.markup = true;
    document.manualSection = sections.front();
    return document;
}

DocumentToShow PlainDocument(const char* routine, const char* caption,
                             const std::filesystem::path& file) {
    DocumentToShow document;
    document.routine = routine;
    document.caption = caption;
    document.files = {file};
    document.missingText = "Cannot find " + file.filename().string() + "!";
    return document;
}

std::string FileAddress(const std::filesystem::path& file) {
    return "file://" + std::filesystem::absolute(file).string();
}

/// The last name of an anchor `id="document-<section>"` in the manual that ends in
/// `/<name>`, or nothing.
std::optional<std::string> AnchorEndingIn(std::string_view html, std::string_view name) {
    constexpr std::string_view kAnchor = "id=\"document-";
    const std::string tail = "/" + std::string(name) + "\"";
    for (std::size_t at = html.find(kAnchor); at != std::string_view::npos;
         at = html.find(kAnchor, at + 1)) {
        const std::size_t begin = at + kAnchor.size();
        const std::size_t quote = html.find('"', begin);
        if (quote == std::string_view::npos) {
            break;
        }
        if (html.substr(begin, quote - begin + 1).ends_with(tail)) {
            return std::string(html.substr(begin, quote - begin));
        }
    }
    return std::nullopt;
}

} // namespace

DocumentToShow DocumentOf(DocumentViewer viewer, const DocumentFolders& folders) {
    switch (viewer) {
    case DocumentViewer::MAMECommandLines:
        return RstDocument(folders, "MAMECommandLines", "MAME Command-Line Options",
                           {"commandline/commandline-all", "commandline/windowsconfig"});
    case DocumentViewer::MAMEDefaultKeys:
        return RstDocument(folders, "MAMEDefaultKeys", "MAME Default Keys",
                           {"usingmame/defaultkeys"});
    case DocumentViewer::MAMEBGFX:
        return RstDocument(folders, "MAMEBGFX", "MAME BGFX", {"bgfx/bgfx"});
    case DocumentViewer::MAMEGLSL:
        return RstDocument(folders, "MAMEGLSL", "MAME GLSL", {"advanced/glsl"});
    case DocumentViewer::MAMEHLSL:
        return RstDocument(folders, "MAMEHLSL", "MAME HLSL", {"advanced/hlsl"});
    case DocumentViewer::Heritage:
        return PlainDocument("Heritage", "Coinlight Info", folders.appFolder / "heritage.txt");
    case DocumentViewer::Unlisted:
        return PlainDocument("Unlisted", "Unlisted Machines",
                             folders.data.Output() / "unlisted.txt");
    }
    return {};
}

std::filesystem::path DebianManual() {
    return "/usr/share/doc/mame/singlehtml/index.html";
}

std::string WithoutMarkup(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    for (const char c : text) {
        if (c != '*' && c != '\\') {
            clean += c;
        }
    }
    return clean;
}

std::string ManualAddress(const std::filesystem::path& manual, std::string_view section) {
    const std::string address = FileAddress(manual);
    const auto html = ReadFileBytes(manual);
    if (!html || section.empty()) {
        return address;
    }
    const std::string exact = "id=\"document-" + std::string(section) + "\"";
    if (html->find(exact) != std::string::npos) {
        return address + "#document-" + std::string(section);
    }
    const std::size_t slash = section.rfind('/');
    const auto name = slash == std::string_view::npos ? section : section.substr(slash + 1);
    if (const auto moved = AnchorEndingIn(*html, name)) {
        return address + "#document-" + *moved;
    }
    return address;
}

DocumentOpening OpenDocument(const DocumentToShow& document, const std::filesystem::path& manual) {
    DocumentOpening opening;
    for (const auto& file : document.files) {
        if (!FileMissing(file)) {
            continue;
        }
        if (document.markup && FileExists(manual)) {
            opening.kind = DocumentOpening::Kind::OpenManual;
            opening.manualAddress = ManualAddress(manual, document.manualSection);
            return opening;
        }
        opening.kind = DocumentOpening::Kind::Tell;
        opening.message.title = document.caption;
        opening.message.text = document.missingText;
        return opening;
    }
    for (const auto& file : document.files) {
        const auto bytes = ReadFileBytes(file);
        if (!bytes) {
            opening.kind = DocumentOpening::Kind::Tell;
            opening.message =
                RoutineError("Error In " + document.routine, "Cannot read " + file.string(), 5);
            return opening;
        }
        opening.text += *bytes;
    }
    if (document.markup) {
        opening.text = WithoutMarkup(opening.text);
    }
    return opening;
}

} // namespace coinlight
