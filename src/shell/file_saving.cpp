#include "shell/file_saving.h"

#include "base/strings.h"

namespace vexa {

namespace {

TextId CauseOf(CopyFault fault) {
    switch (fault) {
        case CopyFault::NameTooLong:
            return TextId::NameTooLongForCopy;
        case CopyFault::AllNamesTaken:
            return TextId::AllCopyNamesTaken;
        case CopyFault::NoNewFile:
            return TextId::NoNewFileForCopy;
        default:
            return TextId::NoRoomForCopy;
    }
}

}  // namespace

bool FileSaving::isYes(const std::string& question) {
    return notices_.box(question, TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

bool FileSaving::mayChangeBytes(const TextDocument& document) {
    if (!document.disk().changesUnedited) return true;
    const TextId what = document.disk().kind == ContentsKind::Utf16 ? TextId::Utf16Characters : TextId::ZeroBytes;
    return isYes(FillText(TextId::NotPlainText, {document.baseName(), LoadText(what)}));
}

bool FileSaving::write(TextDocument& document) {
    WriteOutcome outcome = document.tryWrite(false);
    bool withoutCopy = false;
    while (outcome.result != WriteResult::Written) {
        if (!mayGoOn(document, outcome)) return false;
        withoutCopy |= outcome.result == WriteResult::NoCopy;
        outcome = document.tryWrite(withoutCopy);
    }
    return true;
}

// What the user agrees to write over is what the file held when he was asked; a later change is another question.
bool FileSaving::mayGoOn(TextDocument& document, const WriteOutcome& outcome) {
    const std::string& name = document.baseName();
    if (outcome.result == WriteResult::Failed || outcome.result == WriteResult::Torn) {
        notices_.box(FillText(TextId::CannotWriteFile, {name}), TextId::ErrorCaption, BoxButtons::Ok);
        return false;
    }
    if (outcome.result == WriteResult::NoCopy)
        return isYes(FillText(TextId::NoSafetyCopy, {name, LoadText(CauseOf(outcome.fault))}));
    if (!isYes(FillText(TextId::FileChangedOutside, {name}))) return false;
    document.disk().checksum = outcome.checksum;
    return true;
}

}  // namespace vexa
