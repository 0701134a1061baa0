#pragma once

#include <array>
#include <filesystem>

#include <QGridLayout>
#include <QLineEdit>
#include <QWidget>

#include "MameLocations.h"
#include "PathField.h"

namespace coinlight {

class Prompter;

/// The paths page of the Options dialog: the MAME executable and every folder field, each
/// with its browse button.
class PathsPage final : public QWidget {
    Q_OBJECT
public:
    PathsPage(Prompter& prompter, MameLocations locations, QWidget* parent = nullptr);

    /// Fills each field from the preferences; the Ini field always shows `iniFolder`.
    void Load(const Preferences& preferences, const std::filesystem::path& iniFolder);

    QString MamePath() const;
    void SetMamePath(const QString& path);
    PathTexts Texts() const;
    void SetTexts(const PathTexts& texts);

    void FocusMamePath();
    void FocusField(PathField field);

    /// A first run with MAME on the search path: it stands in the field, the other fields
    /// filled around it.
    void OfferMameOnPath();

    /// The MAME executable chosen in the file dialog; the empty fields follow its layout.
    void cmdSelectMAME_Click();
    /// The folder browser for one field.
    void SelectPaths(PathField field);

signals:
    /// A choice was made: the user's next step is OK.
    void ChoiceMade();

private:
    void BuildForm();
    void AddField(QGridLayout* grid, int row, const PathFieldInfo& info);
    /// The layout fill around the executable, unless MAME lies in the root.
    bool TakeExecutable(const std::string& executable);

    Prompter& m_prompter;
    MameLocations m_locations;
    QLineEdit* m_txtMAMEPath = nullptr;
    std::array<QLineEdit*, kPathFieldCount> m_fields{};
};

} // namespace coinlight
