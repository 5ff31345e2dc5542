#include "ui/document/system_clipboard.h"

#include <algorithm>
#include <cstring>

#include "framework/clipboard.h"

namespace vexa {

SystemClipboard::SystemClipboard() : kindFormat_(RegisterClipboardFormatA("VexaPrivate")) {}

bool SystemClipboard::put(std::string_view text, MarkMode kind) {
    const auto number = static_cast<std::int32_t>(kind);
    const ClipboardEntry entries[] = {{kindFormat_, {reinterpret_cast<const char*>(&number), sizeof number}},
                                      {CF_TEXT, text}};
    return PutOnClipboard(owner_, entries);
}

bool SystemClipboard::hasText() const {
    return IsClipboardFormatAvailable(CF_TEXT);
}

std::optional<std::string> SystemClipboard::getText() const {
    std::optional<std::string> text = TakeFromClipboard(owner_, CF_TEXT);
    if (text) text->resize(std::min(text->find('\0'), text->size()));
    return text;
}

MarkMode SystemClipboard::getKind() const {
    const std::optional<std::string> bytes = TakeFromClipboard(owner_, kindFormat_);
    std::int32_t kind = 0;
    if (!bytes || bytes->size() < sizeof kind) return MarkMode::Lines;
    std::memcpy(&kind, bytes->data(), sizeof kind);
    return static_cast<MarkMode>(kind);
}

}  // namespace vexa
