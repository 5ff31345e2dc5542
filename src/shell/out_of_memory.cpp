#include "shell/out_of_memory.h"

#include <new>
#include <utility>

#include "base/strings.h"

namespace vexa {

namespace {

// The handler is a plain function, so what it needs cannot be handed to it.
OutOfMemoryHandler::Show g_show = nullptr;
std::new_handler g_previous = nullptr;

// Without a handler before it, an allocation that fails ends with an exception; returning would try it again for ever.
void Handle() {
    // Showing the box may itself want memory.
    if (const OutOfMemoryHandler::Show show = std::exchange(g_show, nullptr)) {
        show(LoadText(TextId::OutOfMemory).data(), LoadText(TextId::OutOfMemoryCaption).data());
        g_show = show;
    }
    if (!g_previous) throw std::bad_alloc();
    g_previous();
}

}  // namespace

OutOfMemoryHandler::OutOfMemoryHandler(Show show) {
    g_show = show;
    g_previous = std::set_new_handler(&Handle);
}

OutOfMemoryHandler::~OutOfMemoryHandler() {
    std::set_new_handler(g_previous);
    g_show = nullptr;
}

}  // namespace vexa
