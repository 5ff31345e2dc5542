// What one run of the program has once, for all its windows.
#pragma once

#include <string>

#include "base/config_store.h"
#include "base/directories.h"
#include "base/editor_options.h"
#include "document/print/print_options.h"
#include "external/compiler_setup.h"
#include "language/colour_table.h"
#include "language/electric_list.h"
#include "language/profile_list.h"
#include "search/search_options.h"
#include "ui/document/display_colours.h"
#include "ui/document/font_details.h"
#include "ui/document/system_clipboard.h"

namespace vexa {

struct Application {
    // Reads the settings beside the executable and makes the directories there.
    explicit Application(const std::string& executable)
        : store(SettingsFileOf(executable)),
          directories(executable),
          profiles(directories.GetDirectory(kConfigDirectory), options.habits),
          electric(directories.GetDirectory(kConfigDirectory)) {
        options.Load(store);
        coloursInEffect.load(store);
        colours = coloursInEffect;
        font.Load(store);
        searchOptions.Load(store);
        printOptions.Load(store);
        compilerSetup.Load(store);
    }

    ConfigStore store;
    EditorOptions options;
    FontDetails font;
    SearchOptions searchOptions{options.habits};
    PrintOptions printOptions;
    CompilerSetup compilerSetup;
    Directories directories;
    ProfileList profiles;
    ElectricWords electric;
    ColourTable coloursInEffect;  // those of the settings
    ColourTable colours;          // those that are shown: others while the user tries some out
    DisplayColours display{colours};
    SystemClipboard clipboard;
};

}  // namespace vexa
