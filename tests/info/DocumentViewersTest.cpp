#include "info/DocumentViewers.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

class DocumentViewers : public ::testing::Test {
protected:
    DocumentViewers() {
        m_folders.mameFolder = m_folder / "mame";
        m_folders.appFolder = m_folder / "app";
        m_folders.data.root = m_folder / "data";
        std::filesystem::create_directories(m_folders.mameFolder);
    }
    DocumentOpening Open(DocumentViewer viewer) {
        return OpenDocument(DocumentOf(viewer, m_folders), m_folder / "no-manual.html");
    }
    std::filesystem::path Docs(const std::string& relative) {
        return m_folders.mameFolder / "docs" / "source" / relative;
    }

    TempFolder m_folder;
    DocumentFolders m_folders;
};

TEST_F(DocumentViewers, AMameFolderWithoutDocsSaysSoOnTwoLines) {
    const DocumentOpening keys = Open(DocumentViewer::MAMEDefaultKeys);
    EXPECT_EQ(keys.kind, DocumentOpening::Kind::Tell);
    EXPECT_EQ(keys.message.title, "MAME Default Keys");
    EXPECT_EQ(keys.message.text, "Cannot find defaultkeys.rst.\nThis file comes with MAME and "
                                 "should be in a sub-folder in the docs directory.");
    WriteFile(Docs("commandline/commandline-all.rst"), "all\n");
    const DocumentOpening lines = Open(DocumentViewer::MAMECommandLines);
    EXPECT_EQ(lines.message.title, "MAME Command-Line Options");
    EXPECT_TRUE(lines.message.text.starts_with("Cannot find commandline-all.rst.\n"))
        << "the second file's absence is told with the first one's name";
    EXPECT_EQ(Open(DocumentViewer::Heritage).message.text, "Cannot find heritage.txt!");
    EXPECT_EQ(Open(DocumentViewer::Unlisted).message.title, "Unlisted Machines");
}

TEST_F(DocumentViewers, MarkupGoesUnconditionallyAndTheCommandLinesAreJoined) {
    WriteFile(Docs("commandline/commandline-all.rst"), "**-rompath** C:\\mame\\roms\n");
    WriteFile(Docs("commandline/windowsconfig.rst"), "*Windows* options\n");
    const DocumentOpening lines = Open(DocumentViewer::MAMECommandLines);
    EXPECT_EQ(lines.kind, DocumentOpening::Kind::Show);
    EXPECT_EQ(lines.text, "-rompath C:mameroms\nWindows options\n");
    WriteFile(m_folders.data.Output() / "unlisted.txt", "");
    const DocumentOpening unlisted = Open(DocumentViewer::Unlisted);
    EXPECT_EQ(unlisted.kind, DocumentOpening::Kind::Show);
    EXPECT_EQ(unlisted.text, "");
    WriteFile(m_folders.data.Output() / "unlisted.txt", "a*b\\c\r\n");
    EXPECT_EQ(Open(DocumentViewer::Unlisted).text, "a*b\\c\r\n") << "plain text stays whole";
}

TEST_F(DocumentViewers, TheInstalledManualOpensAtTheMatchingSection) {
    const auto manual = m_folder / "doc" / "index.html";
    WriteFile(manual, "<div id=\"document-usingmame/defaultkeys\"></div>"
                      "<div id=\"document-advanced/bgfx\"></div>"
                      "<div id=\"document-commandline/commandline-all\"></div>");
    const auto open = [&](DocumentViewer viewer) {
        return OpenDocument(DocumentOf(viewer, m_folders), manual);
    };
    const std::string base = "file://" + manual.string();
    EXPECT_EQ(open(DocumentViewer::MAMEDefaultKeys).kind, DocumentOpening::Kind::OpenManual);
    EXPECT_EQ(open(DocumentViewer::MAMEDefaultKeys).manualAddress,
              base + "#document-usingmame/defaultkeys");
    EXPECT_EQ(open(DocumentViewer::MAMECommandLines).manualAddress,
              base + "#document-commandline/commandline-all");
    EXPECT_EQ(open(DocumentViewer::MAMEBGFX).manualAddress, base + "#document-advanced/bgfx")
        << "a document that moved is found by its name";
    EXPECT_EQ(open(DocumentViewer::MAMEHLSL).manualAddress, base) << "no section: the top";
    EXPECT_EQ(open(DocumentViewer::Unlisted).kind, DocumentOpening::Kind::Tell)
        << "the manual stands in for MAME's documents only";
    WriteFile(Docs("usingmame/defaultkeys.rst"), "Keys\n");
    EXPECT_EQ(open(DocumentViewer::MAMEDefaultKeys).kind, DocumentOpening::Kind::Show)
        << "the document itself comes first";
}

} // namespace
} // namespace coinlight::test
