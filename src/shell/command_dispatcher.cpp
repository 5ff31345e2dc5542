#include "shell/command_dispatcher.h"

#include "base/strings.h"

namespace vexa {
namespace {

// A window without a document passes over editing commands without a word.
bool AsksForFile(CommandNeed need, bool hasWindow) {
    return need == CommandNeed::Document || need == CommandNeed::AnyDocument ||
           (need == CommandNeed::EditArea && !hasWindow);
}

}  // namespace

void CommandDispatcher::RegisterCommand(CommandId id, Handler handler) {
    RegisterToggle(id, handler, {});
}

void CommandDispatcher::RegisterToggle(CommandId id, Handler handler, CheckQuery isChecked) {
    registrations_[id] = {handler, isChecked};
}

const CommandDispatcher::Registration* CommandDispatcher::registrationOf(CommandId id) const {
    const auto found = registrations_.find(id);
    return found == registrations_.end() ? nullptr : &found->second;
}

bool CommandDispatcher::CanRun(CommandId id) const {
    const CommandRow* row = FindCommand(id);
    return row && registrationOf(id) && meetsNeed(row->need);
}

bool CommandDispatcher::IsChecked(CommandId id) const {
    const Registration* registration = registrationOf(id);
    return registration && registration->isChecked && registration->isChecked();
}

bool CommandDispatcher::Dispatch(CommandId id, CommandOrigin origin) {
    if (CanRun(id)) {
        // A copy: the handler may register others, or bring about its own end.
        const Handler handler = registrationOf(id)->handler;
        if (recorder_ && origin != CommandOrigin::Step) recorder_(id, origin);
        handler(id);
        return true;
    }
    const CommandRow* row = FindCommand(id);
    const bool fileIsMissing = row && registrationOf(id) && AsksForFile(row->need, isMet_(CommandNeed::Window));
    if (fileIsMissing) notices_.status(LoadText(TextId::NeedsOpenFile), true, true);
    return false;
}

}  // namespace vexa
