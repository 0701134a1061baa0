#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <ostream>

#include <QAbstractButton>
#include <QLineEdit>

#include "core/AppFolders.h"
#include "core/OptionsIni.h"
#include "core/PreferenceKeys.h"
#include "core/ProfileFile.h"
#include "core/Version.h"
#include "support/ScriptedPrompter.h"
#include "support/TestFiles.h"
#include "ui/options/frmOptions.h"

/// Readable failure messages for Qt's strings.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace coinlight::test {

/// A data folder, a MAME folder and system locations of their own for each test, and the
/// means to work the dialog by its control names.
class OptionsDialog : public ::testing::Test {
protected:
    OptionsDialog() {
        m_context.data.root = m_folder / "data";
        MakeFolderTree(m_context.data);
        m_request.locations.distributionData = m_folder / "share";
        m_request.locations.home = m_folder / "home";
        m_request.locations.searchPath = "";
    }

    std::unique_ptr<frmOptions> Open() {
        return std::make_unique<frmOptions>(m_context, m_prompter, m_request);
    }

    /// Makes the folder and gives its path.
    std::string Folder(const std::filesystem::path& relative) {
        std::filesystem::create_directories(m_folder / relative);
        return (m_folder / relative).string();
    }

    template <class Widget = QWidget> static Widget* Find(frmOptions& form, const char* name) {
        auto* widget = form.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    static std::string Text(frmOptions& form, const char* name) {
        return Find<QLineEdit>(form, name)->text().toStdString();
    }
    static void SetText(frmOptions& form, const char* name, const std::string& text) {
        Find<QLineEdit>(form, name)->setText(QString::fromStdString(text));
    }
    static void Click(frmOptions& form, const char* name) {
        Find<QAbstractButton>(form, name)->click();
    }
    /// OK is reached through the preferences page, as a user reaches it.
    static void PressOk(frmOptions& form) {
        Click(form, "cmdNext");
        Click(form, "cmdOK");
    }

    /// MAME and every required folder named, each existing.
    void FillValid(frmOptions& form) {
        MakeExecutable(Folder("My MAME") + "/mame");
        SetText(form, "txtMAMEPath", Folder("My MAME") + "/mame");
        SetText(form, "txtArcadeROMPath", Folder("roms"));
        for (const char* name : {"txtSamPath", "txtArtworkPath", "txtCtrlrPath", "txtCheatPath",
                                 "txtPluginsPath", "txtLanguagePath"}) {
            SetText(form, name, Folder(name));
        }
    }

    /// The texts of the message boxes shown, leaving out file and folder dialogs.
    QStringList Messages() const { return MessagesOf(m_prompter); }
    static QStringList MessagesOf(const ScriptedPrompter& prompter) {
        QStringList texts;
        for (const auto& prompt : prompter.Prompts()) {
            if (prompt.kind == QStringLiteral("message")) {
                texts << prompt.text;
            }
        }
        return texts;
    }

    bool OptionsWritten() const { return std::filesystem::exists(m_context.data.OptionsIni()); }

    /// options.ini read back as the next start reads it.
    Preferences ReadBack() {
        WriteProfileVersion();
        Preferences read;
        EXPECT_EQ(ReadOptionsIni(m_context.data.OptionsIni(), read).status, OptionsReadStatus::Ok);
        return read;
    }

    /// What the start writes after the dialog: without it the reader refuses the file.
    void WriteProfileVersion() {
        WriteProfileValue(m_context.data.OptionsIni(), kSectionMiscellaneous, kKeyCoinlightVersion,
                          kCoinlightVersion);
    }

    TempFolder m_folder;
    AppContext m_context;
    ScriptedPrompter m_prompter;
    OptionsRequest m_request;
};

} // namespace coinlight::test
