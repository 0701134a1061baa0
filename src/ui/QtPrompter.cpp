#include "QtPrompter.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace coinlight {

namespace {

QMessageBox::Icon ToQt(PromptIcon icon) {
    switch (icon) {
    case PromptIcon::Information:
        return QMessageBox::Information;
    case PromptIcon::Warning:
        return QMessageBox::Warning;
    case PromptIcon::Critical:
        return QMessageBox::Critical;
    case PromptIcon::Question:
        return QMessageBox::Question;
    case PromptIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQt(PromptButtons buttons) {
    switch (buttons) {
    case PromptButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case PromptButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case PromptButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case PromptButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

std::optional<QString> NonEmpty(const QString& text) {
    if (text.isEmpty()) {
        return std::nullopt;
    }
    return text;
}

} // namespace

PromptAnswer QtPrompter::Message(const QString& title, const QString& text, PromptIcon icon,
                                 PromptButtons buttons) {
    QMessageBox box(ToQt(icon), title, text, ToQt(buttons), m_parent);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    case QMessageBox::Cancel:
        return PromptAnswer::Cancel;
    default:
        return PromptAnswer::Ok;
    }
}

std::optional<QString> QtPrompter::Input(const QString& title, const QString& prompt,
                                         const QString& initial) {
    bool accepted = false;
    const QString text =
        QInputDialog::getText(m_parent, title, prompt, QLineEdit::Normal, initial, &accepted);
    if (!accepted) {
        return std::nullopt;
    }
    return text;
}

std::optional<QString> QtPrompter::OpenFile(const QString& title, const QString& folder,
                                            const QString& filter) {
    return NonEmpty(QFileDialog::getOpenFileName(m_parent, title, folder, filter));
}

std::optional<QString> QtPrompter::SaveFile(const QString& title, const QString& suggested,
                                            const QString& filter) {
    return NonEmpty(QFileDialog::getSaveFileName(m_parent, title, suggested, filter));
}

std::optional<QString> QtPrompter::Folder(const QString& title, const QString& start) {
    return NonEmpty(QFileDialog::getExistingDirectory(m_parent, title, start));
}

std::optional<QColor> QtPrompter::Colour(const QString& title, const QColor& initial) {
    const QColor chosen = QColorDialog::getColor(initial, m_parent, title);
    if (!chosen.isValid()) {
        return std::nullopt;
    }
    return chosen;
}

} // namespace coinlight
