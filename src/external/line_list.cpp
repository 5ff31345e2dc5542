#include "external/line_list.h"

#include "base/file.h"
#include "base/file_name.h"
#include "base/strings.h"
#include "external/captured_lines.h"

namespace vexa {

namespace {

constexpr std::size_t kBannerWidth = 80;

bool NamesDriveAndFile(std::string_view name) {
    return name.size() > 2 && name[1] == ':';
}

// Directories and devices are no files that can be read.
bool IsFile(const std::string& path) {
    return File(path, platform::OpenMode::Read).isOpen();
}

}  // namespace

RowKind LineList::rowKind(std::size_t row) const {
    painter_.Parse(documentName(), lines_[row]);
    switch (painter_.level()) {
        case ErrorLevel::Error:
            return RowKind::Error;
        case ErrorLevel::Warning:
            return RowKind::Warning;
        case ErrorLevel::None:
            break;
    }
    return RowKind::Plain;
}

void LineList::select(std::size_t row) {
    selected_ = row;
    if (view_) view_->selectionChanged();
}

void LineList::selectRow(std::size_t row) {
    if (row < lines_.size()) select(row);
}

void LineList::clearRows() {
    lines_.clear();
    selected_.reset();
    if (view_) view_->rowsChanged();
}

bool LineList::addRow(std::string_view text) {
    const bool added = lines_.add(text);
    if (!added) tell(LoadText(TextId::ListFull));
    return added;
}

void LineList::AddLine(std::string_view text) {
    addRow(text);
    if (view_) view_->rowsChanged();
}

void LineList::AddBanner() {
    const std::string rule(kBannerWidth, '-');
    for (const std::string_view line : {std::string_view(rule), LoadText(TextId::BannerTitle),
                                        LoadText(TextId::BannerNotice), std::string_view(rule)})
        lines_.addLast(line);
    AddLine({});
}

bool LineList::loadLines(const std::string& path, const Callback<void(std::string_view)>& added) {
    return ReadCapturedLines(path, [&](std::string_view line) {
        const bool taken = addRow(line);
        if (taken) added(lines_[lines_.size() - 1]);
        return taken;
    });
}

void LineList::addClosing(std::initializer_list<std::string_view> texts) {
    for (const std::string_view text : texts)
        lines_.addLast(text);
}

std::string LineList::selectedText() const {
    return selected_ ? std::string(lines_[*selected_]) : std::string();
}

void LineList::show() {
    if (!view_) return;
    view_->rowsChanged();
    view_->show();
}

std::string LineList::pathOf(const std::string& fileName) const {
    if (NamesDriveAndFile(fileName)) return fileName;
    if (fileName.find('\\') != std::string::npos) return platform::FullPath(fileName);
    return PrefixOf(baseDirectory_) + fileName;
}

bool LineList::openAt(const std::string& fileName, std::int32_t lineNumber) {
    const std::string path = pathOf(fileName);
    return !fileName.empty() && IsFile(path) && opener_.openFileAtLine(path, lineNumber);
}

}  // namespace vexa
