// A window inside an MDI frame.
#pragma once

#include "framework/window.h"

namespace vexa {

class MDIframeCL;

class MDIchildCL : public WindowCL {
  public:
    explicit MDIchildCL(MDIframeCL& frame) : frame_(frame) {}

    // Whether the user may close the window now; asks him if need be.
    virtual bool mayClose() { return true; }
    // The window has agreed and is going to be closed.
    virtual void onClosing() {}

  protected:
    friend class MDIframeCL;
    bool open(const WindowClass& windowClass, const std::string& title);

    LRESULT defaultProcedure(const Message& message) override;
    bool onMdiActivate(bool active) override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;
    bool onClose() override;
    void onGone() override;

    MDIframeCL& frame() const { return frame_; }

  private:
    MDIframeCL& frame_;
};

}  // namespace vexa
