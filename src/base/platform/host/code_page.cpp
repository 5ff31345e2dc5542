#include "base/platform.h"

namespace vexa::platform {

std::string AnsiCharacter(char32_t character) {
    return character <= 0xFF ? std::string(1, static_cast<char>(character)) : std::string();
}

}  // namespace vexa::platform
