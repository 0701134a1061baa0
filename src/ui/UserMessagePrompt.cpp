#include "UserMessagePrompt.h"

namespace coinlight {

namespace {

PromptIcon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return PromptIcon::Information;
    case MessageIcon::Warning:
        return PromptIcon::Warning;
    case MessageIcon::Critical:
        return PromptIcon::Critical;
    case MessageIcon::Question:
        return PromptIcon::Question;
    case MessageIcon::None:
        break;
    }
    return PromptIcon::None;
}

} // namespace

PromptAnswer ShowMessage(Prompter& prompter, const UserMessage& message) {
    return prompter.Message(QString::fromStdString(message.title),
                            QString::fromStdString(message.text), IconOf(message.icon),
                            message.buttons == MessageButtons::YesNo ? PromptButtons::YesNo
                                                                     : PromptButtons::Ok);
}

} // namespace coinlight
