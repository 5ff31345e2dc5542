// Any bytes as the settings file: what is read keeps its limits and can be shown, and what is written is read again as
// it was.
#include <array>
#include <cstdint>
#include <string>

#include "base/dialog_position.h"
#include "base/editor_options_model.h"
#include "base/file.h"
#include "document/print/page_setup_model.h"
#include "document/view/edit_view.h"
#include "external/compiler_setup.h"
#include "fuzz/fuzzing.h"
#include "language/colour_table.h"
#include "search/search_options.h"
#include "shell/frame_placement.h"
#include "shell/recent_files.h"
#include "shell/startup_files.h"

namespace vexa::fuzz {
namespace {

constexpr const char* kSettings = "C:\\VEXA.INI";
constexpr ScreenRect kScreen{0, 0, 1024, 768};

// The settings that have a Load and a Save of their own.
template <class Settings>
Settings Loaded(const ConfigStore& store) {
    Settings settings;
    settings.Load(store);
    return settings;
}

// A view with such options shows a text and takes keys.
void UseOptions(EditorOptions options) {
    SilentNotices notices;
    TextDocument document(options, notices);
    document.newEmpty();
    document.lines().put(document.makeLine("\ta word\tand one more"), 0);
    EditView view(document, options, notices);
    view.resize(5, 40);
    for (const char c : {'\t', 'a', ' '}) {
        KeyEvent event;
        event.character = static_cast<unsigned char>(c);
        view.key(event);
    }
    view.render(0);
    while (!document.history().isEmpty())
        view.undo();
    Require(document.text(LineIndex(0)) == "\ta word\tand one more");
    EditorOptionsModel(options).update(options);
}

void RequireSame(const EditorOptions& a, const EditorOptions& b) {
    Require(a.TabSize == b.TabSize && a.WrapColumn == b.WrapColumn && a.BackupInterval == b.BackupInterval);
    Require(a.DisplayMode == b.DisplayMode && a.Filter1 == b.Filter1 && a.Filter2 == b.Filter2);
}

void CheckOptions(const ConfigStore& store, ConfigStore& written) {
    EditorOptions options = Loaded<EditorOptions>(store);
    Require(options.Filter1.size() <= kFilterLimit && options.Filter2.size() <= kFilterLimit);
    Require(options.LastDirectoryUsed.size() <= kLastDirectoryLimit);
    UseOptions(options);
    options.Save(written);
    RequireSame(Loaded<EditorOptions>(written), options);
}

void CheckPrint(const ConfigStore& store, ConfigStore& written) {
    const auto print = Loaded<PrintOptions>(store);
    for (const LengthUnit unit : {LengthUnit::Millimetres, LengthUnit::Inches})
        Require(!PageSetupModel(print, unit).badMargin());
    print.Save(written);
    Require(Loaded<PrintOptions>(written) == print);
}

void CheckSearch(const ConfigStore& store, ConfigStore& written) {
    const auto search = Loaded<SearchOptions>(store);
    Require(search.findText().size() <= SearchOptions::kTextLimit);
    search.Save(written);
    Require(Loaded<SearchOptions>(written).findText() == search.findText());
    Require(Loaded<SearchOptions>(written).replaceText() == search.replaceText());
}

void CheckColours(const ConfigStore& store, ConfigStore& written) {
    ColourTable colours;
    colours.load(store);
    for (std::size_t i = 0; i < kElementCount; ++i)
        colours.colourOf(static_cast<ColourElement>(i));
    colours.save(written);
    ColourTable again;
    again.load(written);
    Require(again == colours);
}

void CheckCompiler(const ConfigStore& store, ConfigStore& written) {
    const auto compiler = Loaded<CompilerSetup>(store);
    Require(compiler.command().size() <= CompilerSetup::kCommandLimit);
    compiler.expandedCommand();
    compiler.Save(written);
    Require(Loaded<CompilerSetup>(written).command() == compiler.command());
}

// A window can always be taken hold of.
void CheckPlacement(const ConfigStore& store) {
    const FramePlacement placement = LoadFramePlacement(store, true, FrameState::Normal, kScreen);
    const std::array screens{kScreen};
    const ScreenRect kept = KeptOnScreen(placement.normal, screens);
    Require(kept.width > 0 && kept.height > 0 && kept.x < kScreen.width && kept.y < kScreen.height && kept.y >= 0);
    Require(std::int64_t{kept.x} + kept.width > 0);
    if (const auto corner = RestoreDialogPosition(store, 1, {10, 10})) Require(corner->x >= 0 && corner->y >= 0);
}

void CheckFiles(ConfigStore& store) {
    RecentFiles recent;
    recent.LoadRecentFiles(store, true);
    recent.RecordRecentFile("C:\\A.C");
    Require(recent.menuRows().size() <= RecentFiles::kSlots);
    recent.SaveRecentFiles(store);
    StartupFiles startup(store);
    startup.RestoreStartupFiles(true, [](const std::string& path, std::int32_t) { Require(!path.empty()); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    File(kSettings, platform::OpenMode::CreateAlways).write({reinterpret_cast<const char*>(data), size});
    ConfigStore store(kSettings);
    platform::RemoveFile("C:\\NEW.INI");
    ConfigStore written("C:\\NEW.INI");
    CheckOptions(store, written);
    CheckPrint(store, written);
    CheckSearch(store, written);
    CheckColours(store, written);
    CheckCompiler(store, written);
    CheckPlacement(store);
    CheckFiles(store);
    return 0;
}

}  // namespace vexa::fuzz
