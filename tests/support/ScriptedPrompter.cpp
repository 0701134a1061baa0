#include "ScriptedPrompter.h"

namespace coinlight::test {

QStringList ScriptedPrompter::Texts() const {
    QStringList texts;
    for (const auto& prompt : m_prompts) {
        texts << prompt.text;
    }
    return texts;
}

std::optional<ScriptedPrompter::Answer> ScriptedPrompter::Next(Answer::Kind kind) {
    if (m_answers.empty() || m_answers.front().kind != kind) {
        ++m_unexpected;
        return std::nullopt;
    }
    Answer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

PromptAnswer ScriptedPrompter::Message(const QString& title, const QString& text, PromptIcon icon,
                                       PromptButtons buttons) {
    m_prompts.push_back({QStringLiteral("message"), title, text, icon, buttons});
    if (buttons == PromptButtons::Ok) {
        return PromptAnswer::Ok; // nothing to decide: no scripted answer needed
    }
    if (const auto answer = Next(Answer::Kind::Button)) {
        return answer->button;
    }
    return buttons == PromptButtons::YesNo ? PromptAnswer::No : PromptAnswer::Cancel;
}

std::optional<QString> ScriptedPrompter::TextAnswer(const QString& kind, const QString& title,
                                                    const QString& text) {
    m_prompts.push_back({kind, title, text, PromptIcon::None, PromptButtons::OkCancel});
    if (const auto answer = Next(Answer::Kind::Text)) {
        return answer->text;
    }
    return std::nullopt;
}

std::optional<QString> ScriptedPrompter::Input(const QString& title, const QString& prompt,
                                               const QString&) {
    return TextAnswer(QStringLiteral("input"), title, prompt);
}

std::optional<QString> ScriptedPrompter::OpenFile(const QString& title, const QString& folder,
                                                  const QString&) {
    return TextAnswer(QStringLiteral("open"), title, folder);
}

std::optional<QString> ScriptedPrompter::SaveFile(const QString& title, const QString& suggested,
                                                  const QString&) {
    return TextAnswer(QStringLiteral("save"), title, suggested);
}

std::optional<QString> ScriptedPrompter::Folder(const QString& title, const QString& start) {
    return TextAnswer(QStringLiteral("folder"), title, start);
}

std::optional<QColor> ScriptedPrompter::Colour(const QString& title, const QColor&) {
    m_prompts.push_back(
        {QStringLiteral("colour"), title, {}, PromptIcon::None, PromptButtons::OkCancel});
    if (const auto answer = Next(Answer::Kind::Colour)) {
        return answer->colour;
    }
    return std::nullopt;
}

} // namespace coinlight::test
