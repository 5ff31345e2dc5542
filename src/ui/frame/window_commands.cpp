#include "ui/frame/window_commands.h"

#include "ui/frame/command_rows.h"

namespace vexa {

void RegisterWindowCommands(CommandDispatcher& dispatcher, MDIframeCL& frame) {
    struct ArrangementRow {
        CommandId id;
        Arrangement arrangement;
    };
    static constexpr ArrangementRow kArrangements[] = {
        {CommandId::Cascade, Arrangement::Cascade},
        {CommandId::Tile, Arrangement::Tile},
        {CommandId::TileVertically, Arrangement::TileVertically},
        {CommandId::TileHorizontally, Arrangement::TileHorizontally},
        {CommandId::ArrangeIcons, Arrangement::Icons},
    };
    static constexpr MethodRow<MDIframeCL> kRows[] = {
        {CommandId::NextWindow, &MDIframeCL::activateNext},
        {CommandId::PreviousWindow, &MDIframeCL::activatePrevious},
    };
    for (const ArrangementRow& row : kArrangements)
        dispatcher.RegisterCommand(row.id, [&frame, how = row.arrangement](CommandId) { frame.arrange(how); });
    RegisterRows(dispatcher, frame, kRows);
}

}  // namespace vexa
