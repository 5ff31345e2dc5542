#include "document/view/goto_line_model.h"

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Goto";
constexpr const char* kKey = "Line";
constexpr std::size_t kFieldSize = 50;

}  // namespace

GotoLineModel::GotoLineModel(const ConfigStore& store) : line(store.ReadString(kSection, kKey, "", kFieldSize)) {}

void GotoLineModel::go(EditView& view, ConfigStore& store) const {
    store.WriteInt(kSection, kKey, view.goToLine(LeadingInteger(line)));
    view.centreCursorLine();
}

}  // namespace vexa
