#include "framework/file_dialog.h"

#include <commdlg.h>

#include "framework/windows_behind.h"

namespace vexa {
namespace {

// Room for a selection of several files. Older systems take no more than 32 KB.
constexpr std::size_t kSelectionSize = 32000;

std::string FilterList(const std::vector<FileFilter>& filters) {
    std::string list;
    for (const FileFilter& filter : filters)
        list += filter.label + '\0' + filter.patterns + '\0';
    return list + '\0';
}

// Windows 98 and NT 4 refuse the record with the fields that later systems added, and those are happy without them.
const DWORD kRecordSize = OPENFILENAME_SIZE_VERSION_400A;

// The texts between the first byte and the two zero bytes that end a list.
std::string UntilDoubleZero(const std::string& buffer) {
    const std::size_t end = buffer.find(std::string(2, '\0'));
    return buffer.substr(0, end);
}

std::optional<std::string> Ask(const FileDialogRequest& request, BOOL(WINAPI* dialog)(OPENFILENAMEA*), DWORD flags) {
    const std::string filters = FilterList(request.filters);
    std::string selection = request.fileName;
    selection.resize(kSelectionSize, '\0');
    OPENFILENAMEA record{};
    record.lStructSize = kRecordSize;
    record.hwndOwner = request.owner;
    record.lpstrFilter = filters.c_str();
    record.nFilterIndex = 1;
    record.lpstrFile = selection.data();
    record.nMaxFile = static_cast<DWORD>(selection.size());
    record.lpstrTitle = request.title.c_str();
    record.Flags = flags | OFN_HIDEREADONLY | (request.explorerStyle ? OFN_EXPLORER : 0u);
    const WindowsBehind behind(request.owner);
    if (!dialog(&record)) return std::nullopt;
    return UntilDoubleZero(selection);
}

}  // namespace

std::optional<std::string> AskOpenFiles(const FileDialogRequest& request) {
    return Ask(request, &GetOpenFileNameA, OFN_ALLOWMULTISELECT | OFN_LONGNAMES | OFN_PATHMUSTEXIST);
}

std::optional<std::string> AskSaveFile(const FileDialogRequest& request) {
    return Ask(request, &GetSaveFileNameA, OFN_OVERWRITEPROMPT | OFN_LONGNAMES | OFN_PATHMUSTEXIST);
}

}  // namespace vexa
