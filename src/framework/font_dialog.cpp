#include "framework/font_dialog.h"

#include <windows.h>

#include <commdlg.h>

namespace vexa {

bool AskFixedPitchFont(HWND owner, LOGFONTA& description) {
    LOGFONTA answer = description;
    CHOOSEFONTA request{};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner;
    request.lpLogFont = &answer;
    request.Flags = CF_SCREENFONTS | CF_FIXEDPITCHONLY | CF_INITTOLOGFONTSTRUCT | CF_NOSCRIPTSEL | CF_FORCEFONTEXIST;
    if (!ChooseFontA(&request)) return false;
    description = answer;
    return true;
}

}  // namespace vexa
