// The viewer of help files: a window of its own beside the frame. It is made when it is first needed and may be closed
// and opened again; its position is remembered.
#pragma once

#include <string>

#include "base/config_store.h"
#include "framework/gdi.h"
#include "framework/window.h"
#include "quickhelp/topics/help_browser.h"
#include "ui/help/command_bar.h"
#include "ui/help/topic_pane.h"
#include "ui/help/topic_printer.h"

namespace vexa {

class HelpWindow : public WindowCL, private TopicPaneHost {
  public:
    // The directory of the indexes, without "\" at its end, says where linked help files may be.
    HelpWindow(ConfigStore& store, std::string indexDirectory, TopicPrinter& printer);
    ~HelpWindow() override;

    // Each opens the window in front of the others. False, and nothing has changed, when the file cannot be shown.
    bool showContents(const std::string& path);
    bool showNumber(const std::string& path, std::int32_t number);
    bool showKeyword(const std::string& path, const std::string& keyword);

  protected:
    bool onCreate() override;
    void onDestroy() override;
    bool onSize(UINT kind) override;
    bool onFocusGained() override;
    bool onCommand(WORD id, bool fromKey) override;
    bool onDpiChanged(const RECT& suggested) override;
    void onSettingChange() override;
    bool onOther(Message& message) override;

  private:
    friend struct HelpWindowTables;  // commands and keys

    void followLink(TopicPane& pane, const topics::Link& link) override;
    bool useKey(const KeyMessage& key) override;
    bool useMnemonic(unsigned char character) override;
    void paneScrolled(TopicPane& pane, int y) override;
    void panePressed(TopicPane& pane) override;
    void paneLeft(TopicPane& pane) override;

    bool present(topics::BrowserOutcome outcome);
    bool openWindow();
    void carryOut(topics::BrowserOutcome outcome);
    void showTopic();
    void showRefused();
    void tell(const std::string& text);
    void refreshFont();
    void layOut();
    void refreshCommands();
    void closePopUp();
    void askLater(topics::BrowserOutcome outcome);
    void askForKeyword();
    void askForTopic();

    // ---- commands ----
    void toContents() { carryOut(browser_.toContents()); }
    void toIndex() { askForKeyword(); }
    void toLast() { carryOut(browser_.back()); }
    void toPrevious() { carryOut(browser_.previous()); }
    void toNext() { carryOut(browser_.next()); }
    void find();
    void findNext();
    void copy() { pane_.copy(); }
    void selectAll() { pane_.selectAll(); }
    void print();
    void leave();

    ConfigStore& store_;
    TopicPrinter& printer_;
    topics::HelpBrowser browser_;
    TopicPane pane_;
    TopicPane popUp_;
    CommandBar bar_;
    FontHandle font_;
    HWND foot_ = nullptr;  // a child with a text, hidden without one
    std::string findText_;
    bool isPopUpClosing_ = false;
};

}  // namespace vexa
