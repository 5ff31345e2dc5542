#include "external/tool_list.h"

#include <algorithm>
#include <utility>

#include "base/file.h"
#include "base/fixed_field.h"

namespace vexa {

namespace {

constexpr const char* kFileName = "\\VexaTool.INF";
constexpr std::size_t kRecordSize = 815;
constexpr std::size_t kTextField = 256;
constexpr std::size_t kMenuTextField = 41;
constexpr std::size_t kLargestFile = 1 + kMostTools * kRecordSize;

constexpr std::size_t kFirstKeysEnd = 4;  // tools on Shift+F1 to Shift+F4
constexpr std::size_t kSkippedKeys = 2;   // Shift+F5 and Shift+F6 are other commands'

struct TextField {
    std::size_t size;
    const std::string& (ProgramRequest::*get)() const;
    void (ProgramRequest::*set)(std::string_view text);
};

// In the order of the file.
constexpr TextField kTextFields[] = {
    {kTextField, &ProgramRequest::program, &ProgramRequest::setProgram},
    {kMenuTextField, &ProgramRequest::menuText, &ProgramRequest::setMenuText},
    {kTextField, &ProgramRequest::arguments, &ProgramRequest::setArguments},
    {kTextField, &ProgramRequest::directory, &ProgramRequest::setDirectory},
};

// A kind that does not exist counts as a program of Windows, as a file of no known kind does.
ProgramKind KindOf(std::uint16_t number) {
    const bool exists = number <= static_cast<std::uint16_t>(ProgramKind::Interpreter);
    return exists ? static_cast<ProgramKind>(number) : ProgramKind::Windows;
}

// The record is whole.
ProgramRequest DecodeTool(std::string_view record) {
    FieldReader reader(record);
    ProgramRequest tool;
    tool.capture = reader.byte() != '\0';
    tool.askForArguments = reader.byte() != '\0';
    tool.kind = KindOf(reader.number().value_or(0));
    tool.showMode = static_cast<ShowMode>(reader.number().value_or(0));
    for (const TextField& field : kTextFields)
        (tool.*field.set)(reader.text(field.size).value_or(std::string_view()));
    return tool;
}

void AddTool(std::string& bytes, const ProgramRequest& tool) {
    bytes += static_cast<char>(tool.capture);
    bytes += static_cast<char>(tool.askForArguments);
    AddNumber(bytes, static_cast<std::uint16_t>(tool.kind));
    AddNumber(bytes, static_cast<std::uint16_t>(tool.showMode));
    for (const TextField& field : kTextFields)
        AddText(bytes, (tool.*field.get)(), field.size);
}

}  // namespace

Tools DecodeTools(std::string_view bytes) {
    Tools tools;
    FieldReader reader(bytes);
    const auto count = static_cast<unsigned char>(reader.byte().value_or('\0'));
    while (tools.size() < std::min<std::size_t>(count, kMostTools)) {
        const auto record = reader.text(kRecordSize);
        if (!record) break;
        tools.push_back(DecodeTool(*record));
    }
    return tools;
}

std::string EncodeTools(const Tools& tools) {
    std::string bytes(1, static_cast<char>(tools.size()));
    for (const ProgramRequest& tool : tools)
        AddTool(bytes, tool);
    return bytes;
}

ToolList::ToolList(const Directories& directories) : path_(directories.GetDirectory(kConfigDirectory) + kFileName) {}

void ToolList::LoadTools() {
    const std::optional<std::string> bytes = ReadKeptFile(path_, kLargestFile);
    isRead_ = bytes.has_value();
    tools_ = isRead_ ? DecodeTools(*bytes) : Tools();
}

std::optional<std::size_t> ToolList::find(std::string_view menuText) const {
    const auto found = std::ranges::find(tools_, menuText, &ProgramRequest::menuText);
    if (found == tools_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - tools_.begin());
}

bool ToolList::replace(Tools tools) {
    if (!isRead_ || !WriteWholeFile(path_, EncodeTools(tools))) return false;
    tools_ = std::move(tools);
    return true;
}

std::string ToolMenuText(const ProgramRequest& tool, std::size_t index) {
    const std::size_t key = index + 1 + (index < kFirstKeysEnd ? 0 : kSkippedKeys);
    return tool.menuText() + "\tShift+F" + std::to_string(key);
}

}  // namespace vexa
