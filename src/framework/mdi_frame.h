// A main window with other windows inside it (MDI).
#pragma once

#include <memory>
#include <vector>

#include "framework/frame.h"
#include "framework/mdi_child.h"

namespace vexa {

// How a child window is first shown.
enum class ChildShow { Normal, Minimised, Maximised, Tiled };

enum class Arrangement { Cascade, Tile, TileVertically, TileHorizontally, Icons };

// Owns its child windows, in the order in which they were opened and then moved.
class MDIframeCL : public AppFrameCL {
  public:
    bool translate(MSG& message) override;

    HWND mdiClient() const { return client_; }
    const std::vector<std::unique_ptr<MDIchildCL>>& children() const { return children_; }
    // None when no window is open.
    MDIchildCL* activeChild() const;
    void activate(const MDIchildCL& child);
    void activateNext();
    void activatePrevious();
    void arrange(Arrangement arrangement);
    // Opens the child's window and takes the child over. False, and the child is gone, when the system refuses.
    bool adopt(std::unique_ptr<MDIchildCL> child, const WindowClass& windowClass, const std::string& title,
               ChildShow show);
    // Gives a child another one's position among the children.
    void moveChild(std::size_t from, std::size_t to);
    // The children, the one used last first.
    std::vector<MDIchildCL*> childrenByUse() const;
    // Asks each child whether it may be closed, up to the first that refuses; all stay open.
    bool mayCloseChildren() const;
    // Closes children that have agreed, letting messages run between them.
    void closeChildren(const std::vector<MDIchildCL*>& order);
    // Closes a child if it agrees.
    bool closeChild(MDIchildCL& child);
    // Children that have agreed are being closed.
    bool isClosingChildren() const { return isClosingChildren_; }
    // Shows the menu of the active child's title, which the frame's title has while the child is maximised. False for a
    // child that has none of its own.
    virtual bool showTitleMenu(POINT /*screenPosition*/) { return false; }
    // Lets go of a child whose window has been destroyed.
    void forget(const MDIchildCL& child);

  protected:
    friend class MDIchildCL;

    bool onClose() override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;

    // The menu at whose end the child windows are listed.
    bool openClient(HMENU windowMenu);
    // The child windows have the whole rectangle of the frame's client area.
    void placeClient(const RECT& area);

    // Lets what is queued run in the middle of long work; true when the program is about to end.
    virtual bool pumpMessages() { return false; }
    // A child window has come or gone, or has become the active one.
    virtual void childrenChanged() {}

    LRESULT defaultProcedure(const Message& message) override;

  private:
    bool owns(const MDIchildCL* child) const;
    void closeAgreed(MDIchildCL& child);
    bool openAs(MDIchildCL& child, const WindowClass& windowClass, const std::string& title, bool maximised);

    HWND client_ = nullptr;
    std::vector<std::unique_ptr<MDIchildCL>> children_;
    bool isClosingChildren_ = false;
    bool isCloseWanted_ = false;  // of the frame, as soon as the children are closed
};

}  // namespace vexa
