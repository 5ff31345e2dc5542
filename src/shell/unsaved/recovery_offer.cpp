#include "shell/unsaved/recovery_offer.h"

#include <utility>

#include "base/file_contents.h"
#include "base/file_name.h"

namespace vexa {

namespace {

constexpr std::size_t kRecover = 0;

bool HasFileChanged(const RecoveredText& recovered) {
    const auto contents = recovered.head.isFileKnown ? ContentsOf(recovered.path()) : std::nullopt;
    return contents && contents->checksum != recovered.head.fileChecksum;
}

bool RemoveIfSaved(const std::string& file) {
    const auto recovered = ReadRecoveryFile(file);
    return recovered && IsTextOfFile(*recovered) && platform::RemoveFile(file);
}

std::string RowOf(const std::string& file) {
    const auto recovered = ReadRecoveryFile(file);
    if (!recovered) return FillText(TextId::RowDamaged, {file});
    const std::string path = recovered->path();
    if (!IsFullName(path)) return std::string(LoadText(TextId::RowNewDocument));
    return HasFileChanged(*recovered) ? FillText(TextId::RowFileChanged, {path}) : path;
}

}  // namespace

RecoveryOffer::RecoveryOffer(std::vector<std::string> files, RecoveryHost& host, Notices& notices)
    : host_(host), notices_(notices), files_(std::move(files)) {
    std::erase_if(files_, RemoveIfSaved);
}

const DocumentChoice::Texts& RecoveryOffer::texts() const {
    static constexpr Texts kTexts{
        TextId::RecoverTitle, TextId::RecoverExplained, {TextId::RecoverButton, TextId::DeleteButton}, 2};
    return kTexts;
}

std::vector<std::string> RecoveryOffer::rows() const {
    std::vector<std::string> rows;
    for (const std::string& file : files_)
        rows.push_back(RowOf(file));
    return rows;
}

bool RecoveryOffer::mayAct(std::size_t button, std::size_t rows) {
    return button == kRecover || notices_.box(FillText(TextId::DeleteUnsaved, {std::to_string(rows)}),
                                              TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

void RecoveryOffer::act(std::size_t button, std::size_t row) {
    const std::string file = files_[row];
    files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(row));
    if (button != kRecover) {
        platform::RemoveFile(file);
    } else if (const auto recovered = ReadRecoveryFile(file)) {
        host_.recover(*recovered, file);
    } else {
        host_.openFile(file);
    }
}

void GiveText(TextDocument& document, const RecoveredText& recovered) {
    const RecoveryHead& head = recovered.head;
    document.history().nextGroup();
    ExchangeText(document, recovered.lines());
    document.history().nextGroup();
    DiskState& disk = document.disk();
    if (!head.isFileKnown) {
        document.forgetFile();
    } else if (disk.facts && disk.checksum != head.fileChecksum) {
        disk.checksum = head.fileChecksum;
        disk.facts->stamp = {head.fileSize, head.fileWriteTime};
    }
}

}  // namespace vexa
