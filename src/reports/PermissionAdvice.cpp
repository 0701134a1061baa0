#include "PermissionAdvice.h"

#include <cerrno>

#include "core/TextCase.h"

namespace coinlight {

bool IsPermissionFailure(const std::error_code& error) {
    if (error.category() != std::generic_category() && error.category() != std::system_category()) {
        return false;
    }
    const int value = error.value();
    return value == EACCES || value == EPERM || value == EROFS || value == ETXTBSY ||
           value == EBUSY;
}

std::string FailureDescription(const std::error_code& error) {
    std::string text = error.message();
    if (!text.empty()) {
        text[0] = UpperAscii(text[0]);
    }
    return text;
}

} // namespace coinlight
