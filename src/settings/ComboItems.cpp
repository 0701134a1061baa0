#include "ComboItems.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <thread>

#include "PathList.h"
#include "core/FileTests.h"
#include "core/TextCase.h"

namespace coinlight {

namespace {

using Items = std::vector<std::string>;

Items Numbered(int first, int last, std::string_view suffix = {}) {
    Items items;
    for (int number = first; number <= last; ++number) {
        items.push_back(std::to_string(number) + std::string(suffix));
    }
    return items;
}

Items With(Items head, const Items& tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

/// The names in a folder that pass `wanted`, sorted; none when the folder cannot be read.
Items FolderNames(const std::filesystem::path& folder,
                  const std::function<bool(const std::filesystem::directory_entry&)>& wanted) {
    Items names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (wanted(*entry)) {
            names.push_back(entry->path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

Items FilesMatching(const std::filesystem::path& folder, std::string_view pattern) {
    return FolderNames(folder, [pattern](const std::filesystem::directory_entry& entry) {
        std::error_code error;
        return entry.is_regular_file(error) &&
               MatchesWildcard(pattern, entry.path().filename().string());
    });
}

Items Effects(const ComboSources& sources) {
    Items items = {"None"};
    for (const auto& folder : sources.artworkFolders) {
        for (const auto& name : FilesMatching(folder, "*.png")) {
            items.push_back(ProperCase(std::string_view(name).substr(0, name.size() - 4)));
        }
    }
    return items;
}

Items Languages(const ComboSources& sources) {
    return With({"Default"},
                FolderNames(sources.languageFolder, [](const std::filesystem::directory_entry& e) {
                    std::error_code error;
                    return e.is_directory(error);
                }));
}

Items Processors(const ComboSources& sources) {
    // Four times the hardware threads: enough room to oversubscribe on purpose.
    return With({"Auto"}, Numbered(1, static_cast<int>(sources.processors) * 4));
}

std::string DisplayName(int number) {
    return "\\\\.\\DISPLAY" + std::to_string(number);
}

Items Screens(int count) {
    Items items = {"Auto"};
    for (int number = 1; number <= count; ++number) {
        items.push_back(DisplayName(number));
    }
    return items;
}

Items Resolutions(const ComboSources& sources) {
    Items items = {"Auto"};
    for (const auto& mode : sources.displayModes) {
        items.push_back(std::to_string(mode.width) + "x" + std::to_string(mode.height));
    }
    for (const auto& mode : sources.displayModes) {
        items.push_back(std::to_string(mode.width) + "x" + std::to_string(mode.height) + "@" +
                        std::to_string(mode.refreshRate));
    }
    // Two screens of one size give the same item twice in a row: once is enough.
    items.erase(std::unique(items.begin(), items.end()), items.end());
    return items;
}

struct ComboList {
    std::string_view control; // without an array index
    std::function<Items(const ComboSources&)> make;
};

Items Fixed(std::initializer_list<const char*> items) {
    return Items(items.begin(), items.end());
}

const std::vector<ComboList>& ComboLists() {
    const auto fixed = [](std::initializer_list<const char*> items) {
        return [list = Fixed(items)](const ComboSources&) {
            return list;
        };
    };
    const auto steps = [](float from, float limit, float step, int decimals) {
        return [=](const ComboSources&) {
            return SingleSteps(from, limit, step, decimals);
        };
    };
    const auto stepsToOne = [](const ComboSources&) {
        // The single-precision sum never quite reaches 1, so it is added by hand.
        return With(SingleSteps(0.0f, 1.0f, 0.05f, 2), {"1.00"});
    };
    const auto providers = fixed({"Auto", "RawInput", "DInput", "Win32", "None", "SDL"});
    static const std::vector<ComboList> lists = {
        {"cboFrameSkip",
         [](const ComboSources&) {
             Items items = {"Auto", "None"};
             for (int skip = 1; skip <= 10; ++skip) {
                 items.push_back(std::to_string(skip) + " Of 12");
             }
             return items;
         }},
        {"cboSpeed",
         [](const ComboSources&) {
             return Numbered(1, 300, "%");
         }},
        {"cboRoll", fixed({"None", "Right", "Left", "AutoRight", "AutoLeft"})},
        {"cboFlip", fixed({"None", "Horizontally", "Vertically", "Both"})},
        {"cboBrightness", steps(0.10f, 2.00f, 0.01f, 2)},
        {"cboFullScreenBrightness", steps(0.10f, 2.00f, 0.01f, 2)},
        {"cboContrast", steps(0.10f, 2.00f, 0.05f, 2)},
        {"cboFullScreenContrast", steps(0.10f, 2.00f, 0.05f, 2)},
        {"cboGamma", steps(0.10f, 3.00f, 0.05f, 2)},
        {"cboFullScreenGamma", steps(0.10f, 3.00f, 0.05f, 2)},
        {"cboEffect", Effects},
        {"cboBeamMin", steps(1.00f, 10.01f, 0.01f, 2)},
        {"cboBeamMax", steps(1.00f, 10.01f, 0.01f, 2)},
        {"cboBeamDotSize", steps(1.00f, 10.01f, 0.01f, 2)},
        {"cboBeamWeight", steps(-1.00f, 1.00f, 0.01f, 2)},
        {"cboFlicker", steps(0.00f, 1.00f, 0.01f, 2)},
        {"cboSampleRate", fixed({"11025", "22050", "44100", "48000"})},
        {"cboVolume",
         [](const ComboSources&) {
             return With(Numbered(-32, -1, "dB"), {"0dB"});
         }},
        {"cboController",
         [](const ComboSources& sources) {
             return With({"None"}, FilesMatching(sources.controllerFolder, "*.cfg"));
         }},
        {"cboDeadzone", stepsToOne},
        {"cboSaturation", stepsToOne},
        {"cboThreshold", stepsToOne},
        {"cboInputDev", fixed({"None", "Keyboard", "Mouse", "Joystick", "Lightgun"})},
        {"cboBIOS", fixed({"Default"})},
        {"cboUIFont",
         [](const ComboSources& sources) {
             return With({"Default"}, sources.fonts);
         }},
        {"cboLanguage", Languages},
        {"cboKeyboardProvider", providers},
        {"cboMouseProvider", providers},
        {"cboLightgunProvider", fixed({"Auto", "RawInput", "Win32", "None"})},
        {"cboJoystickProvider",
         fixed({"Auto", "WinHybrid", "DInput", "XInput", "SDLGame", "SDLJoy", "None"})},
        {"cboNumProcessors", Processors},
        {"cboVideo", fixed({"Auto", "Accel", "BGFX", "D3D", "GDI", "OpenGL", "Soft"})},
        {"cboNumScreens",
         [](const ComboSources&) {
             return Numbered(1, 4);
         }},
        {"cboMonitorProvider", fixed({"Auto", "DXGI", "Win32"})},
        {"cboScreens",
         [](const ComboSources& sources) {
             const bool counted = sources.monitors >= 1 && sources.monitors <= 4;
             return Screens(counted ? sources.monitors : 4);
         }},
        {"cboScreen",
         [](const ComboSources&) {
             return Screens(4);
         }},
        {"cboResolutions", Resolutions},
        {"cboSound", fixed({"None", "Auto", "WASAPI", "XAudio2", "PortAudio", "SDL"})},
        {"cboAudioLat", steps(0.0f, 10.0f, 0.1f, 1)},
        {"cboBGFX", fixed({"Auto", "D3D9", "D3D11", "D3D12", "OpenGL", "GLES", "Vulkan"})},
        {"cboPrescale",
         [](const ComboSources&) {
             return Numbered(1, 3);
         }},
        {"cboPriority",
         [](const ComboSources&) {
             return Numbered(-15, 1);
         }},
    };
    return lists;
}

} // namespace

ComboSources PreferenceComboSources(const SearchPathPreferences& paths) {
    ComboSources sources;
    if (!paths.artwork.empty()) {
        sources.artworkFolders = CreateMultiplePathArray(paths.artwork).paths;
    }
    sources.controllerFolder = paths.controller;
    sources.languageFolder = paths.language;
    sources.processors = std::thread::hardware_concurrency();
    return sources;
}

std::vector<std::string> SingleSteps(float from, float limit, float step, int decimals) {
    Items items;
    for (float value = from; value <= limit; value += step) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%.*f", decimals, static_cast<double>(value));
        std::string item = text.data();
        // A sum a hair below zero is still zero on the list.
        if (item.front() == '-' && item.find_first_not_of("-0.") == std::string::npos) {
            item.erase(0, 1);
        }
        items.push_back(std::move(item));
    }
    return items;
}

std::vector<std::string> ComboItems(std::string_view control, const ComboSources& sources) {
    const std::string_view base = control.substr(0, control.find('('));
    for (const auto& list : ComboLists()) {
        if (list.control == base) {
            return list.make(sources);
        }
    }
    return {};
}

} // namespace coinlight
