#include "ui/frame/open_documents.h"

#include <algorithm>
#include <memory>

#include "document/text/file_identity.h"
#include "framework/title_bar.h"
#include "shell/closing_order.h"
#include "ui/frame/file_request.h"

namespace vexa {

namespace {

template <class Condition>
DocumentWindow* FirstOf(const std::vector<std::unique_ptr<MDIchildCL>>& children, Condition holds) {
    for (const auto& child : children) {
        DocumentWindow* window = OpenDocuments::DocumentOf(child.get());
        if (window && holds(*window)) return window;
    }
    return nullptr;
}

}  // namespace

// ---- taking over -------------------------------------------------------------------------------------------------

void OpenDocuments::refreshFonts() {
    for (const auto& child : frame_.children())
        WindowOf(child.get())->refreshFont();
}

void OpenDocuments::refreshColours() {
    SetDarkTitleBar(frame_.window(), application_.display.isDark());
    for (const auto& child : frame_.children())
        WindowOf(child.get())->refreshColours();
}

void OpenDocuments::refreshOptions() {
    each([](DocumentWindow& window) { window.refreshOptions(); });
}

void OpenDocuments::takeProfilesAnew() {
    application_.profiles.forgetLoaded();
    each([this](DocumentWindow& window) {
        files_.takeProfile(window.document());
        window.refresh();
    });
}

std::vector<TextDocument*> OpenDocuments::openDocuments() const {
    std::vector<TextDocument*> documents;
    each([&documents](DocumentWindow& window) { documents.push_back(&window.document()); });
    return documents;
}

DocumentWindow* OpenDocuments::windowOf(const TextDocument& document) const {
    const auto shows = [&document](const DocumentWindow& window) { return &window.document() == &document; };
    return FirstOf(frame_.children(), shows);
}

// ---- opening -----------------------------------------------------------------------------------------------------

ChildShow OpenDocuments::showOfNewWindow() const {
    switch (application_.options.DisplayMode) {
        case kCreateTiled:
            return ChildShow::Tiled;
        case kCreateMinimized:
            return ChildShow::Minimised;
        case kCreateMaximized:
            return ChildShow::Maximised;
        default:
            return ChildShow::Normal;
    }
}

DocumentWindow* OpenDocuments::windowOfFile(const std::string& path) const {
    const FileIdentity file(path);
    const auto shows = [&file](const DocumentWindow& window) { return file.isFileOf(window.document()); };
    return FirstOf(frame_.children(), shows);
}

bool OpenDocuments::activateShowing(const std::string& path, TextPosition position) {
    DocumentWindow* shown = windowOfFile(path);
    if (!shown) return false;
    frame_.activate(*shown);
    shown->view().goTo(position.line, position.column);
    shown->refresh();
    return true;
}

bool OpenDocuments::openWindow(const std::optional<std::string>& path, TextPosition position) {
    auto made = std::make_unique<DocumentWindow>(frame_, host_, application_, notices_);
    if (!files_.open(made->document(), path)) return false;
    DocumentWindow& shown = *made;
    const std::string caption = shown.caption();
    if (!frame_.adopt(std::move(made), kDocumentWindowClass, caption, showOfNewWindow())) return false;
    if (path) shown.view().goTo(position.line, position.column);
    shown.refresh();
    // The text before the frame around it, which the system else draws first.
    RedrawWindow(shown.window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return true;
}

const TextDocument* OpenDocuments::documentOf(const std::string& path) const {
    const DocumentWindow* shown = windowOfFile(path);
    return shown ? &shown->document() : nullptr;
}

// The dialog that waits for an answer has the keyboard; the frame behind it could do nothing with a key.
void OpenDocuments::bringToFront() {
    SetForegroundWindow(GetLastActivePopup(frame_.window()));
}

void OpenDocuments::restoreIfMinimised() {
    if (IsIconic(frame_.window())) ShowWindow(frame_.window(), SW_RESTORE);
}

// ---- saving and closing ------------------------------------------------------------------------------------------

std::optional<std::string> OpenDocuments::askSaveName(const TextDocument& document) {
    if (DocumentWindow* shown = windowOf(document)) host_.questionFollows(*shown);
    FileDialogRequest request = FileRequest(frame_.window(), TextId::SaveAsTitle, application_.options);
    request.fileName = document.fullPath();
    return AskSaveFile(request);
}

void OpenDocuments::nameChanged(const TextDocument& document) {
    if (DocumentWindow* shown = windowOf(document)) shown->refreshName();
}

bool OpenDocuments::mayClose(DocumentWindow& window) {
    if (window.document().isModified()) host_.questionFollows(window);
    return files_.queryClose(window.document());
}

void OpenDocuments::closeAll() {
    if (!frame_.mayCloseChildren()) return;
    std::vector<MDIchildCL*> all;
    for (const auto& child : frame_.children())
        all.push_back(child.get());
    frame_.closeChildren(all);
}

// All questions come before the first window closes: whoever cancels has lost nothing.
bool OpenDocuments::closeForExit() {
    if (!frame_.mayCloseChildren()) return false;
    isClosing_ = true;
    frame_.closeChildren(inSessionOrder());
    isClosing_ = frame_.children().empty();
    return isClosing_;
}

std::vector<MDIchildCL*> OpenDocuments::inSessionOrder() const {
    std::vector<MDIchildCL*> documents = frame_.childrenByUse();
    const auto isUnnamed = [](MDIchildCL* child) {
        const DocumentWindow* shown = DocumentOf(child);
        return !shown || !shown->document().isNamed();
    };
    const auto named = std::ranges::stable_partition(documents, isUnnamed);
    std::vector<MDIchildCL*> order(documents.begin(), named.begin());
    for (const std::size_t rank : ClosingOrder(named.size()))
        order.push_back(named[rank]);
    return order;
}

}  // namespace vexa
