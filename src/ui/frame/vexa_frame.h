// The editor's main window: its menu, its bars, and the messages that reach it. What the messages ask for is done by
// others: commands by the classes of their topics, the documents' windows by OpenDocuments, the rest by Session and
// OutsideFiles. A new command needs a row in its topic's class, and nothing here.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "framework/mdi_frame.h"
#include "framework/message_loop.h"
#include "shell/auto_backup.h"
#include "ui/document/application.h"
#include "ui/frame/frame_bars.h"
#include "ui/frame/frame_commands.h"
#include "ui/frame/frame_notices.h"
#include "ui/frame/menu_rows.h"
#include "ui/frame/open_documents.h"
#include "ui/frame/outside_files.h"
#include "ui/frame/session.h"
#include "ui/frame/status_panes.h"
#include "ui/frame/unsaved_work.h"

namespace vexa {

inline constexpr const char* kFrameClassName = "AppFrameCL";

class VexaFrame : public MDIframeCL, private DocumentHost {
  public:
    explicit VexaFrame(Application& application);

    // Opens the window where it was last; from then on it takes files from other programs. False when the system
    // refuses to make the window.
    bool open(int showCommand);
    // Opens the files of the last session and then those of the command line; with none of either, a new document if
    // it is a bare start, without arguments.
    void openFirstFiles(std::span<const FileAtLine> files, bool isBareStart);
    // Runs until the frame is closed; the program's exit code.
    int run() { return loop_.run(); }
    bool translate(MSG& message) override;
    bool workWhileIdle() override;

  protected:
    bool onCreate() override;
    void onDestroy() override;
    bool onQueryEndSession(bool& agreed) override;
    void onEndSession(bool ends) override;
    void onSettingChange() override;
    bool onDpiChanged(const RECT& suggested) override;
    bool onSetCursor(UINT hitTest) override;
    bool onSize(UINT kind) override;
    void onMove() override { session_.placement().noteMove(); }
    bool onTimer(UINT_PTR timer) override;
    void onFailed() override;
    bool onDropFiles(const std::vector<std::string>& names) override;
    bool onOther(Message& message) override { return outside_.receive(message) || unsaved_.receive(message); }
    void onFree() override { documents_.openWaitingSoon(); }

    void runCommand(WORD id, bool fromKey) override;
    std::optional<ItemState> itemState(WORD id) const override;
    void showItemHelp(std::optional<WORD> id) override;
    void explainItem(WORD id) override;
    void layOut() override { placeClient(bars_.place(clientArea())); }
    bool mayClose() override { return documents_.closeForExit(); }
    bool pumpMessages() override { return notices_.pumpMessages(); }
    void childrenChanged() override;

  private:
    void takeSystemSettings();
    void usePane(PaneUse* use);

    // ---- what the documents' windows tell and ask ----

    void userActs() override { notices_.clearStatus(); }
    void mousePressed() override { commands_.macro().refuseStep(); }
    void keyUsed(const KeyEvent& event) override { commands_.macro().recordKey(event); }
    void zoom(std::int32_t steps) override { commands_.zoom(steps); }
    void documentChanged(const DocumentWindow& window) override { bars_.showDocument(&window); }
    bool mayCloseDocument(DocumentWindow& window) override { return documents_.mayClose(window); }
    void questionFollows(DocumentWindow& window) override;
    void documentCloses(const DocumentWindow& window) override;
    void showContextMenu(POINT screenPosition) override { showMenu(ContextMenuItems(), screenPosition); }
    bool showTitleMenu(POINT screenPosition) override;
    void showMenu(const std::vector<MenuItem>& items, POINT screenPosition);

    Application& application_;
    MessageLoop loop_;
    FrameBars bars_;
    FrameNotices notices_;
    OpenDocuments documents_;
    FrameCommands commands_;
    Session session_;
    OutsideFiles outside_;
    AutoBackup backup_;
    UnsavedWork unsaved_;
};

}  // namespace vexa
