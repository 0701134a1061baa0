#include "UserMessage.h"

namespace coinlight {

UserMessage RoutineError(std::string_view heading, std::string_view description, int line) {
    UserMessage message;
    message.text = std::string(heading) + ": " + std::string(description) +
                   "\nLine Number: " + std::to_string(line);
    message.icon = MessageIcon::Critical;
    return message;
}

std::string NoPermissionSentence(const std::filesystem::path& folder) {
    return "This may mean you do not have permission to read or write files in " + folder.string() +
           ".";
}

} // namespace coinlight
