#include "framework/folder_dialog.h"

#include <objbase.h>
#include <shlobj.h>

#include "framework/windows_behind.h"

namespace vexa {

std::optional<std::string> AskFolder(HWND owner, const std::string& title) {
    char path[MAX_PATH] = "";
    BROWSEINFOA question{};
    question.hwndOwner = owner;
    question.pszDisplayName = path;
    question.lpszTitle = title.c_str();
    question.ulFlags = BIF_RETURNONLYFSDIRS;
    const WindowsBehind behind(owner);
    LPITEMIDLIST chosen = SHBrowseForFolderA(&question);
    if (!chosen) return std::nullopt;
    const bool isFolder = SHGetPathFromIDListA(chosen, path);
    IMalloc* memory = nullptr;
    if (SHGetMalloc(&memory) == NOERROR) {
        memory->Free(chosen);
        memory->Release();
    }
    return isFolder ? std::optional<std::string>(path) : std::nullopt;
}

}  // namespace vexa
