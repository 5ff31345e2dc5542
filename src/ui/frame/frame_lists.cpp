#include "ui/frame/frame_lists.h"

namespace vexa {

void FrameLists::userActs() {
    notices_.clearStatus();
    if (const ListWindow* active = documents_.activeList()) steps_.use(active->rows());
}

}  // namespace vexa
