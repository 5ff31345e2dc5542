// The window of one list, which is made when it is first shown, and again after its user has closed it.
#pragma once

#include <string>

#include "base/list_rows.h"
#include "base/strings.h"
#include "framework/mdi_frame.h"
#include "ui/lists/list_window.h"

namespace vexa {

class ListWindowHolder : public ListView {
  public:
    ListWindowHolder(TextId title, ListRows& rows, MDIframeCL& frame, ListHost& host, Application& application)
        : title_(LoadText(title)), rows_(rows), frame_(frame), host_(host), application_(application) {}

    void rowsChanged() override;
    void selectionChanged() override;
    void show() override;
    bool isActive() const override;

  private:
    const std::string title_;
    ListRows& rows_;
    MDIframeCL& frame_;
    ListHost& host_;
    Application& application_;
    ListWindow* window_ = nullptr;
};

}  // namespace vexa
