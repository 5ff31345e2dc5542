#include "quickhelp/topics/help_system.h"

#include <algorithm>

#include "base/ascii.h"
#include "quickhelp/topics/byte_reader.h"

namespace vexa::topics {
namespace {

constexpr int kMagic = 0x036C;
constexpr std::size_t kMostRecords = 4096;
constexpr std::int64_t kWindowSize = 90;

Colour ReadColour(ByteReader& in) {
    const std::uint32_t value = in.u32();
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16)};
}

template <class Value>
std::optional<Value> ValidIf(bool isValid, const Value& value) {
    return isValid ? std::optional<Value>(value) : std::nullopt;
}

std::string TextIf(bool isValid, std::string_view field) {
    return isValid ? std::string(FixedText(field)) : std::string();
}

HelpWindow ReadWindow(ByteReader& in) {
    HelpWindow window;
    const unsigned flags = in.u16();
    const auto has = [flags](unsigned bit) { return (flags & bit) != 0; };
    window.type = TextIf(has(1), in.bytes(10));
    window.name = TextIf(has(2), in.bytes(9));
    window.caption = TextIf(has(4), in.bytes(51));
    window.left = ValidIf<int>(has(8), in.i16());
    window.top = ValidIf<int>(has(0x10), in.i16());
    window.width = ValidIf<int>(has(0x20), in.i16());
    window.height = ValidIf<int>(has(0x40), in.i16());
    window.maximized = in.i16() != 0 && has(0x80);
    window.background = ValidIf(has(0x100), ReadColour(in));
    window.fixedBackground = ValidIf(has(0x200), ReadColour(in));
    window.onTop = has(0x400);
    window.heightByContent = has(0x800);
    return window;
}

std::string ReadText(ByteReader& in) {
    return std::string(in.text());
}

struct RecordReader {
    int type;
    void (*read)(HelpSystem& system, ByteReader& in);
};

constexpr RecordReader kRecords[] = {
    {1, [](HelpSystem& system, ByteReader& in) { system.title = ReadText(in); }},
    {2, [](HelpSystem& system, ByteReader& in) { system.copyright = ReadText(in); }},
    {3,
     [](HelpSystem& system, ByteReader& in) {
         if (in.left() >= 4) system.contents = in.u32();
     }},
    {4, [](HelpSystem& system, ByteReader& in) { system.configMacros.push_back(ReadText(in)); }},
    {6,
     [](HelpSystem& system, ByteReader& in) {
         if (in.left() >= kWindowSize) system.windows.push_back(ReadWindow(in));
     }},
    {8, [](HelpSystem& system, ByteReader& in) { system.citation = ReadText(in); }},
    {9,
     [](HelpSystem& system, ByteReader& in) {
         in.skip(8);
         system.language = in.u16();
     }},
    {10, [](HelpSystem& system, ByteReader& in) { system.contentsFile = ReadText(in); }},
    {11,
     [](HelpSystem& system, ByteReader& in) {
         while (in.left() > 0)
             system.faceCharsets.push_back(in.u8());
     }},
    {14, [](HelpSystem& system, ByteReader& in) { system.indexSeparators = ReadText(in); }},
};

void ReadRecord(HelpSystem& system, int type, std::string_view data) {
    for (const RecordReader& record : kRecords) {
        ByteReader in(data);
        if (record.type == type) record.read(system, in);
    }
}

}  // namespace

const HelpWindow* HelpSystem::window(int number) const {
    const bool isDefined = number >= 0 && static_cast<std::size_t>(number) < windows.size();
    return isDefined ? &windows[static_cast<std::size_t>(number)] : nullptr;
}

int HelpSystem::windowNamed(std::string_view name) const {
    const auto isMeant = [name](const HelpWindow& window) { return EqualIgnoringCase(window.name, name); };
    const auto found = std::ranges::find_if(windows, isMeant);
    return found == windows.end() ? -1 : static_cast<int>(found - windows.begin());
}

std::optional<HelpSystem> ReadHelpSystem(std::string_view file) {
    ByteReader in(file);
    HelpSystem system;
    const bool isSystem = in.u16() == kMagic;
    system.minor = in.u16();
    in.skip(6);
    system.flags = in.u16();
    if (!isSystem || in.failed()) return std::nullopt;
    if (system.isFirstVersion()) {
        system.title = ReadText(in);
        return system;
    }
    for (std::size_t i = 0; i < kMostRecords && in.left() >= 4; ++i) {
        const int type = in.u16();
        const int size = in.u16();
        ReadRecord(system, type, in.bytes(size));
    }
    return system;
}

}  // namespace vexa::topics
