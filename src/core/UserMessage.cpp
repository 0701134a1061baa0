#include "UserMessage.h"

namespace coinlight {

UserMessage RoutineError(std::string_view heading, std::string_view description, int line) {
    UserMessage message;
    message.text = std::string(heading) + ": " + std::string(description) +
                   "\nLine Number: " + std::to_string(line);
    message.icon = MessageIcon::Critical;
    return message;
}

} // namespace coinlight
