#include "shell/unsaved/disk_changes.h"

#include <optional>

#include "base/file_contents.h"
#include "document/text/text_document.h"
#include "document/view/text_exchange.h"
#include "shell/unsaved/line_differences.h"

namespace vexa {

namespace {

constexpr std::size_t kMostRows = 2000;
// The buttons; the third shows the differences.
constexpr std::size_t kKeepMine = 0;
constexpr std::size_t kTakeTheirs = 1;

// At the next look the file counts as not looked at.
void LookAgain(TextDocument& document) {
    if (document.disk().facts) document.disk().facts->stamp.writeTime = 0;
}

// The checksum of what another program has written, unless it has been spoken of already. Reads the file only when its
// size or time is another than at the last look.
std::optional<std::uint64_t> NewContents(TextDocument& document) {
    DiskState& disk = document.disk();
    const auto facts =
        document.isNamed() && disk.checksum && disk.facts ? platform::FactsOf(document.fullPath()) : std::nullopt;
    if (!facts || facts->stamp == disk.facts->stamp) return std::nullopt;
    const auto contents = ContentsOf(document.fullPath());
    if (!contents) return std::nullopt;
    disk.facts = facts;
    if (contents->checksum == disk.checksum || contents->checksum == disk.putOff) return std::nullopt;
    return contents->checksum;
}

bool TakeTheirs(TextDocument& document, Notices& notices) {
    if (!ReadAnew(document)) {
        LookAgain(document);
        return false;
    }
    notices.status(FillText(TextId::ReadAnew, {document.baseName()}), false, false);
    return true;
}

}  // namespace

bool DiskChanges::look(std::span<TextDocument* const> documents) {
    changes_.clear();
    bool isAnyRead = false;
    for (TextDocument* document : documents) {
        const auto contents = NewContents(*document);
        if (!contents) continue;
        if (document->isModified()) {
            changes_.push_back({document, *contents});
        } else {
            isAnyRead |= TakeTheirs(*document, notices_);
        }
    }
    return isAnyRead;
}

void DiskChanges::putOff() {
    for (const Change& change : changes_)
        change.document->disk().putOff = change.checksum;
    changes_.clear();
}

const DocumentChoice::Texts& DiskChanges::texts() const {
    static constexpr Texts kTexts{TextId::ChangedTitle,
                                  TextId::ChangedExplained,
                                  {TextId::KeepMineButton, TextId::TakeTheirsButton, TextId::DifferencesButton},
                                  3};
    return kTexts;
}

std::vector<std::string> DiskChanges::rows() const {
    std::vector<std::string> rows;
    for (const Change& change : changes_)
        rows.push_back(change.document->fullPath());
    return rows;
}

// Nothing is decided: the question comes back with the next look.
void DiskChanges::showDifferences(TextDocument& document) {
    LookAgain(document);
    TextDocument theirs(document.options(), notices_);
    theirs.setName(document.fullPath());
    if (!theirs.load(document.rules())) return;
    std::vector<std::string> rows = LineDifferences(LinesOf(document), LinesOf(theirs), kMostRows);
    rows.insert(rows.begin(), FillText(TextId::DifferencesOf, {document.fullPath()}));
    view_.showRows(document, rows);
}

void DiskChanges::act(std::size_t button, std::size_t row) {
    const Change change = changes_[row];
    changes_.erase(changes_.begin() + static_cast<std::ptrdiff_t>(row));
    if (button == kKeepMine) {
        // What the user has agreed to write over is what the file holds now.
        change.document->disk().checksum = change.checksum;
    } else if (button == kTakeTheirs) {
        TakeTheirs(*change.document, notices_);
    } else {
        showDifferences(*change.document);
    }
}

}  // namespace vexa
