#pragma once

#include <deque>
#include <vector>

#include <QStringList>

#include "ui/Prompter.h"

namespace coinlight::test {

/// Answers prompts from a queue and records every one of them, so that no test waits on a
/// dialog. A prompt with no queued answer gets the cautious one (Cancel, No, nothing) and
/// is counted as unexpected.
class ScriptedPrompter final : public Prompter {
public:
    struct Prompt {
        QString kind; // "message", "input", "open", "save", "folder", "colour"
        QString title;
        QString text;
        PromptIcon icon = PromptIcon::None;
        PromptButtons buttons = PromptButtons::Ok;
    };
    /// A queued answer: a button, a text (input, file or folder) or a colour.
    struct Answer {
        enum class Kind { Button, Text, Colour } kind = Kind::Button;
        PromptAnswer button = PromptAnswer::Ok;
        QString text;
        QColor colour;
    };

    void Queue(PromptAnswer button) { m_answers.push_back({Answer::Kind::Button, button, {}, {}}); }
    void Queue(const QString& text) {
        m_answers.push_back({Answer::Kind::Text, PromptAnswer::Ok, text, {}});
    }
    void Queue(const QColor& colour) {
        m_answers.push_back({Answer::Kind::Colour, PromptAnswer::Ok, {}, colour});
    }

    const std::vector<Prompt>& Prompts() const { return m_prompts; }
    QStringList Texts() const;
    int Unexpected() const { return m_unexpected; }

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
    /// The next answer if it is of the kind asked for; otherwise the prompt is unexpected.
    std::optional<Answer> Next(Answer::Kind kind);
    std::optional<QString> TextAnswer(const QString& kind, const QString& title,
                                      const QString& text);

    std::deque<Answer> m_answers;
    std::vector<Prompt> m_prompts;
    int m_unexpected = 0;
};

} // namespace coinlight::test
