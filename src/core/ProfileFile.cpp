#include "ProfileFile.h"

#include <algorithm>
#include <mutex>
#include <sys/stat.h>
#include <unordered_map>

#include "TextFile.h"

namespace coinlight {

namespace {

struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = -1;
    long long modifiedSeconds = 0;
    long modifiedNanoseconds = 0;

    bool operator==(const Stamp&) const = default;
};

std::optional<Stamp> StampOf(const std::filesystem::path& file) {
    struct stat info {};
    if (::stat(file.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    return Stamp{info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

struct CachedProfile {
    Stamp stamp;
    std::shared_ptr<const ProfileDocument> document;
};

class ProfileCache {
public:
    std::shared_ptr<const ProfileDocument> Load(const std::filesystem::path& file) {
        // Every load looks at the file's stamp, so that a change by another program is
        // never missed; loops over many keys hold the document instead of coming back.
        const std::string& key = file.native();
        const auto stamp = StampOf(file);
        std::lock_guard lock(m_mutex);
        auto found = m_entries.find(key);
        if (!stamp) {
            if (found != m_entries.end()) {
                m_entries.erase(found);
            }
            return Empty();
        }
        if (found != m_entries.end() && found->second.stamp == *stamp) {
            return found->second.document;
        }
        auto bytes = ReadFileBytes(file);
        if (!bytes) {
            m_entries.erase(key);
            return Empty();
        }
        auto document = std::make_shared<const ProfileDocument>(std::move(*bytes));
        m_entries[key] = CachedProfile{*stamp, document};
        return document;
    }

    /// After our own write the new text is already at hand: no need to read it back.
    void Remember(const std::filesystem::path& file, std::string text) {
        const auto stamp = StampOf(file);
        std::lock_guard lock(m_mutex);
        if (!stamp) {
            m_entries.erase(file.string());
            return;
        }
        m_entries[file.string()] =
            CachedProfile{*stamp, std::make_shared<const ProfileDocument>(std::move(text))};
    }

    void Forget(const std::filesystem::path& file) {
        std::lock_guard lock(m_mutex);
        m_entries.erase(file.string());
    }

private:
    static std::shared_ptr<const ProfileDocument> Empty() {
        static const auto empty = std::make_shared<const ProfileDocument>();
        return empty;
    }

    std::mutex m_mutex;
    std::unordered_map<std::string, CachedProfile> m_entries;
};

ProfileCache& Cache() {
    static ProfileCache cache;
    return cache;
}

std::string WithoutLineBreaks(std::string_view value) {
    std::string clean(value);
    std::replace(clean.begin(), clean.end(), '\r', ' ');
    std::replace(clean.begin(), clean.end(), '\n', ' ');
    return clean;
}

std::string SpacedText(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + 64);
    for (const auto& line : SpacedLines(bytes)) {
        text.append(line);
        text.append("\r\n");
    }
    return text;
}

bool Store(const std::filesystem::path& file, std::string text, std::string* error) {
    if (!WriteFileBytes(file, text, error)) {
        Cache().Forget(file);
        return false;
    }
    Cache().Remember(file, std::move(text));
    return true;
}

} // namespace

std::shared_ptr<const ProfileDocument> LoadProfile(const std::filesystem::path& file) {
    return Cache().Load(file);
}

void ForgetProfile(const std::filesystem::path& file) {
    Cache().Forget(file);
}

std::string ReadProfileValue(const ProfileDocument& document, std::string_view section,
                             std::string_view key, std::string_view defaultValue) {
    const auto value = document.Find(section, key);
    const std::string_view text = value ? *value : defaultValue;
    return std::string(text.substr(0, kProfileValueLimit));
}

std::string ReadProfileValue(const std::filesystem::path& file, std::string_view section,
                             std::string_view key, std::string_view defaultValue) {
    return ReadProfileValue(*LoadProfile(file), section, key, defaultValue);
}

std::string ReadProfileValue(const std::filesystem::path& file, std::string_view section,
                             std::string_view key, long long defaultValue) {
    return ReadProfileValue(file, section, key, std::to_string(defaultValue));
}

bool WriteProfileValue(const std::filesystem::path& file, std::string_view section,
                       std::string_view key, std::string_view value, std::string* error) {
    ProfileEditor editor(file);
    editor.Set(section, key, value);
    return editor.Commit(false, error);
}

bool DeleteProfileKey(const std::filesystem::path& file, std::string_view section,
                      std::string_view key, std::string* error) {
    ProfileEditor editor(file);
    editor.RemoveKey(section, key);
    return editor.Commit(false, error);
}

bool DeleteProfileSection(const std::filesystem::path& file, std::string_view section,
                          std::string* error) {
    const auto document = LoadProfile(file);
    if (!document->HasSection(section)) {
        return true;
    }
    return Store(file, document->WithoutSection(section), error);
}

bool ClearProfileSection(const std::filesystem::path& file, std::string_view section,
                         std::string* error) {
    ProfileEditor editor(file);
    editor.ClearSection(section);
    return editor.Commit(false, error);
}

std::vector<std::string> SpacedLines(std::string_view bytes) {
    const std::size_t nul = bytes.find('\0');
    if (nul != std::string_view::npos) {
        bytes = bytes.substr(0, nul);
    }
    // Lines end at LF as well as CR LF here: a file edited by hand on Linux must not lose
    // its content to a split that only knows CR LF.
    std::vector<std::string> lines;
    for (auto& line : SplitLines(bytes)) {
        if (!lines.empty() && !line.empty() && line.front() == '[' && !lines.back().empty()) {
            lines.emplace_back();
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

bool INISpacing(const std::filesystem::path& file, std::string* error) {
    const auto bytes = ReadFileBytes(file);
    if (!bytes) {
        return true; // nothing to space
    }
    std::string spaced = SpacedText(*bytes);
    if (spaced == *bytes) {
        return true;
    }
    return Store(file, std::move(spaced), error);
}

ProfileEditor::ProfileEditor(std::filesystem::path file)
    : m_file(std::move(file)), m_document(LoadProfile(m_file)) {}

void ProfileEditor::Set(std::string_view section, std::string_view key, std::string_view value) {
    m_document = std::make_shared<const ProfileDocument>(
        m_document->WithValue(section, WithoutLineBreaks(key), WithoutLineBreaks(value)));
    m_changed = true;
}

void ProfileEditor::RemoveKey(std::string_view section, std::string_view key) {
    if (!m_document->Find(section, key) && !m_document->HasSection(section)) {
        return;
    }
    m_document = std::make_shared<const ProfileDocument>(m_document->WithoutKey(section, key));
    m_changed = true;
}

void ProfileEditor::ClearSection(std::string_view section) {
    if (!m_document->HasSection(section)) {
        return;
    }
    m_document = std::make_shared<const ProfileDocument>(m_document->WithSectionCleared(section));
    m_changed = true;
}

bool ProfileEditor::Commit(bool spacing, std::string* error) {
    if (!m_changed && !spacing) {
        return true;
    }
    std::string text = m_document->Text();
    if (spacing) {
        text = SpacedText(text);
    }
    return Store(m_file, std::move(text), error);
}

} // namespace coinlight
