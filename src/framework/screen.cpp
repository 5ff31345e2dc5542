#include "framework/screen.h"

namespace vexa {
namespace {

RECT WorkAreaOf(HMONITOR monitor) {
    MONITORINFO details{};
    details.cbSize = sizeof(details);
    GetMonitorInfoA(monitor, &details);
    return details.rcWork;
}

BOOL CALLBACK AddWorkArea(HMONITOR monitor, HDC, RECT*, LPARAM areas) {
    reinterpret_cast<std::vector<RECT>*>(areas)->push_back(WorkAreaOf(monitor));
    return TRUE;
}

}  // namespace

std::vector<RECT> WorkAreas() {
    std::vector<RECT> areas;
    EnumDisplayMonitors(nullptr, nullptr, &AddWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

RECT WorkAreaNear(const RECT& rectangle) {
    return WorkAreaOf(MonitorFromRect(&rectangle, MONITOR_DEFAULTTONEAREST));
}

}  // namespace vexa
