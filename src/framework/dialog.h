// A dialog as an object: made from a resource template, modal or beside its owner, with its controls by their numbers.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vexa {

// IDOK, IDCANCEL and IDHELP are the buttons that accept, leave and explain, which F1 does, too. An exception in a
// handler is reported to the debugger and goes no further.
class DialogFrameCL {
  public:
    explicit DialogFrameCL(int resource) : resource_(resource) {}
    virtual ~DialogFrameCL();
    DialogFrameCL(const DialogFrameCL&) = delete;
    DialogFrameCL& operator=(const DialogFrameCL&) = delete;

    // Runs until the dialog is closed; true when it was accepted.
    bool runModal(HWND owner);
    // Opens beside the owner; false when the system refuses.
    bool openModeless(HWND owner);
    void close(bool accepted);
    HWND window() const { return window_; }

    // ---- controls ----
    std::string textOf(int control) const;
    void setTextOf(int control, const std::string& text);
    void limitTextOf(int control, std::size_t characters);
    void limitComboText(int control, std::size_t characters);
    // Selects all of the text in a combo box's field.
    void markComboText(int control);
    // The text that is chosen in a combo box's list; empty when none is.
    std::string chosenTextOf(int control) const;
    // Lists and drop-down lists: their rows, counted from 0, and the chosen one.
    // Filling a combo box empties its field.
    void fillList(int control, std::span<const std::string> texts);
    void chooseRow(int control, std::size_t row);
    std::optional<std::size_t> chosenRowOf(int control) const;
    bool isChecked(int control) const;
    void setChecked(int control, bool checked);
    void enable(int control, bool enabled);
    // Lets the arrow and page keys that are pressed in a field move through a list.
    void moveListFrom(int field, int list);
    // Puts the caret into a field with all of its text selected.
    void focusOn(int control);
    HWND control(int number) const { return GetDlgItem(window_, number); }

  protected:
    // ---- handlers ----
    virtual void onOpen() {}
    virtual void onAccept() { close(true); }
    virtual void onCancel() { close(false); }
    virtual void onHelp() {}
    // A control has told something: BN_CLICKED, EN_CHANGE, CBN_SELCHANGE...
    virtual void onControl(int /*control*/, UINT /*notification*/) {}
    // A row of a control that the program draws itself; false leaves it empty.
    virtual bool onDrawItem(const DRAWITEMSTRUCT& /*item*/) { return false; }
    virtual void onActivate(bool /*active*/) {}
    // The window is gone; the object may be destroyed here.
    virtual void onGone() {}
    // Where the dialog opens, given its owner's top-left corner; over the middle of the owner without an answer.
    virtual std::optional<POINT> openingCorner(POINT /*owner*/) { return std::nullopt; }
    virtual void keepCorner(POINT /*owner*/, POINT /*corner*/) {}

  private:
    // What a field needs whose keys move through a list.
    struct ListKeys {
        WNDPROC original;
        HWND list;
    };

    static LRESULT CALLBACK FieldProcedure(HWND field, UINT number, WPARAM wParam, LPARAM lParam) noexcept;
    static INT_PTR CALLBACK Procedure(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR receive(UINT number, WPARAM wParam, LPARAM lParam);
    void open();
    void command(int id, UINT notification);
    void placeAtOpening();
    void unmarkOtherCombos();
    void keepPosition();

    const int resource_;
    HWND window_ = nullptr;
    bool isModal_ = false;
    std::vector<std::unique_ptr<ListKeys>> listKeys_;  // their fields point to them
};

}  // namespace vexa
