#include "quickhelp/topics/paragraph_layout.h"

#include <algorithm>
#include <limits>
#include <span>

#include "quickhelp/topics/text_pieces.h"

namespace vexa::topics {
namespace {

constexpr int kEndless = std::numeric_limits<int>::max() / 4;
constexpr int kDefaultTab = 72;    // half points
constexpr int kPictureMargin = 4;  // half points beside a picture with text around it
constexpr int kBorderGap = 6;      // half points between a border and the text

// Where the pieces of one line stand, and the tab that what follows it is
// aligned at.
class LineInMaking {
  public:
    LineInMaking(const LayoutSource& source, const ParagraphFormat& format, int origin, int start)
        : source_(source), format_(format), origin_(origin), x_(start) {}

    int endWith(const Piece& piece) const { return position(segment_ + piece.inkWidth) + segment_ + piece.inkWidth; }
    void add(const Piece& piece);
    std::size_t count() const { return lefts_.size(); }
    // Left edges of the pieces, and the right edge of what can be seen.
    std::vector<int> finish();
    int inkEnd() const { return inkEnd_; }

  private:
    int position(int segment) const;
    void addTab();
    void shiftSegment();

    const LayoutSource& source_;
    const ParagraphFormat& format_;
    int origin_;
    int x_;            // where the segment after the last tab begins
    int segment_ = 0;  // its width
    std::size_t segmentStart_ = 0;
    TabKind kind_ = TabKind::Left;
    int stop_ = 0;
    int inkEnd_ = 0;
    std::vector<int> lefts_;
};

int LineInMaking::position(int segment) const {
    if (kind_ == TabKind::Left) return x_;
    return std::max(x_, stop_ - (kind_ == TabKind::Right ? segment : segment / 2));
}

void LineInMaking::shiftSegment() {
    const int shift = position(segment_) - x_;
    for (std::size_t i = segmentStart_; i < lefts_.size(); ++i)
        lefts_[i] += shift;
    x_ += shift + segment_;
}

// The next stop of the paragraph, then its left indent for a first line that
// hangs, then one each half inch.
void LineInMaking::addTab() {
    shiftSegment();
    lefts_.push_back(x_);
    const auto isBehind = [this](const TabStop& tab) { return origin_ + source_.pixels(tab.position) > x_; };
    const auto tab = std::ranges::find_if(format_.tabs, isBehind);
    const int indent = origin_ + source_.pixels(format_.left);
    const int step = std::max(1, source_.pixels(kDefaultTab));
    kind_ = TabKind::Left;
    if (tab != format_.tabs.end() && (indent <= x_ || origin_ + source_.pixels(tab->position) <= indent)) {
        kind_ = tab->kind;
        stop_ = origin_ + source_.pixels(tab->position);
    } else {
        stop_ = indent > x_ ? indent : origin_ + (std::max(0, x_ - origin_) / step + 1) * step;
    }
    if (kind_ == TabKind::Left) x_ = stop_;
    segment_ = 0;
    segmentStart_ = lefts_.size();
}

void LineInMaking::add(const Piece& piece) {
    if (piece.kind == PieceKind::Tab) return addTab();
    lefts_.push_back(x_ + segment_);
    inkEnd_ = endWith(piece);
    segment_ += piece.width;
}

std::vector<int> LineInMaking::finish() {
    shiftSegment();
    return std::move(lefts_);
}

class ParagraphMaker {
  public:
    ParagraphMaker(const LayoutSource& source, std::uint32_t number, Sides sides, LaidRegion& region)
        : source_(source),
          paragraph_(source.topic.paragraphs[number]),
          format_(*paragraph_.format),
          number_(number),
          sides_(sides),
          region_(region),
          pieces_(CutIntoPieces(source, paragraph_)),
          lineStart_(region.runs.size()) {}

    int layOut(int top);

  private:
    bool isBeside(const Piece& piece) const;
    void placeBesidePictures();
    int leftOf(bool isFirst) const;
    int rightSide() const;
    std::size_t countFitting(int left, int right) const;
    void makeLine(bool isFirst);
    void fill(std::span<const Piece> pieces, int left);
    void addRun(const Piece& piece, int left, int baseline);
    int spaced(int natural) const;
    FontHeight heightOf(std::span<const Piece> pieces) const;
    int shiftOf(int left, int inkEnd) const;
    void addBorder(int top, int bottom);

    const LayoutSource& source_;
    const Paragraph& paragraph_;
    const ParagraphFormat& format_;
    std::uint32_t number_;
    Sides sides_;
    LaidRegion& region_;
    std::vector<Piece> pieces_;
    std::size_t next_ = 0;
    std::size_t lineStart_ = 0;  // first run of the line
    int y_ = 0;
    int besideBottom_ = 0;
    int besideLeft_ = 0;
    int besideRight_ = 0;
};

bool ParagraphMaker::isBeside(const Piece& piece) const {
    if (piece.kind != PieceKind::Picture) return false;
    const PictureUse& picture = source_.topic.pictures[static_cast<std::size_t>(piece.run->picture)];
    return picture.placement != PicturePlacement::InText;
}

// Pictures at a margin stand beside the paragraph's text, which is narrower as
// far down as they reach.
void ParagraphMaker::placeBesidePictures() {
    besideBottom_ = y_;
    for (const Piece& piece : pieces_) {
        if (!isBeside(piece)) continue;
        const PictureUse& picture = source_.topic.pictures[static_cast<std::size_t>(piece.run->picture)];
        const bool isLeft = picture.placement == PicturePlacement::Left;
        const int left = isLeft ? leftOf(false) : rightSide() - piece.width;
        addRun(piece, left, y_ + piece.ascent);
        (isLeft ? besideLeft_ : besideRight_) += piece.width + source_.pixels(kPictureMargin);
        besideBottom_ = std::max(besideBottom_, y_ + piece.ascent);
    }
    std::erase_if(pieces_, [this](const Piece& piece) { return isBeside(piece); });
}

int ParagraphMaker::leftOf(bool isFirst) const {
    const int indent = format_.left + (isFirst ? format_.firstLine : 0);
    return std::max(sides_.left, sides_.left + source_.pixels(indent)) + (y_ < besideBottom_ ? besideLeft_ : 0);
}

int ParagraphMaker::rightSide() const {
    return sides_.right - source_.pixels(format_.right) - (y_ < besideBottom_ ? besideRight_ : 0);
}

int ParagraphMaker::layOut(int top) {
    const bool hasTop = format_.border.top;
    y_ = top + source_.pixels(std::max(0, format_.above)) + (hasTop ? source_.pixels(kBorderGap) : 0);
    const int borderTop = y_;
    placeBesidePictures();
    bool isFirst = true;
    do {
        makeLine(isFirst);
        isFirst = false;
    } while (next_ < pieces_.size());
    y_ = std::max(y_, besideBottom_);
    addBorder(borderTop, y_);
    if (format_.border.bottom) y_ += source_.pixels(kBorderGap);
    return y_ + source_.pixels(std::max(0, format_.below));
}

// How many of the pieces from next_ on stand in the next line: as far as they
// fit, back to where a line may be broken.
std::size_t ParagraphMaker::countFitting(int left, int right) const {
    LineInMaking line(source_, format_, sides_.left, left);
    std::size_t lastBreak = 0;
    for (std::size_t at = next_; at < pieces_.size(); ++at) {
        const Piece& piece = pieces_[at];
        if (piece.kind == PieceKind::LineBreak) return line.count() + 1;
        if (piece.kind != PieceKind::Tab && line.endWith(piece) > right)
            return lastBreak > 0 ? lastBreak : line.count();
        line.add(piece);
        if (piece.mayEndLine) lastBreak = line.count();
    }
    return line.count();
}

// A word that is wider than the whole line is cut.
void ParagraphMaker::makeLine(bool isFirst) {
    const int left = leftOf(isFirst);
    const int right = format_.wraps ? rightSide() : kEndless;
    const std::size_t count = countFitting(left, right);
    if (count > 0 || next_ == pieces_.size()) {
        fill(std::span(pieces_).subspan(next_, count), left);
        next_ += count;
        return;
    }
    Piece rest;
    Piece start = pieces_[next_];
    const bool isCut = CutPiece(source_, paragraph_, right - left, start, rest);
    fill(std::span(&start, 1), left);
    if (isCut) pieces_[next_] = rest;
    next_ += isCut ? 0 : 1;
}

int ParagraphMaker::spaced(int natural) const {
    if (format_.lineSpacing < 0) return source_.pixels(-format_.lineSpacing);
    return std::max(natural, source_.pixels(format_.lineSpacing));
}

FontHeight ParagraphMaker::heightOf(std::span<const Piece> pieces) const {
    if (pieces.empty()) return source_.measure.height(source_.file.font(paragraph_.font));
    FontHeight height;
    for (const Piece& piece : pieces) {
        height.ascent = std::max(height.ascent, piece.ascent);
        height.descent = std::max(height.descent, piece.descent);
    }
    return height;
}

int ParagraphMaker::shiftOf(int left, int inkEnd) const {
    if (!format_.wraps || format_.alignment == Alignment::Left) return 0;
    const int slack = std::max(0, rightSide() - std::max(inkEnd, left));
    return format_.alignment == Alignment::Right ? slack : slack / 2;
}

// Puts a line into the region.
void ParagraphMaker::fill(std::span<const Piece> pieces, int left) {
    LineInMaking making(source_, format_, sides_.left, left);
    for (const Piece& piece : pieces)
        making.add(piece);
    const std::vector<int> lefts = making.finish();
    const FontHeight natural = heightOf(pieces);
    const int height = std::max(1, spaced(natural.ascent + natural.descent));
    const int baseline = y_ + height - natural.descent;
    const int shift = shiftOf(left, making.inkEnd());
    LaidLine line;
    line.paragraph = number_;
    line.box = {left, y_, std::max(rightSide(), making.inkEnd()), y_ + height};
    line.begin = pieces.empty() ? static_cast<std::uint32_t>(paragraph_.text.size()) : pieces.front().begin;
    line.end = pieces.empty() ? line.begin : pieces.back().begin + pieces.back().length;
    line.firstRun = lineStart_ = region_.runs.size();
    for (std::size_t i = 0; i < pieces.size(); ++i)
        addRun(pieces[i], lefts[i] + shift, baseline);
    line.runCount = region_.runs.size() - line.firstRun;
    region_.lines.push_back(line);
    region_.width = std::max(region_.width, making.inkEnd() + shift);
    y_ += height;
}

// Pieces that follow each other in one run make one run to draw.
void ParagraphMaker::addRun(const Piece& piece, int left, int baseline) {
    const int bottom = piece.kind == PieceKind::Picture ? baseline : baseline + piece.descent;
    const Box box = {left, baseline - piece.ascent, left + piece.width, bottom};
    LaidRun* last = region_.runs.size() == lineStart_ ? nullptr : &region_.runs.back();
    const bool joins = last && piece.kind == PieceKind::Text && last->picture < 0 &&
                       last->begin + last->length == piece.begin && last->font == piece.run->font &&
                       last->link == piece.run->link && last->box.right == left;
    if (joins) {
        last->box.right = box.right;
        last->length += piece.length;
    } else if (piece.kind == PieceKind::Text || piece.kind == PieceKind::Picture) {
        region_.runs.push_back(
            {box, baseline, number_, piece.begin, piece.length, piece.run->font, piece.run->link, piece.run->picture});
    }
}

void ParagraphMaker::addBorder(int top, int bottom) {
    const Border& border = format_.border;
    const int line = border.isThick ? 2 : 1;
    const int gap = std::max(line + 1, source_.pixels(kBorderGap) / 2);
    const Box outer = {leftOf(false) - gap, top - gap, std::max(rightSide() + gap, leftOf(false)), bottom + gap};
    const auto addSides = [&](Box box) {
        if (border.top) region_.rules.push_back({box.left, box.top, box.right, box.top + line});
        if (border.bottom) region_.rules.push_back({box.left, box.bottom - line, box.right, box.bottom});
        if (border.left) region_.rules.push_back({box.left, box.top, box.left + line, box.bottom});
        if (border.right) region_.rules.push_back({box.right - line, box.top, box.right, box.bottom});
    };
    addSides(outer);
    const int inset = 2 * line;
    if (border.isDouble) addSides({outer.left + inset, outer.top + inset, outer.right - inset, outer.bottom - inset});
}

}  // namespace

int LayOutParagraph(const LayoutSource& source, std::uint32_t paragraph, Sides sides, int top, LaidRegion& region) {
    return ParagraphMaker(source, paragraph, sides, region).layOut(top);
}

}  // namespace vexa::topics
