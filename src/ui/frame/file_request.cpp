#include "ui/frame/file_request.h"

#include "ui/dialogs/file_selection.h"

namespace vexa {

FileDialogRequest FileRequest(HWND owner, TextId title, const EditorOptions& options) {
    FileDialogRequest request;
    request.owner = owner;
    request.title = LoadText(title).data();
    for (const FileKind& kind : OfferedFileKinds(options))
        request.filters.push_back({kind.label, kind.patterns});
    request.explorerStyle = options.UseExplorer;
    return request;
}

}  // namespace vexa
