// One topic of a help file as plain data: paragraphs of runs, with links and pictures. Texts are bytes of the ANSI code
// page. Measures are half points (1/144 inch).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "quickhelp/topics/help_types.h"

namespace vexa::topics {

// In a paragraph's text a tab and a line break stand for themselves, and this character for a picture.
inline constexpr char kPictureCharacter = '\x01';

enum class LinkAction : std::uint8_t { Jump, PopUp, Macro };

struct Link {
    LinkAction action = LinkAction::Jump;
    bool isMarked = true;      // shown in the colour of links and underlined
    bool isNumber = false;     // the first version of the format counts topics instead of hashing names
    std::int32_t context = 0;  // hash of the context's name, or the topic's number
    std::string file;          // another help file
    std::string window;        // the name of the window to show the topic in
    int windowNumber = -1;     // the same by number
    std::string macro;
};

enum class PicturePlacement : std::uint8_t { InText, Left, Right };

// A part of a picture that is a link.
struct PictureLink {
    Box box;        // in pixels of the picture
    int link = -1;  // index in Topic::links
};

struct PictureUse {
    PicturePlacement placement = PicturePlacement::InText;
    int number = -1;        // of the help file's pictures
    std::string embedded;   // or the bytes of the picture itself
    bool isButton = false;  // or a button, with this label; its run has a link
    std::string label;
    std::vector<PictureLink> parts;
    Extent pixels;  // of the picture that has such parts
};

enum class TabKind : std::uint8_t { Left, Right, Centre };

struct TabStop {
    int position = 0;
    TabKind kind = TabKind::Left;
};

enum class Alignment : std::uint8_t { Left, Right, Centre };

struct Border {
    bool top = false;
    bool left = false;
    bool bottom = false;
    bool right = false;
    bool isThick = false;
    bool isDouble = false;
};

struct ParagraphFormat {
    int above = 0;
    int below = 0;
    int lineSpacing = 0;  // positive: at least; negative: exactly; 0: by the fonts
    int left = 0;
    int right = 0;
    int firstLine = 0;  // relative to left
    bool wraps = true;
    Alignment alignment = Alignment::Left;
    Border border;
    std::vector<TabStop> tabs;
};

// Characters of a paragraph's text with the same look. A picture is a run of its own.
struct Run {
    std::uint32_t begin = 0;
    std::uint32_t length = 0;
    int font = 0;
    int link = -1;     // index in Topic::links
    int picture = -1;  // index in Topic::pictures
};

struct Paragraph {
    std::shared_ptr<const ParagraphFormat> format;
    std::uint32_t offset = 0;  // TOPICOFFSET of its first character
    int column = 0;            // of its table row
    int font = 0;              // for a paragraph without text
    std::string text;
    std::vector<Run> runs;
};

struct TableColumn {
    int gap = 0;  // before it
    int width = 0;
};

struct TableRow {
    bool isProportional = false;  // widths and gaps are shares of 32767
    int minimumWidth = 0;
    std::vector<TableColumn> columns;
};

// Paragraphs that follow each other, or those of one row of a table.
struct TopicPart {
    std::size_t firstParagraph = 0;
    std::size_t paragraphCount = 0;
    std::optional<TableRow> row;
};

struct Topic {
    std::uint32_t offset = 0;  // TOPICOFFSET, by which the file's indexes name it
    std::string title;
    std::vector<std::string> macros;              // to be run when it is shown
    std::optional<std::uint32_t> previous, next;  // of its browse sequence
    std::vector<Paragraph> paragraphs;
    std::vector<TopicPart> parts;
    std::size_t fixedParts = 0;  // the first ones, which do not scroll
    std::vector<Link> links;
    std::vector<PictureUse> pictures;
    bool isDamaged = false;  // part of it could not be read
};

}  // namespace vexa::topics
