#include "print/page_picture.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace vexa::test {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;

BITMAPINFOHEADER Describe(int width, int height) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof(header);
    header.biWidth = width;
    header.biHeight = -height;  // the first row is the upper one
    header.biPlanes = 1;
    header.biBitCount = 32;
    return header;
}

}  // namespace

PagePicture::PagePicture(const Paper& paper)
    : dc_(CreateCompatibleDC(nullptr)), width_(paper.reachedWidth), height_(paper.reachedHeight) {
    BITMAPINFO description{};
    description.bmiHeader = Describe(width_, height_);
    void* dots = nullptr;
    bitmap_.reset(CreateDIBSection(dc_.get(), &description, DIB_RGB_COLORS, &dots, nullptr, 0));
    first_ = SelectObject(dc_.get(), bitmap_.get());
    dots_ = static_cast<const std::uint32_t*>(dots);
    PatBlt(dc_.get(), 0, 0, width_, height_, WHITENESS);
}

PagePicture::~PagePicture() {
    SelectObject(dc_.get(), first_);
}

std::uint32_t PagePicture::at(int x, int y) const {
    return dots_[y * width_ + x] & kWhite;
}

int PagePicture::count(const std::function<bool(int, int, std::uint32_t)>& condition) const {
    GdiFlush();
    int found = 0;
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x)
            found += condition(x, y, at(x, y));
    }
    return found;
}

DotArea PagePicture::printed() const {
    DotArea area{width_, height_, 0, 0};
    count([&area](int x, int y, std::uint32_t colour) {
        if (colour == kWhite) return false;
        area = {std::min<int>(area.left, x), std::min<int>(area.top, y), std::max<int>(area.right, x + 1),
                std::max<int>(area.bottom, y + 1)};
        return true;
    });
    return area;
}

void PagePicture::play(const Metafile& metafile) const {
    const RECT all = {0, 0, width_, height_};
    PlayEnhMetaFile(dc_.get(), metafile.get(), &all);
}

void PagePicture::save(const std::string& name) const {
    const char* folder = std::getenv("VEXA_SCREENSHOTS");
    if (!folder) return;
    GdiFlush();
    std::FILE* file = std::fopen((std::string(folder) + "\\" + name + ".bmp").c_str(), "wb");
    if (!file) return;
    const auto size = static_cast<DWORD>(width_ * height_ * 4);
    const BITMAPINFOHEADER description = Describe(width_, height_);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;  // "BM"
    header.bfOffBits = sizeof(header) + sizeof(description);
    header.bfSize = header.bfOffBits + size;
    std::fwrite(&header, sizeof(header), 1, file);
    std::fwrite(&description, sizeof(description), 1, file);
    for (int i = 0; i < width_ * height_; ++i) {
        const std::uint32_t opaque = dots_[i] | 0xFF000000;
        std::fwrite(&opaque, sizeof(opaque), 1, file);
    }
    std::fclose(file);
}

}  // namespace vexa::test
