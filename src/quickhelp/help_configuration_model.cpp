#include "quickhelp/help_configuration_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/strings.h"

namespace vexa {

namespace {

std::string Changed(std::string text, char (*change)(char)) {
    std::ranges::transform(text, text.begin(), change);
    return text;
}

// The index of a help file. The whole path ends at its first ".", even if that stands in a directory's name.
std::string IndexPath(const std::string& directory, const std::string& helpFile) {
    const std::string path = directory + "\\" + helpFile;
    return path.substr(0, path.find('.')) + ".ZIX";
}

std::string WithExtension(const std::string& name, const std::string& extension) {
    return name.substr(0, name.rfind('.')) + extension;
}

}  // namespace

std::string HelpFileRow::text() const {
    switch (kind) {
        case Kind::File:
            break;
        case Kind::Directory:
            return "[" + name + "]";
        case Kind::Drive:
            return "[-" + Changed(name, LowerAscii) + "-]";
    }
    return name;
}

HelpConfigurationModel::HelpConfigurationModel(std::string indexDirectory, Notices& notices)
    : indexDirectory_(std::move(indexDirectory)), formerDirectory_(platform::CurrentDirectory()), notices_(notices) {
    listFiles();
    listInstalled();
}

HelpConfigurationModel::~HelpConfigurationModel() {
    platform::ChangeDirectory(formerDirectory_);
    platform::ChangeDrive(UpperAscii(formerDirectory_.empty() ? '\0' : formerDirectory_[0]) - 'A');
}

// ---- lists -------------------------------------------------------------------------------------------------------

void HelpConfigurationModel::listFiles() {
    using Kind = HelpFileRow::Kind;
    path_ = platform::CurrentDirectory();
    rows_.clear();
    for (std::string& name : platform::FindFiles("*.hlp"))
        rows_.push_back({Kind::File, std::move(name)});
    for (std::string& name : platform::FindDirectories(path_))
        rows_.push_back({Kind::Directory, std::move(name)});
    for (const char letter : platform::DriveLetters())
        rows_.push_back({Kind::Drive, std::string(1, letter)});
    row_.reset();
}

void HelpConfigurationModel::listInstalled() {
    for (const std::string& name : FindHelpIndexes(indexDirectory_))
        installed_.push_back(Changed(WithExtension(name, ".hlp"), LowerAscii));
}

void HelpConfigurationModel::note(const std::string& name) {
    const auto isIt = [&name](const std::string& other) { return EqualIgnoringCase(other, name); };
    if (std::ranges::none_of(installed_, isIt)) installed_.push_back(Changed(name, LowerAscii));
}

void HelpConfigurationModel::clearChoices() {
    row_.reset();
    installedRow_.reset();
}

// ---- what the user does ------------------------------------------------------------------------------------------

const HelpFileRow* HelpConfigurationModel::chosenFile() const {
    return row_ && rows_[*row_].kind == HelpFileRow::Kind::File ? &rows_[*row_] : nullptr;
}

bool HelpConfigurationModel::canAdd() const {
    return chosenFile() != nullptr;
}

bool HelpConfigurationModel::canRemove() const {
    return installedRow_.has_value();
}

bool HelpConfigurationModel::open() {
    if (!row_) return false;
    return chosenFile() ? add() : goTo(rows_[*row_]);
}

bool HelpConfigurationModel::goTo(const HelpFileRow& row) {
    const bool isDrive = row.kind == HelpFileRow::Kind::Drive;
    if (!(isDrive ? platform::ChangeDrive(row.name[0] - 'A') : platform::ChangeDirectory(row.name))) return false;
    listFiles();
    return true;
}

IndexResult HelpConfigurationModel::build(const std::string& helpFile) {
    const BusyCursor busy(notices_);
    return BuildHelpIndex(helpFile, IndexPath(indexDirectory_, helpFile));
}

bool HelpConfigurationModel::add() {
    if (!canAdd()) return false;
    const std::string name = chosenFile()->name;
    const IndexResult result = build(name);
    if (result != IndexResult::Written) {
        const std::string message = FillText(TextId::HelpIndexFailed, {Changed(name, UpperAscii)});
        notices_.box(message + std::string(TextOf(result)), TextId::ErrorCaption, BoxButtons::Ok);
        return false;
    }
    note(name);
    clearChoices();
    return true;
}

void HelpConfigurationModel::remove() {
    if (!canRemove()) return;
    const std::string name = WithExtension(installed_[*installedRow_], ".zix");
    if (!DeleteHelpIndex(indexDirectory_ + "\\" + name)) {
        notices_.box(FillText(TextId::HelpIndexCannotDelete, {name}), TextId::ErrorCaption, BoxButtons::Ok);
        return;
    }
    installed_.erase(installed_.begin() + static_cast<std::ptrdiff_t>(*installedRow_));
    clearChoices();
}

}  // namespace vexa
