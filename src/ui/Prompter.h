#pragma once

#include <optional>

#include <QColor>
#include <QString>

namespace coinlight {

enum class PromptIcon { None, Information, Warning, Critical, Question };
enum class PromptButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class PromptAnswer { Ok, Cancel, Yes, No };

/// Every message box, question, input box and file, folder or colour dialog of Coinlight
/// goes through this, so that tests can answer them from a script instead of a person.
class Prompter {
public:
    virtual ~Prompter() = default;

    virtual PromptAnswer Message(const QString& title, const QString& text,
                                 PromptIcon icon = PromptIcon::None,
                                 PromptButtons buttons = PromptButtons::Ok) = 0;
    /// Nothing when the user cancels.
    virtual std::optional<QString> Input(const QString& title, const QString& prompt,
                                         const QString& initial = {}) = 0;
    virtual std::optional<QString> OpenFile(const QString& title, const QString& folder,
                                            const QString& filter = {}) = 0;
    virtual std::optional<QString> SaveFile(const QString& title, const QString& suggested,
                                            const QString& filter = {}) = 0;
    virtual std::optional<QString> Folder(const QString& title, const QString& start = {}) = 0;
    virtual std::optional<QColor> Colour(const QString& title, const QColor& initial) = 0;

    /// The usual "Coinlight" box with an OK button.
    void Inform(const QString& text, PromptIcon icon = PromptIcon::None,
                const QString& title = QStringLiteral("Coinlight")) {
        Message(title, text, icon, PromptButtons::Ok);
    }
    bool AskYesNo(const QString& text, const QString& title = QStringLiteral("Coinlight")) {
        return Message(title, text, PromptIcon::Question, PromptButtons::YesNo) ==
               PromptAnswer::Yes;
    }
};

} // namespace coinlight
