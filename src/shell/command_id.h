// The commands by name: the first column of commands.def.
#pragma once

#include <cstdint>

namespace vexa {

// A command's number, as in menus and the accelerator table. A number that is no command may come from outside.
enum class CommandId : std::uint16_t {
#define VEXA_MENU(kind, heading)
#define VEXA_SEPARATOR()
#define VEXA_AGAIN(name, text)
#define VEXA_COMMAND(name, id, text, keys, status, macro, need) name = id,
#include "shell/commands.def"
#undef VEXA_MENU
#undef VEXA_SEPARATOR
#undef VEXA_AGAIN
#undef VEXA_COMMAND
};

}  // namespace vexa
