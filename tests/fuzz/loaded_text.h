// What a text must be after it was loaded, and after it was written and loaded again.
#pragma once

#include <string>

#include "base/checksum.h"
#include "base/file.h"
#include "document/text/text_document.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {

inline std::string WithoutLineEnds(const std::string& bytes, bool binary) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\n') {
            text += bytes[i];
        } else if (!binary && i > 0 && bytes[i - 1] == '\r') {
            text.pop_back();
        }
    }
    return text;
}

inline std::string Joined(const TextDocument& document) {
    std::string text;
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex i; i <= last; ++i)
        text += document.text(i);
    return text;
}

// What is to stay as it is is written as it was.
inline void RequireStays(const std::string& bytes) {
    File("C:\\A.TXT", platform::OpenMode::CreateAlways).write(bytes);
    SilentNotices notices;
    EditorOptions options;
    options.habits.keepFiles = true;
    TextDocument document(options, notices);
    document.setName("C:\\A.TXT");
    Require(document.load());
    if (document.isTruncated()) return;
    Require(document.write());
    Require(document.disk().checksum == ChecksumOf(bytes));
}

// The bytes load, nothing but line ends is lost, and what is written loads again as the same text.
inline void RequireLoads(const std::string& bytes, bool binary) {
    MakeDisk();
    File("C:\\A.TXT", platform::OpenMode::CreateAlways).write(bytes);
    SilentNotices notices;
    EditorOptions options;
    options.FileWrite = binary;
    TextDocument document(options, notices);
    document.setName("C:\\A.TXT");
    Require(document.load());
    const std::string text = Joined(document);
    Require(text == WithoutLineEnds(bytes, binary));

    Require(document.write());
    TextDocument again(options, notices);
    again.setName("C:\\A.TXT");
    Require(again.load());
    const bool getsCtrlZ = binary && !text.ends_with('\x1A');
    if (!again.areLinesWrapped()) Require(Joined(again) == text + (getsCtrlZ ? "\x1A" : ""));
    RequireStays(bytes);
}

}  // namespace vexa::fuzz
