#include "ui/frame/frame_commands.h"

#include "ui/frame/window_commands.h"

namespace vexa {
namespace {

KeyEvent KeyEventOf(const MSG& message) {
    KeyEvent event;
    event.key = static_cast<std::uint16_t>(message.wParam);
    event.shift = GetKeyState(VK_SHIFT) < 0;
    event.control = GetKeyState(VK_CONTROL) < 0;
    event.alt = GetKeyState(VK_MENU) < 0;
    return event;
}

// Has each topic register what it carries out.
template <class... Topics>
void RegisterCommandsOf(CommandDispatcher& dispatcher, Topics&... topics) {
    (topics.registerCommands(dispatcher), ...);
}

template <class... Topics>
void RegisterKeysOf(KeyActions& keys, Topics&... topics) {
    (topics.registerKeys(keys), ...);
}

}  // namespace

FrameCommands::FrameCommands(OpenDocuments& documents, Application& application, FrameNotices& notices,
                             MessageLoop& loop)
    : documents_(documents),
      dispatcher_(notices, [this](CommandNeed need) { return isMet(need); }),
      player_(documents, dispatcher_, keys_),
      macro_(player_, documents.frame(), notices, loop, application.store),
      lists_(documents, notices, options_),
      fileSearch_(documents, application, notices, lists_),
      search_(documents, application, notices, loop, fileSearch_),
      files_(documents, application.options),
      paths_(documents, application, notices),
      editing_(documents, application.store, notices),
      textTools_(documents, application, notices),
      printing_(documents, application, notices, loop),
      options_(documents, application, notices),
      help_(documents.frame()),
      quickHelp_(documents, application, notices, printing_.desk()),
      external_(documents, application, notices, lists_) {
    RegisterCommandsOf(dispatcher_, macro_, fileSearch_, search_, files_, paths_, editing_, textTools_, printing_,
                       options_, help_, quickHelp_, external_);
    RegisterWindowCommands(dispatcher_, documents.frame());
    RegisterKeysOf(keys_, search_, textTools_, options_);
    search_.setFailureListener([this](bool isUserStop) { macro().searchFailed(isUserStop); });
    dispatcher_.setRecorder([this](CommandId id, CommandOrigin origin) { macro().recordCommand(id, origin); });
}

bool FrameCommands::isMet(CommandNeed need) const {
    if (need == CommandNeed::Window) return !documents_.frame().children().empty();
    if (need == CommandNeed::AnyDocument) return !documents_.openDocuments().empty();
    return documents_.active() || (need == CommandNeed::EditArea && documents_.activeList());
}

bool FrameCommands::useKey(MSG& message) {
    if (macro_.holdKey(message)) return true;
    const KeyEvent event = KeyEventOf(message);
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (isKey && search_.useKey(message, event)) return true;
    return message.message == WM_KEYDOWN && useFrameKey(message, event);
}

bool FrameCommands::useFrameKey(const MSG& message, const KeyEvent& event) {
    const DocumentWindow* active = documents_.active();
    const bool inText = active && IsChild(active->window(), message.hwnd);
    if (inText && event.key == kKeyEscape && search_.leaveDialog()) return true;
    if (!keys_.use(event, inText)) return false;
    macro().recordKey(event);
    return true;
}

}  // namespace vexa
