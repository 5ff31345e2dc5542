#include "ui/lists/list_window_holder.h"

#include <memory>
#include <utility>

namespace vexa {

void ListWindowHolder::rowsChanged() {
    if (window_) window_->refresh();
}

void ListWindowHolder::selectionChanged() {
    if (window_) window_->showSelection();
}

void ListWindowHolder::show() {
    if (window_) return frame_.activate(*window_);
    auto made = std::make_unique<ListWindow>(frame_, host_, rows_, application_, [this] { window_ = nullptr; });
    ListWindow& shown = *made;
    const MDIchildCL* active = frame_.activeChild();
    const bool isMaximised = active && IsZoomed(active->window());
    const ChildShow how = isMaximised ? ChildShow::Maximised : ChildShow::Normal;
    if (!frame_.adopt(std::move(made), kListWindowClass, title_, how)) return;
    window_ = &shown;
    shown.showSelection();
}

bool ListWindowHolder::isActive() const {
    return window_ && frame_.activeChild() == window_;
}

}  // namespace vexa
