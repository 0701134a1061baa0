#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "catalogue/CatalogueProgress.h"
#include "catalogue/CreateSupportFiles.h"
#include "support/TestFiles.h"

namespace coinlight::test {

/// Records what a catalogue routine reports, in order.
class RecordingProgress : public CatalogueProgress {
public:
    void ShowCapture(std::string_view text) override {
        events.push_back("capture " + std::string(text));
    }
    void ShowStep(std::string_view text) override { events.push_back("step " + std::string(text)); }
    void ShowCountsHeading(std::string_view text) override {
        events.push_back("heading " + std::string(text));
    }
    void ShowArcadeCount(std::int32_t count) override {
        events.push_back("arcade " + std::to_string(count));
    }
    void ShowOtherCount(std::int32_t count) override {
        events.push_back("other " + std::to_string(count));
    }
    void ClearStep() override { events.push_back("clear"); }
    void ShowCatverMerge(std::string_view heading, std::string_view text,
                         std::string_view note) override {
        events.push_back("catver " + std::string(heading) + "|" + std::string(text) + "|" +
                         std::string(note));
    }
    void ClearCatverMerge() override { events.push_back("catver clear"); }
    void Pump() override { ++pumps; }

    std::vector<std::string> events;
    int pumps = 0;
};

/// A machine list of `count` machines named `prefix` and a number, each with a screen of
/// `screen` type and a filtered software list, and the list line that names them all.
struct GeneratedMachines {
    std::string xml;
    std::string listLine;
};
inline GeneratedMachines GenerateMachines(int count, const std::string& prefix,
                                          const std::string& screen) {
    GeneratedMachines made{"<mame>\n", "|"};
    for (int i = 0; i < count; ++i) {
        const std::string name = prefix + std::to_string(i);
        made.xml += "\t<machine name=\"" + name + "\">\n\t\t<display type=\"" + screen +
                    "\"/>\n\t\t<softwarelist name=\"l\" filter=\"f\"/>\n\t</machine>\n";
        made.listLine += name + "|";
    }
    made.xml += "</mame>\n";
    return made;
}

/// A data folder's output and support folders with the catalogue fixtures in place.
struct CatalogueFolder {
    TempFolder temp;
    std::filesystem::path Output() const { return temp / "output"; }
    std::filesystem::path Support() const { return temp / "support"; }

    CatalogueFolder() {
        std::filesystem::create_directories(Output());
        std::filesystem::create_directories(Support());
        std::filesystem::copy_file(FixturesFolder() / "catalogue" / "machine.xml",
                                   Output() / "machine.xml");
        std::filesystem::copy_file(FixturesFolder() / "catalogue" / "lists.txt",
                                   Support() / "lists.txt");
    }

    CatalogueSources Sources(bool withCatver = false) const {
        CatalogueSources sources{Output() / "machine.xml", Support() / "lists.txt", std::nullopt,
                                 Output()};
        if (withCatver) {
            sources.catverIni = FixturesFolder() / "catalogue" / "catver.ini";
        }
        return sources;
    }
};

} // namespace coinlight::test
