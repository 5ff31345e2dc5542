// How a class of commands says what carries out what: one row for a command or a key, with its function.
#pragma once

#include <span>
#include <type_traits>

#include "shell/command_dispatcher.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/open_documents.h"

namespace vexa {

// A command that a method of the class carries out.
template <class Commands>
struct MethodRow {
    CommandId id;
    void (Commands::*run)();
};

template <class Commands>
void RegisterRows(CommandDispatcher& dispatcher, Commands& commands,
                  std::type_identity_t<std::span<const MethodRow<Commands>>> rows) {
    for (const auto& row : rows)
        dispatcher.RegisterCommand(row.id, [&commands, run = row.run](CommandId) { (commands.*run)(); });
}

// A key that a method of the class carries out.
template <class Commands>
struct KeyRow {
    FrameAction action;
    void (Commands::*run)();
};

template <class Commands>
void RegisterRows(KeyActions& keys, Commands& commands, std::type_identity_t<std::span<const KeyRow<Commands>>> rows) {
    for (const auto& row : rows)
        keys.RegisterAction(row.action, [&commands, run = row.run] { (commands.*run)(); });
}

// A command that the edit view of the active document carries out.
struct ViewCommandRow {
    CommandId id;
    void (*run)(EditView& view);
};

inline void RegisterRows(CommandDispatcher& dispatcher, OpenDocuments& documents,
                         std::span<const ViewCommandRow> rows) {
    for (const ViewCommandRow& row : rows)
        dispatcher.RegisterCommand(row.id, [&documents, run = row.run](CommandId) { documents.operate(run); });
}

// A method of the view as the function of a row.
template <auto kMethod, auto... kArguments>
void OnView(EditView& view) {
    (view.*kMethod)(kArguments...);
}

}  // namespace vexa
