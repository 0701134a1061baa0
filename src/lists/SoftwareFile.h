#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "core/DataLayout.h"
#include "core/UserMessage.h"

namespace coinlight {

/// output/soft/<machine>.txt: a machine's software, made from software.xml on first view.
std::filesystem::path SoftwareFileOf(const DataLayout& data, std::string_view machine);

/// True for a software file that is worth a warning before it loads: 900,001 bytes or more.
bool SoftwareFileTakesLong(const std::filesystem::path& file);

enum class SoftwareFileStatus {
    Ready,         // the file exists, made now or earlier: load it
    NoSoftwareXml, // show `message`; nothing to load
    NoLists,       // the machine has no software lists; no file is made for it
    Failed,        // show `message`; no file is left behind
};

struct SoftwareFilePreparation {
    SoftwareFileStatus status = SoftwareFileStatus::Ready;
    std::optional<UserMessage> message;
};

/// Makes the machine's software file when it does not exist yet, from each list of its
/// `Software List(s)` field in turn. `announce` runs just before the work begins, which
/// may take seconds for the largest lists.
SoftwareFilePreparation PrepareSoftwareFile(const DataLayout& data,
                                            const std::vector<std::filesystem::path>& softwarePaths,
                                            std::string_view machine,
                                            std::string_view softwareListsField,
                                            const std::function<void()>& announce);

} // namespace coinlight
