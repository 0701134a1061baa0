// Debian's MAME verifies a ROM folder holding a set with wrong contents: the bulk report
// calls it bad and List Bad Sets finds it.
#include "ReportsWindowFixture.h"

namespace coinlight::test {
namespace {

unsigned long Crc32(const std::string& bytes) {
    unsigned long crc = 0xFFFFFFFFul;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ (0xEDB88320ul & (0ul - (crc & 1ul)));
        }
    }
    return crc ^ 0xFFFFFFFFul;
}

/// A zip archive of one stored file, made by hand: the test needs no archiver.
std::string ZipOfOneFile(const std::string& name, const std::string& content) {
    const auto le16 = [](std::string& out, unsigned value) {
        out.push_back(static_cast<char>(value & 0xFF));
        out.push_back(static_cast<char>((value >> 8) & 0xFF));
    };
    const auto le32 = [&le16](std::string& out, unsigned long value) {
        le16(out, static_cast<unsigned>(value & 0xFFFF));
        le16(out, static_cast<unsigned>((value >> 16) & 0xFFFF));
    };
    const unsigned long crc = Crc32(content);
    std::string zip;
    le32(zip, 0x04034b50);
    for (unsigned field : {20u, 0u, 0u, 0u, 0u}) {
        le16(zip, field);
    }
    le32(zip, crc);
    le32(zip, content.size());
    le32(zip, content.size());
    le16(zip, static_cast<unsigned>(name.size()));
    le16(zip, 0);
    zip += name + content;
    const auto central = zip.size();
    le32(zip, 0x02014b50);
    for (unsigned field : {20u, 20u, 0u, 0u, 0u, 0u}) {
        le16(zip, field);
    }
    le32(zip, crc);
    le32(zip, content.size());
    le32(zip, content.size());
    le16(zip, static_cast<unsigned>(name.size()));
    for (unsigned field : {0u, 0u, 0u, 0u}) {
        le16(zip, field);
    }
    le32(zip, 0);
    le32(zip, 0);
    zip += name;
    const auto centralSize = zip.size() - central;
    le32(zip, 0x06054b50);
    for (unsigned field : {0u, 0u, 1u, 1u}) {
        le16(zip, field);
    }
    le32(zip, centralSize);
    le32(zip, central);
    le16(zip, 0);
    return zip;
}

class RealMameReports : public MainWindowFixture {};

TEST_F(RealMameReports, AZipWithWrongContentsIsABadSetOfTheBulkReport) {
    if (!std::filesystem::exists("/usr/games/mame")) {
        GTEST_SKIP() << "Debian's MAME is not installed at /usr/games/mame";
    }
    WriteFile(Roms() / "pacman.zip", ZipOfOneFile("pacman.6e", std::string(4096, 'x')));
    m_mame = {"/usr/games", "mame"};
    WriteOptions();
    ASSERT_TRUE(Load()) << Told();

    m_prompter.Queue(PromptAnswer::Yes);
    Form().VerifyROMs();
    const std::string report = ReadFile(Output() / "arcadeauditroms.txt");
    EXPECT_NE(report.find("romset pacman [puckman] is bad\n"), std::string::npos) << report;
    ASSERT_EQ(Controls().cmdFind->text(), "&List Bad Sets");
    Form().Find();
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().startsWith(
        "1 bad sets found.\n\nromset pacman [puckman] is bad\n"))
        << Controls().rtfVerify->toPlainText().toStdString();
}

} // namespace
} // namespace coinlight::test
