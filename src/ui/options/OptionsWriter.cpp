#include "OptionsWriter.h"

#include "core/OptionsIni.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"

namespace coinlight {

namespace {

/// Sets, in table order, the keys of one section that belong to the dialog.
class DialogKeyWriter {
public:
    DialogKeyWriter(ProfileEditor& editor, const char* section)
        : m_editor(editor), m_section(section) {}

    template <class T> void operator()(std::string_view key, const T& field, KeyWriter writer) {
        if (writer == KeyWriter::OptionsDialog) {
            m_editor.Set(m_section, key, PreferenceText(field));
        }
    }

private:
    ProfileEditor& m_editor;
    const char* m_section;
};

} // namespace

bool WriteOptionsIni(const std::filesystem::path& file, const Preferences& preferences,
                     std::string* error) {
    if (!WriteFilterList(file, kSectionBiosFilter, preferences.biosFilter, error) ||
        !WriteFilterList(file, kSectionCategoryFilter, preferences.categoryFilter, error)) {
        return false;
    }
    ProfileEditor editor(file);
    ForEachOtherKey(preferences.other, DialogKeyWriter(editor, kSectionOther));
    ForEachMameKey(preferences.mame, DialogKeyWriter(editor, kSectionMame));
    ForEachSearchPathKey(preferences.searchPaths, DialogKeyWriter(editor, kSectionSearchPaths));
    ForEachOutputPathKey(preferences.outputPaths, DialogKeyWriter(editor, kSectionOutputPaths));
    ForEachViewKey(preferences.view, DialogKeyWriter(editor, kSectionView));
    return editor.Commit(true, error);
}

} // namespace coinlight
