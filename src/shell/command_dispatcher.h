// Where every command ends, whether a menu, a key, a tool button or a macro started it: finds out whether it may run,
// and runs it.
#pragma once

#include <map>

#include "base/callback.h"
#include "base/notices.h"
#include "base/units.h"
#include "shell/command_table.h"

namespace vexa {

class CommandDispatcher {
  public:
    // Several commands may share a handler, so it is told which one runs.
    using Handler = Callback<void(CommandId)>;
    // Whether a need is met at this moment; never asked about Nothing.
    using NeedQuery = Callback<bool(CommandNeed)>;
    using CheckQuery = Callback<bool()>;

    CommandDispatcher(Notices& notices, NeedQuery isMet) : notices_(notices), isMet_(isMet) {}

    // A later handler of the same command takes the place of the earlier one.
    void RegisterCommand(CommandId id, Handler handler);
    // A command that switches something: its menu item has a check mark while the query says so.
    void RegisterToggle(CommandId id, Handler handler, CheckQuery isChecked);

    // Told of every command that is about to run and is no step, for the macro that is being recorded.
    using Recorder = Callback<void(CommandId, CommandOrigin)>;
    void setRecorder(Recorder recorder) { recorder_ = recorder; }

    // The one answer to "may it run?": it has a handler, and what it needs is there.
    bool CanRun(CommandId id) const;
    bool IsChecked(CommandId id) const;
    // Runs the command if it may; true when it ran. A command that finds no open document says so in the status line,
    // one without a handler does nothing.
    bool Dispatch(CommandId id, CommandOrigin origin = CommandOrigin::Menu);

  private:
    struct Registration {
        Handler handler;
        CheckQuery isChecked;
    };
    bool meetsNeed(CommandNeed need) const { return need == CommandNeed::Nothing || isMet_(need); }
    const Registration* registrationOf(CommandId id) const;

    Notices& notices_;
    NeedQuery isMet_;
    Recorder recorder_;
    std::map<CommandId, Registration> registrations_;
};

}  // namespace vexa
