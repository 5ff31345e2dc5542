#include "ui/help/help_desk.h"

#include "base/directories.h"
#include "base/file.h"
#include "base/platform.h"
#include "base/strings.h"
#include "framework/system_function.h"
#include "ui/help/help.h"

namespace vexa {
namespace {

std::string OwnHelpFile() {
    return DirectoryOf(platform::ProgramPath()) + "Vexa.hlp";
}

std::uint64_t SystemViewerSize() {
    char directory[MAX_PATH] = "";
    const UINT length = GetWindowsDirectoryA(directory, sizeof(directory));
    if (length == 0 || length >= sizeof(directory)) return 0;
    File file(std::string(directory, length) + "\\winhlp32.exe", platform::OpenMode::Read);
    return file.isOpen() ? file.size().value_or(0) : 0;
}

bool IsWine() {
    return FindSystemFunction<void()>("ntdll.dll", "wine_get_version") != nullptr;
}

}  // namespace

HelpDesk::HelpDesk(ConfigStore& store, std::string indexDirectory, Notices& notices, TopicPrinter& printer)
    : store_(store), notices_(notices), window_(store, std::move(indexDirectory), printer) {
    SetHelpDesk(this);
}

HelpDesk::~HelpDesk() {
    SetHelpDesk(nullptr);
}

// Asked anew each time: the user may have installed a viewer, and the answer takes no time that he would notice.
HelpViewer HelpDesk::viewer() const {
    return ChooseHelpViewer({HelpViewerSetting(store_), IsWine(), SystemViewerSize()});
}

bool HelpDesk::tellMissing(const std::string& helpFile) {
    notices_.status(FillText(TextId::HelpFileMissing, {helpFile}), true, true);
    return false;
}

bool HelpDesk::callSystem(HWND owner, const std::string& helpFile, UINT command, ULONG_PTR data) {
    const bool isShown = platform::PathExists(helpFile) && WinHelpA(owner, helpFile.c_str(), command, data);
    hasUsedSystem_ = hasUsedSystem_ || isShown;
    return isShown || tellMissing(helpFile);
}

bool HelpDesk::showKeyword(HWND owner, const std::string& helpFile, const std::string& keyword) {
    if (viewer() == HelpViewer::System)
        return callSystem(owner, helpFile, HELP_PARTIALKEY, reinterpret_cast<ULONG_PTR>(keyword.c_str()));
    return window_.showKeyword(helpFile, keyword) || tellMissing(helpFile);
}

void HelpDesk::showOwnHelp(HWND owner, UINT command, DWORD topic) {
    const std::string file = OwnHelpFile();
    if (viewer() == HelpViewer::System) {
        callSystem(owner, file, command, topic);
        return;
    }
    const bool isShown =
        topic != 0 ? window_.showNumber(file, static_cast<std::int32_t>(topic)) : window_.showContents(file);
    if (!isShown) tellMissing(file);
}

void HelpDesk::close(HWND owner) const {
    if (hasUsedSystem_) WinHelpA(owner, OwnHelpFile().c_str(), HELP_QUIT, 0);
}

}  // namespace vexa
