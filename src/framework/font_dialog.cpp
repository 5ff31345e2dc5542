#include "framework/font_dialog.h"

#include <windows.h>

#include <commdlg.h>

#include <cstring>

#include "framework/gdi.h"
#include "framework/windows_behind.h"

namespace vexa {
namespace {

// The face that the system shows for a description. The dialog lists no face that the system has only a substitute for,
// and forgets the size with it.
void NameShownFace(HWND window, LOGFONTA& description) {
    const FontHandle font(CreateFontIndirectA(&description));
    const WindowDc dc = BorrowDc(window);
    if (!dc) return;
    const Selected selected(dc.get().dc, font.get());
    GetTextFaceA(dc.get().dc, LF_FACESIZE, description.lfFaceName);
}

}  // namespace

bool AskFixedPitchFont(HWND owner, LOGFONTA& description) {
    LOGFONTA answer = description;
    NameShownFace(owner, answer);
    const LOGFONTA shown = answer;
    CHOOSEFONTA request{};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner;
    request.lpLogFont = &answer;
    request.Flags = CF_SCREENFONTS | CF_FIXEDPITCHONLY | CF_INITTOLOGFONTSTRUCT | CF_NOSCRIPTSEL | CF_FORCEFONTEXIST;
    const WindowsBehind behind(owner);
    if (!ChooseFontA(&request)) return false;
    // Whoever leaves a substitute as it is has not chosen it: the face that was set may be on another machine.
    if (std::strcmp(answer.lfFaceName, shown.lfFaceName) == 0)
        std::memcpy(answer.lfFaceName, description.lfFaceName, LF_FACESIZE);
    description = answer;
    return true;
}

}  // namespace vexa
