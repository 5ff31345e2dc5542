// The editor's main window: menus, bars, the document windows, and the commands that work on them.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "framework/dde_server.h"
#include "framework/drawing_pause.h"
#include "framework/held_keys.h"
#include "framework/mdi_frame.h"
#include "framework/message_loop.h"
#include "framework/status_bar.h"
#include "framework/tool_bar.h"
#include "search/find_commands.h"
#include "shell/auto_backup.h"
#include "shell/command_dispatcher.h"
#include "shell/file_commands.h"
#include "shell/file_opening.h"
#include "shell/frame_keys.h"
#include "shell/frame_placement.h"
#include "shell/key_macro.h"
#include "shell/macro_repeat_model.h"
#include "shell/outside_opens.h"
#include "shell/recent_files.h"
#include "shell/startup_files.h"
#include "ui/dialogs/search_dialog.h"
#include "ui/document/application.h"
#include "ui/document/document_window.h"
#include "ui/frame/frame_notices.h"
#include "ui/frame/keyboard_watch.h"
#include "ui/print/print_dialogs.h"

namespace vexa {

inline constexpr const char* kFrameClassName = "AppFrameCL";

class VexaFrame : public MDIframeCL,
                  private DocumentHost,
                  private FileQuestions,
                  private OutsideFrame,
                  private MacroTarget,
                  private BackupFrame,
                  private SearchHost {
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
    void onMove() override;
    bool onTimer(UINT_PTR timer) override;
    void onFailed() override;
    bool onDropFiles(const std::vector<std::string>& names) override;
    bool onOther(Message& message) override;
    void onFree() override { openWaitingSoon(); }

    void runCommand(WORD id, bool fromKey) override;
    std::optional<ItemState> itemState(WORD id) const override;
    void showItemHelp(std::optional<WORD> id) override;
    void layOut() override;
    bool mayClose() override;
    bool pumpMessages() override { return notices_.pumpMessages(); }
    void childrenChanged() override;

  private:
    friend struct FrameCommands;  // the table of commands that the frame carries out
    friend struct FrameKeys;      // the table of keys that it carries out

    void registerCommands();
    bool isMet(CommandNeed need) const;
    DocumentWindow* activeDocument() const;
    ChildShow showOfNewWindow() const;
    template <class Use>
    void forEachDocument(Use use) const;
    void refreshToolBar();
    void takeSystemSettings();
    // For opening that many files in a row.
    DrawingPause pauseFor(std::size_t files) const { return DrawingPause(files > 1 ? mdiClient() : nullptr); }
    void switchOption(bool EditorOptions::*option);
    void refreshFonts();
    // Shows the colours in force in all windows.
    void refreshColours();

    // ---- commands ----

    void newDocument() { opening_.OpenFileAtLine(std::nullopt, 0); }
    void openDocuments();
    void closeDocument();
    void saveDocument();
    void saveDocumentAs();
    void saveAllDocuments();
    void setUpPrinting();
    void printDocument();
    void print(const TextDocument& document, const PrintOrder& order);
    PrintResult runPrintJob(const TextDocument& document, const PrintLayout& layout, const PrintSequence& sequence,
                            PrintTarget& target);
    void tellPrintResult(PrintResult result, const TextDocument& document);
    void tellPrintError(const std::string& text);
    void exit();
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void clear();
    template <CaseChange kChange>
    void changeCase();
    void selectAll();
    void toMatchingBracket();
    void toWindowStart();
    void toWindowEnd();
    void toDocumentStart();
    void toDocumentEnd();
    void find();
    void replace();
    void findNext();
    void findPrevious();
    void findAtCaret();
    void resetZoom();
    template <class Dialog>
    void openSearchDialog();
    // Moves the Find or Replace dialog off the match that was found last.
    void showMatchBesideDialog(const DocumentWindow& active);
    // While a macro plays, Esc stops it and other keys wait for its end; false for what is no key.
    bool holdKey(const MSG& message);
    // Carries out a key that is the frame's own; false for any other.
    bool useFrameKey(const KeyEvent& event, bool inText);
    void toggleMatchCase();
    void toggleRegularExpression();
    void dispatchOpenInclude();
    void openInclude();
    void listFunctions();
    void changeElectric();
    void gotoLine();
    void gotoBookmark();
    void changeOptions();
    void changeFont();
    void changeColours();
    void showColours(const ColourTable& colours);
    void changeExtensions();
    void takeProfilesAnew();
    void toggleToolBar();
    void toggleStatusBar();
    void closeAllDocuments();
    void playMacro();
    void repeatMacro();
    void helpOnHelp();
    void helpIndex();
    void helpOnKeys();
    void showAbout();
    void openRecentFile(CommandId id);
    template <class Operation>
    void operate(Operation operation);

    // ---- session ----

    void restorePlacement(int showCommand);
    // The documents in the order in which the session remembers them best.
    std::vector<MDIchildCL*> sessionOrder() const;
    void restoreFile(const std::string& path, std::int32_t line);
    void recordSession();
    void saveSession();
    void showRecentFiles();

    // ---- what windows and rules ask ----

    void userActs() override { notices_.clearStatus(); }
    void mousePressed() override { macro_.refuseStep(); }
    void keyUsed(const KeyEvent& event) override { macro_.recordKey(event); }
    void zoom(std::int32_t steps) override;
    void documentChanged(const DocumentWindow& window) override;
    bool mayCloseDocument(DocumentWindow& window) override;
    void documentCloses(const DocumentWindow& window) override;
    void showContextMenu(POINT screenPlace) override;
    std::optional<std::string> askSaveName(const TextDocument& document) override;
    void nameChanged(const TextDocument& document) override;
    bool activateShowing(const std::string& path, LineIndex line) override;
    bool openWindow(const std::optional<std::string>& path, LineIndex line) override;
    void bringToFront() override;
    void restoreIfMinimised() override;
    bool isFree() const override { return takesCommands() && !isClosing_; }
    void openWaitingSoon() override;
    bool playKey(const KeyEvent& event) override;
    void playMessage(const MacroMessage& message) override;
    bool playCommand(CommandId id) override;
    void updateDisplay() override;
    bool isBusy() const override { return notices_.isBusy(); }
    std::vector<TextDocument*> openDocuments() const override;
    void search(const Search& search) override;
    bool isShuttingDown() const override { return isClosing_; }
    void searchDialogGone() override { loop_.setModelessDialog(nullptr); }

    Application& application_;
    MessageLoop loop_;
    ToolBarCL toolBar_;
    StatusBarCL statusBar_;
    FrameNotices notices_;
    FileCommands files_;
    FileOpening opening_;
    OutsideOpens outside_;
    CommandDispatcher dispatcher_;
    KeyMacro macro_;
    HeldKeys heldKeys_;  // pressed while the macro plays
    MacroRepeatModel repeat_;
    KeyboardWatch watch_;
    FindCommands search_;
    std::unique_ptr<SearchDialog> searchDialog_;  // the last one; its window may be gone
    PrinterChoice printer_;
    AutoBackup backup_;
    RecentFiles recentFiles_;
    StartupFiles startupFiles_;
    FramePlacement placement_;
    std::unique_ptr<DdeServer> ddeServer_;
    HMENU fileMenu_ = nullptr;  // owned by the menu bar
    UINT fileOpenMessage_ = 0;  // what another instance broadcasts
    bool isOpened_ = false;     // from here on the placement is the user's
    bool isClosing_ = false;
};

}  // namespace vexa
