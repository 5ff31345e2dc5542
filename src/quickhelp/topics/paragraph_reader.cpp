#include "quickhelp/topics/paragraph_reader.h"

#include <algorithm>

#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/paragraph_format.h"

namespace vexa::topics {
namespace {

constexpr int kEndOfCommands = 0xFF;
constexpr int kMostColumns = 256;
constexpr int kEmbeddedWindow = 5;
constexpr int kPictureType = 0x22;

class ParagraphReader {
  public:
    ParagraphReader(std::string_view text, std::uint32_t offset, Topic& topic)
        : text_(text), offset_(offset), topic_(topic) {}

    void readGroup(ByteReader& in, int column);

  private:
    struct Command {
        int code;
        void (ParagraphReader::*read)(ByteReader& in, int code);
    };
    static const Command kCommands[];

    bool readCommand(ByteReader& in, int code);
    void takeText();
    void append(std::string_view text, int picture = -1);
    std::uint32_t offsetHere() const { return offset_ + static_cast<std::uint32_t>(text_.position()) + pictureCount_; }
    void begin();
    void end();
    void startLink(Link link);

    void setFont(ByteReader& in, int) { font_ = in.u16(); }
    void breakLine(ByteReader&, int) { append("\n"); }
    void endParagraph(ByteReader&, int) { end(); }
    void addTab(ByteReader&, int) { append("\t"); }
    void addBlank(ByteReader&, int) { append("\xA0"); }
    void keepHyphen(ByteReader&, int) {}
    void endLink(ByteReader&, int) { link_ = -1; }
    void addPicture(ByteReader& in, int code);
    void addEmbedded(std::string_view data, PictureUse& picture);
    void startMacro(ByteReader& in, int code);
    void startNumberJump(ByteReader& in, int code);
    void startJump(ByteReader& in, int code);
    void startOutsideJump(ByteReader& in, int code);

    ByteReader text_;
    std::uint32_t offset_;
    std::uint32_t pictureCount_ = 0;
    Topic& topic_;
    Paragraph paragraph_;
    int font_ = 0;
    int link_ = -1;
};

const ParagraphReader::Command ParagraphReader::kCommands[] = {
    {0x80, &ParagraphReader::setFont},          {0x81, &ParagraphReader::breakLine},
    {0x82, &ParagraphReader::endParagraph},     {0x83, &ParagraphReader::addTab},
    {0x86, &ParagraphReader::addPicture},       {0x87, &ParagraphReader::addPicture},
    {0x88, &ParagraphReader::addPicture},       {0x89, &ParagraphReader::endLink},
    {0x8B, &ParagraphReader::addBlank},         {0x8C, &ParagraphReader::keepHyphen},
    {0xC8, &ParagraphReader::startMacro},       {0xCC, &ParagraphReader::startMacro},
    {0xE0, &ParagraphReader::startNumberJump},  {0xE1, &ParagraphReader::startNumberJump},
    {0xE2, &ParagraphReader::startJump},        {0xE3, &ParagraphReader::startJump},
    {0xE6, &ParagraphReader::startJump},        {0xE7, &ParagraphReader::startJump},
    {0xEA, &ParagraphReader::startOutsideJump}, {0xEB, &ParagraphReader::startOutsideJump},
    {0xEE, &ParagraphReader::startOutsideJump}, {0xEF, &ParagraphReader::startOutsideJump},
};

bool ParagraphReader::readCommand(ByteReader& in, int code) {
    const auto command = std::ranges::find(kCommands, code, &Command::code);
    if (command == std::end(kCommands)) return false;
    (this->*command->read)(in, code);
    return !in.failed();
}

// Texts and commands take turns. An unknown command's length is unknown, so that what is left of the text is shown as
// it is.
void ParagraphReader::readGroup(ByteReader& in, int column) {
    paragraph_.column = column;
    paragraph_.format = std::make_shared<ParagraphFormat>(ReadParagraphFormat(in));
    begin();
    for (;;) {
        takeText();
        const int code = in.left() > 0 ? in.u8() : kEndOfCommands;
        if (code == kEndOfCommands) break;
        if (readCommand(in, code)) continue;
        topic_.isDamaged = true;
        while (text_.left() > 0)
            takeText();
    }
    if (!paragraph_.text.empty()) end();
}

// Control characters have no meaning in a text, but three of them stand for tabs, breaks and pictures here.
void ParagraphReader::takeText() {
    std::string text(text_.text());
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    append(text);
}

void ParagraphReader::append(std::string_view text, int picture) {
    if (paragraph_.text.empty()) paragraph_.font = font_;
    if (text.empty() || paragraph_.runs.size() + topic_.paragraphs.size() >= kMostRuns) return;
    const auto start = static_cast<std::uint32_t>(paragraph_.text.size());
    paragraph_.text += text;
    const Run run = {start, static_cast<std::uint32_t>(text.size()), font_, link_, picture};
    Run* last = paragraph_.runs.empty() ? nullptr : &paragraph_.runs.back();
    if (last && last->font == run.font && last->link == run.link && last->picture < 0 && picture < 0) {
        last->length += run.length;
    } else {
        paragraph_.runs.push_back(run);
    }
}

void ParagraphReader::begin() {
    paragraph_.text.clear();
    paragraph_.runs.clear();
    paragraph_.font = font_;
    paragraph_.offset = offsetHere();
}

void ParagraphReader::end() {
    if (topic_.paragraphs.size() < kMostRuns) topic_.paragraphs.push_back(paragraph_);
    begin();
}

void ParagraphReader::startLink(Link link) {
    if (topic_.links.size() >= kMostRuns) return;
    link_ = static_cast<int>(topic_.links.size());
    topic_.links.push_back(std::move(link));
}

bool IsMarked(int code) {
    return (code & 4) == 0;
}

LinkAction ActionOf(int code) {
    return (code & 1) != 0 ? LinkAction::Jump : LinkAction::PopUp;
}

void ParagraphReader::startMacro(ByteReader& in, int code) {
    Link link;
    link.action = LinkAction::Macro;
    link.isMarked = IsMarked(code);
    link.macro = FixedText(in.bytes(in.u16()));
    startLink(std::move(link));
}

void ParagraphReader::startNumberJump(ByteReader& in, int code) {
    Link link;
    link.action = ActionOf(code);
    link.isNumber = true;
    link.context = in.i32();
    startLink(std::move(link));
}

void ParagraphReader::startJump(ByteReader& in, int code) {
    Link link;
    link.action = ActionOf(code);
    link.isMarked = IsMarked(code);
    link.context = in.i32();
    startLink(std::move(link));
}

void ParagraphReader::startOutsideJump(ByteReader& in, int code) {
    ByteReader operand(in.bytes(in.u16()));
    Link link;
    link.action = ActionOf(code);
    link.isMarked = IsMarked(code);
    const int type = operand.u8();
    link.context = operand.i32();
    if (type == 1) link.windowNumber = operand.u8();
    if (link.windowNumber == 255) link.windowNumber = -1;
    if (type == 6) link.window = operand.text();
    if (type == 4 || type == 6) link.file = operand.text();
    startLink(std::move(link));
}

void ParagraphReader::addPicture(ByteReader& in, int code) {
    PictureUse picture;
    picture.placement = static_cast<PicturePlacement>(code - 0x86);
    const int type = in.u8();
    const int size = in.packedLong();
    const auto count = type == kPictureType ? static_cast<std::uint32_t>(in.packedUshort()) : 0U;
    ByteReader data(in.bytes(size));
    if (in.failed() || topic_.pictures.size() >= kMostRuns) return;
    const int outerLink = link_;
    if (type == kEmbeddedWindow) {
        data.skip(6);
        addEmbedded(data.text(), picture);
    } else if (data.i16() == 0) {
        picture.number = data.i16();
    } else {
        picture.embedded = data.bytes(static_cast<std::int64_t>(data.left()));
    }
    topic_.pictures.push_back(std::move(picture));
    append(std::string(1, kPictureCharacter), static_cast<int>(topic_.pictures.size()) - 1);
    pictureCount_ += count;
    link_ = outerLink;
}

// Only buttons are shown; windows of libraries and films would need foreign code.
void ParagraphReader::addEmbedded(std::string_view data, PictureUse& picture) {
    if (!data.starts_with('!')) return;
    const std::size_t comma = data.find(',');
    picture.isButton = true;
    picture.label = data.substr(1, comma == std::string_view::npos ? comma : comma - 1);
    Link link;
    link.action = LinkAction::Macro;
    link.macro = comma == std::string_view::npos ? std::string_view() : data.substr(comma + 1);
    startLink(std::move(link));
}

void ReadRow(ByteReader& in, ParagraphReader& reader, TableRow& row) {
    const int columns = in.u8();
    const int type = in.u8();
    row.isProportional = (type & 1) == 0;
    if (row.isProportional) row.minimumWidth = in.i16();
    for (int i = 0; i < columns; ++i) {
        const int width = in.i16();
        row.columns.push_back({in.i16(), width});
    }
    for (int i = 0; i < kMostColumns * kMostColumns && in.left() > 0; ++i) {
        const int column = in.i16();
        if (column < 0 || column >= columns || in.failed()) return;
        in.skip(1);
        in.packedLong();
        reader.readGroup(in, column);
    }
}

}  // namespace

std::uint32_t CharactersOf(LinkType type, std::string_view format) {
    if (type == LinkType::Text15) return 0;
    ByteReader in(format);
    in.packedLong();
    return static_cast<std::uint32_t>(in.packedUshort());
}

void ReadParagraphs(LinkType type, std::string_view format, std::string_view text, std::uint32_t offset, Topic& topic) {
    ByteReader in(format);
    in.packedLong();
    if (type != LinkType::Text15) in.packedUshort();
    TopicPart part;
    part.firstParagraph = topic.paragraphs.size();
    ParagraphReader reader(text, offset, topic);
    if (type == LinkType::Row) {
        ReadRow(in, reader, part.row.emplace());
    } else {
        reader.readGroup(in, 0);
    }
    part.paragraphCount = topic.paragraphs.size() - part.firstParagraph;
    topic.parts.push_back(std::move(part));
}

}  // namespace vexa::topics
