#include "shell/session_documents.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/platform.h"
#include "base/strings.h"
#include "base/take_text.h"

namespace vexa {

namespace {

constexpr std::size_t kFileLimit = 16 * 1024 * 1024;  // bytes
constexpr std::size_t kPathsInBox = 10;
constexpr std::string_view kLineEnd = "\r\n";
constexpr char kBeforePath = '\t';  // what no path has

// The number at the start of a line of numbers, which is taken out.
std::int32_t TakeNumber(std::string_view& line) {
    return LeadingInteger(TakeUpTo(line, ' '));
}

// Whether it is the active one, the caret's line and column, and the lines of the bookmarks, -1 for none.
SessionDocument ReadLine(std::string_view numbers, std::string_view path) {
    SessionDocument document;
    document.path = path;
    document.isActive = TakeNumber(numbers) == 1;
    document.caret.line = LineIndex(std::max(TakeNumber(numbers), 0));
    document.caret.column = CharColumn(std::max(TakeNumber(numbers), 0));
    for (std::int32_t n = 0; n < Bookmarks::kCount && !numbers.empty(); ++n) {
        const LineIndex line(TakeNumber(numbers));
        if (line.value >= 0) document.bookmarks.drop(n, line);
    }
    return document;
}

std::string LineOf(const SessionDocument& document) {
    std::string line = document.isActive ? "1" : "0";
    const auto add = [&line](std::int32_t number) { line.append(1, ' ').append(std::to_string(number)); };
    add(document.caret.line.value);
    add(document.caret.column.value);
    for (std::int32_t n = 0; n < Bookmarks::kCount; ++n)
        add(document.bookmarks.line(n).value_or(LineIndex(-1)).value);
    return line.append(1, kBeforePath).append(document.path).append(kLineEnd);
}

}  // namespace

SessionDocument DescribeForSession(const TextDocument& document, bool isActive) {
    return {document.fullPath(), {document.currentLine(), document.column()}, document.bookmarks(), isActive};
}

std::string SessionText(std::span<const SessionDocument> documents) {
    std::string text;
    for (const SessionDocument& document : documents)
        text += LineOf(document);
    return text;
}

std::vector<SessionDocument> ReadSessionText(std::string_view text) {
    std::vector<SessionDocument> documents;
    for (std::size_t end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        const std::string_view line = text.substr(0, end);
        const std::size_t tab = line.find(kBeforePath);
        if (tab < line.size() - 1) documents.push_back(ReadLine(line.substr(0, tab), line.substr(tab + 1)));
        text.remove_prefix(end + kLineEnd.size());
    }
    return documents;
}

std::string TextOfMissing(std::span<const std::string> paths) {
    if (paths.size() == 1) return FillText(TextId::CannotOpenFile, {paths[0].substr(DirectoryOf(paths[0]).size())});
    std::string names;
    for (const std::string& path : paths.first(std::min(paths.size(), kPathsInBox)))
        names.append(path).append("\n");
    if (paths.size() > kPathsInBox) names.append("...");
    return FillText(TextId::SessionFilesGone, {std::to_string(paths.size()), names});
}

void SessionFile::keep(std::span<const SessionDocument> documents) {
    takeBack();
    if (!isUnread_) before_ = ReadKeptFile(path_, kFileLimit);
    if (before_) write(SessionText(documents));
}

void SessionFile::takeBack() {
    if (before_) write(*before_);
    before_.reset();
}

std::vector<SessionDocument> SessionFile::take() {
    const std::optional<std::string> text = ReadKeptFile(path_, kFileLimit);
    isUnread_ = !text;
    if (isUnread_) return {};
    write("");
    return ReadSessionText(*text);
}

void SessionFile::write(const std::string& text) {
    if (!text.empty()) {
        WriteWholeFile(path_, text);
    } else if (platform::PathExists(path_)) {
        platform::RemoveFile(path_);
    }
}

}  // namespace vexa
