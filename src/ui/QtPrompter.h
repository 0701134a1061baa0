#pragma once

#include <QPointer>
#include <QWidget>

#include "Prompter.h"

namespace coinlight {

/// The real dialogs, each modal to the window that asked.
class QtPrompter final : public Prompter {
public:
    void SetParent(QWidget* parent) { m_parent = parent; }

    PromptAnswer Message(const QString& title, const QString& text, PromptIcon icon,
                         PromptButtons buttons) override;
    std::optional<QString> Input(const QString& title, const QString& prompt,
                                 const QString& initial) override;
    std::optional<QString> OpenFile(const QString& title, const QString& folder,
                                    const QString& filter) override;
    std::optional<QString> SaveFile(const QString& title, const QString& suggested,
                                    const QString& filter) override;
    std::optional<QString> Folder(const QString& title, const QString& start) override;
    std::optional<QColor> Colour(const QString& title, const QColor& initial) override;

private:
    QPointer<QWidget> m_parent;
};

} // namespace coinlight
