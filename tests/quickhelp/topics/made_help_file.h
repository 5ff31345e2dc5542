// Writes small help files of the second version of the format, not compressed or with old phrases, for tests and as
// seeds of the fuzzer.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/help_file_writer.h"
#include "quickhelp/topics/topic_index.h"

namespace vexa::topics::test {

using vexa::test::Number;
using vexa::test::TextZ;

inline std::string PackedLong(int value) {
    return Number((value + 16384) * 2, 2);
}

inline std::string PackedUshort(int value) {
    return Number(value * 2 + 1, 2);
}

inline std::string PackedShort(int value) {
    return Number((value + 16384) * 2 + 1, 2);
}

// A tree of one leaf, whose entries are given.
inline std::string Leaf(const std::vector<std::string>& entries) {
    std::vector<vexa::test::TreeEntry> all;
    for (const std::string& entry : entries)
        all.push_back({entry, ""});
    return vexa::test::MakeTree(all, {4096, "z"}).bytes;
}

// Paragraph information of a bit field and its operands, then commands; the end of commands is added.
inline std::string Format(int bits, std::string_view operands, std::string_view commands) {
    return PackedLong(0) + Number(0, 2) + Number(bits, 2) + std::string(operands) + std::string(commands) + "\xFF";
}

class MadeHelpFile {
  public:
    // Begins a topic; the offset by which indexes name it.
    std::uint32_t topic(std::string_view title, bool isFixed = false) {
        header_ = topics_.size();
        const std::uint32_t offset = characters_;
        const std::string none = Number(-1, 4);
        addLink(2, none + none + none + none + Number(isFixed ? placeBehind(28 + title.size()) : -1, 4) + none + none,
                title, title.size());
        return offset;
    }
    void text(std::string_view format, const std::vector<std::string>& texts) { record(0x20, format, texts); }
    void row(std::string_view format, const std::vector<std::string>& texts) { record(0x23, format, texts); }
    // A text of which the stored form is given.
    void storedText(std::string_view format, std::string_view stored, std::size_t length) {
        addLink(
            0x20,
            PackedLong(static_cast<int>(format.size())) + PackedUshort(static_cast<int>(length)) + std::string(format),
            stored, length);
        characters_ += static_cast<std::uint32_t>(length);
    }
    // What follows scrolls.
    void endFixed() { topics_.replace(header_ + 21 + 20, 4, Number(placeBehind(0), 4)); }
    void file(const std::string& name, std::string content) { files_.addFile(name, std::move(content)); }

    std::string bytes() {
        addLink(2, std::string(28, '\xFF'), "", 0);
        topics_.replace(last_ + 12, 4, Number(-1, 4));
        file("|TOPIC", Number(-1, 4) + Number(12, 4) + Number(-1, 4) + topics_);
        return files_.bytes();
    }

  private:
    std::int64_t placeBehind(std::size_t size) const {
        return static_cast<std::int64_t>(12 + topics_.size() + (size == 0 ? 0 : 21 + size));
    }
    void record(int type, std::string_view format, const std::vector<std::string>& texts) {
        std::string joined;
        for (const std::string& text : texts)
            joined += TextZ(text);
        addLink(type,
                PackedLong(static_cast<int>(format.size())) + PackedUshort(static_cast<int>(joined.size())) +
                    std::string(format),
                joined, joined.size());
        characters_ += static_cast<std::uint32_t>(joined.size());
    }
    void addLink(int type, std::string_view format, std::string_view stored, std::size_t length) {
        last_ = topics_.size();
        const auto size = static_cast<std::int64_t>(21 + format.size() + stored.size());
        topics_ += Number(size, 4) + Number(static_cast<std::int64_t>(length), 4) + Number(-1, 4) +
                   Number(12 + static_cast<std::int64_t>(topics_.size()) + size, 4) +
                   Number(static_cast<std::int64_t>(21 + format.size()), 4) + static_cast<char>(type);
        topics_ += format;
        topics_ += stored;
    }

    std::string topics_;
    std::size_t header_ = 0;
    std::size_t last_ = 0;
    std::uint32_t characters_ = 0;
    vexa::test::HelpFileWriter files_;
};

inline std::string Record(int type, std::string_view data) {
    return Number(type, 2) + Number(static_cast<std::int64_t>(data.size()), 2) + std::string(data);
}

// A window with a name, a caption and the colour of its fixed part.
inline std::string WindowRecord(std::string name, std::string caption, std::string_view fixedColour) {
    name.resize(9);
    caption.resize(51);
    return Record(6, Number(0x206, 2) + std::string(10, '\0') + name + caption + std::string(14, '\0') +
                         std::string(fixedColour) + '\0');
}

inline std::string FontDescriptor(int attributes, int halfPoints, std::string_view colour) {
    return Number(attributes, 1) + Number(halfPoints, 1) + Number(3, 1) + Number(0, 2) + std::string(colour) +
           std::string(3, '\0');
}

// A file of three topics with links, a table, a fixed region, phrases, two fonts, two windows and all indexes.
inline std::string MakeHelpFile() {
    using namespace std::string_literals;
    MadeHelpFile made;
    made.file("|SYSTEM", Number(0x036C, 2) + Number(21, 2) + Number(1, 2) + Number(0, 4) + Number(0, 2) +
                             Record(1, TextZ("Made")) + Record(3, Number(0, 4)) + Record(4, TextZ("BrowseButtons()")) +
                             Record(99, "unknown") + WindowRecord("main", "", "\xC0\xC0\xC0") +
                             WindowRecord("side", "Beside", "\x00\x00\x80"s));
    made.file("|FONT", Number(1, 2) + Number(2, 2) + Number(8, 2) + Number(28, 2) + "Arial" + std::string(15, '\0') +
                           FontDescriptor(1, 24, "\x01\x01\x00"s) + FontDescriptor(6, 20, "\x00\x00\x80"s));
    const std::string phrases = "thequick";
    made.file("|Phrases", Number(2, 2) + Number(0x100, 2) + Number(8, 4) + Number(6, 2) + Number(9, 2) + Number(14, 2) +
                              '\0' + phrases);
    const std::string hash = Number(HashOfContext("second"), 4);
    made.topic("First");
    made.text(
        Format(0x0012, PackedShort(10) + PackedShort(20),
               "\x80\x00\x00\xE3"s + hash + "\x89\x81\x82\x80\x01\x00\xC8\x08\x00"s + TextZ("Exit();") + "\x89\x82"),
        {"", "Go to ", "second", ".", "next line", "", "", "run", "", ""});
    made.storedText(Format(0, "", "\x80\x00\x00\x82"s), "\0\x01\x01\x01\x02 fox\0\0"s, 16);
    const std::uint32_t second = made.topic("Second", true);
    made.text(Format(0x0802, PackedShort(4), "\x80\x00\x00\x82"s), {"", "Fixed heading", ""});
    made.endFixed();
    const std::string cell = Number(1, 1) + PackedLong(0);
    made.row(Number(2, 1) + Number(1, 1) + Number(100, 2) + Number(10, 2) + Number(150, 2) + Number(20, 2) +
                 Number(0, 2) + cell + Format(0, "", "\x80\x00\x00\x82"s) + Number(1, 2) + cell +
                 Format(0, "", "\x80\x01\x00\x82"s) + Number(-1, 2),
             {"", "left", "", "", "right", ""});
    made.topic("Third");
    made.text(Format(0, "", "\x80\x00\x00\x99"s), {"", "known\x01\t", "unknown"});
    made.file("|CONTEXT", Leaf({hash + Number(second, 4)}));
    made.file("|TTLBTREE", Leaf({Number(0, 4) + TextZ("First"), Number(second, 4) + TextZ("Second")}));
    made.file("|CTXOMAP", Number(1, 2) + Number(7, 4) + Number(second, 4));
    made.file("|KWBTREE",
              Leaf({TextZ("alpha") + Number(2, 2) + Number(0, 4), TextZ("beta") + Number(1, 2) + Number(4, 4)}));
    made.file("|KWDATA", Number(0, 4) + Number(second, 4));
    return made.bytes();
}

}  // namespace vexa::topics::test
