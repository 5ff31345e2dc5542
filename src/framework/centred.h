// Where a window stands that comes up over another one.
#pragma once

#include <windows.h>

namespace vexa {

// The corner at which a window has its middle over that of the owner, but its title bar on the screen.
inline POINT CentredOver(const RECT& owner, const RECT& window) {
    const LONG left = (owner.left + owner.right - (window.right - window.left)) / 2;
    const LONG top = (owner.top + owner.bottom - (window.bottom - window.top)) / 2;
    return {left > 0 ? left : 0, top > 0 ? top : 0};
}

}  // namespace vexa
