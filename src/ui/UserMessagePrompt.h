#pragma once

#include "Prompter.h"
#include "core/UserMessage.h"

namespace coinlight {

/// Shows a message that the logic described as a value; the answer of a question.
PromptAnswer ShowMessage(Prompter& prompter, const UserMessage& message);

} // namespace coinlight
