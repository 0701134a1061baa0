#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/DataLayout.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The plain documents the text page shows.
enum class DocumentViewer {
    MAMECommandLines,
    MAMEDefaultKeys,
    MAMEBGFX,
    MAMEGLSL,
    MAMEHLSL,
    Heritage,
    Unlisted,
};

struct DocumentFolders {
    std::filesystem::path mameFolder;
    std::filesystem::path appFolder;
    DataLayout data;
};

/// One viewer: its caption, the files it joins, what it says when one is missing, and
/// whether the text is reStructuredText (whose `*` and `\` are markup).
struct DocumentToShow {
    std::string routine; // the command's name, for its error box
    std::string caption;
    std::vector<std::filesystem::path> files;
    std::string missingText;
    bool markup = false;
    std::string manualSection; // the section of the installed manual, for MAME's documents
};
DocumentToShow DocumentOf(DocumentViewer viewer, const DocumentFolders& folders);

/// Where the installed copy of MAME's manual lies on Debian (package mame-doc).
std::filesystem::path DebianManual();

/// What a viewer command does: show a text, open the installed manual at a section in the
/// browser because the document itself is missing, or say that it cannot find it.
struct DocumentOpening {
    enum class Kind { Show, OpenManual, Tell } kind = Kind::Show;
    std::string text;          // Show: the document
    std::string manualAddress; // OpenManual: a file address with the section as fragment
    UserMessage message;       // Tell
};
DocumentOpening OpenDocument(const DocumentToShow& document, const std::filesystem::path& manual);

/// The text with every `*` and `\` removed, unconditionally.
std::string WithoutMarkup(std::string_view text);

/// The address of `section` ("commandline/commandline-all") in the single-page manual:
/// its own anchor when the manual has it, else the anchor of a section with the same last
/// name elsewhere in the manual (documents move between releases), else the manual's top.
std::string ManualAddress(const std::filesystem::path& manual, std::string_view section);

} // namespace coinlight
