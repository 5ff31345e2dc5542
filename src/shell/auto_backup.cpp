#include "shell/auto_backup.h"

#include <algorithm>
#include <cstdlib>

#include "base/ascii.h"
#include "base/checksum.h"
#include "base/file.h"
#include "base/file_name.h"
#include "base/scoped_flag.h"
#include "base/strings.h"
#include "document/text/text_writer.h"

namespace vexa {

namespace {

constexpr std::int64_t kSecondsAMinute = 60;

// A name that was given with "/" or relative to a drive must not lead out of the directory.
std::string FileNameOf(const TextDocument& document) {
    const std::string& name = document.baseName();
    return name.substr(name.find_last_of("\\/:") + 1);
}

std::string Upper(std::string text) {
    std::ranges::transform(text, text.begin(), UpperAscii);
    return text;
}

// Documents that have never been saved share one name.
std::string OwnNameOf(const TextDocument& document) {
    const std::string& path = document.fullPath();
    if (IsFullName(path)) return Upper(path);
    return path + std::to_string(reinterpret_cast<std::uintptr_t>(&document));
}

std::string MarkedName(const std::string& name, const std::string& owner) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    const std::string mark = std::to_string(static_cast<std::uint32_t>(ChecksumOf(owner)));
    return name.substr(0, dot) + "~" + mark + name.substr(dot);
}

}  // namespace

// A time to come is left from before the clock was set back; the interval begins anew.
std::int64_t AutoBackup::BackupTime(TextDocument& document) const {
    std::int64_t& time = document.backup().time;
    const std::int64_t now = clock_();
    if (time == 0 || time > now || !document.isModified()) time = now;
    return time;
}

bool AutoBackup::BackupDocument(TextDocument& document) {
    BackupState& state = document.backup();
    if (state.isWriting || !document.isModified()) return false;
    const ScopedFlag writing(state.isWriting);
    state.time = clock_();
    return keepOther(document) && writeCopy(document);
}

bool AutoBackup::keepOther(const TextDocument& document) {
    const std::string name = FileNameOf(document);
    const std::string backup = directory_ + "\\" + name;
    std::string& owner = owners_[Upper(name)];
    const std::string path = OwnNameOf(document);
    const bool isOthers = !owner.empty() && owner != path && platform::PathExists(backup);
    if (isOthers && !platform::RenameFile(backup, directory_ + "\\" + MarkedName(name, owner))) return false;
    owner = path;
    return true;
}

bool AutoBackup::writeCopy(TextDocument& document) const {
    const bool bytes = options_.FileWrite;
    return RewriteFile(directory_ + "\\" + FileNameOf(document), [&](File& file) {
        return WriteLines(
            document, [&file](std::string_view part) { return file.write(part); }, bytes);
    });
}

bool AutoBackup::isDue(TextDocument& document) const {
    const std::int64_t age = clock_() - BackupTime(document);
    // A settings file may hold a number below 0; the options dialog takes one for its magnitude, too.
    return age > 0 && age > std::abs(options_.BackupInterval * kSecondsAMinute);
}

bool AutoBackup::isOpen(const TextDocument* document) const {
    const std::vector<TextDocument*> open = frame_.openDocuments();
    return std::ranges::find(open, document) != open.end();
}

void AutoBackup::CheckBackups() {
    if (!options_.AutoBackup || checking_ || frame_.isBusy()) return;
    const ScopedFlag checking(checking_);
    for (TextDocument* document : frame_.openDocuments()) {
        if (!isOpen(document) || !isDue(*document)) continue;
        notices_.status(LoadText(TextId::BackupStarted), false, false);
        if (notices_.pumpMessages()) break;
        if (isOpen(document)) BackupDocument(*document);
    }
}

}  // namespace vexa
