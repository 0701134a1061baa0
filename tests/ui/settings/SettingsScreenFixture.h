#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "settings/OptionCatalogue.h"
#include "ui/MainWindowFixture.h"
#include "ui/settings/SettingsPage.h"

namespace coinlight::test {

/// The main window loaded with a few machines, and handles on the settings page.
class SettingsScreenFixture : public MainWindowFixture {
protected:
    SettingsScreenFixture() {
        AddRom("pacman");
        AddRom("galaga");
    }

    SettingsPage& Page() { return *Controls().fraDefaults; }
    bool PageShown() { return Controls().pages->currentWidget() == Controls().fraDefaults; }
    std::filesystem::path Profile(const std::string& name) const {
        return m_context.data.Settings() / (name + ".cfg");
    }
    void Select(const std::string& machine) {
        MachineListView& list = *Controls().lvAll;
        list.SelectRow(list.Model().RowOfShortName(machine));
    }

    template <class Widget = QWidget> Widget* Control(std::string_view control) {
        return qobject_cast<Widget*>(Page().Control(RowOfControl(control)));
    }
    QString Text(std::string_view control) {
        if (auto* combo = Control<QComboBox>(control)) {
            return combo->currentText();
        }
        return Control<QLineEdit>(control)->text();
    }
    bool Ticked(std::string_view control) { return Control<QCheckBox>(control)->isChecked(); }
    bool Enabled(std::string_view control) {
        return Page().Control(RowOfControl(control))->isEnabled();
    }
    /// Picks a drop-down item as a user does.
    void Choose(std::string_view control, const QString& item) {
        auto* combo = Control<QComboBox>(control);
        const int index = combo->findText(item);
        ASSERT_GE(index, 0) << item.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
};

} // namespace coinlight::test
