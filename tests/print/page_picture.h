// A page in memory that can be looked at, by tests and by people.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "framework/handle.h"
#include "ui/print/print_paper.h"

namespace vexa::test {

struct MetafileTraits {
    using Value = HENHMETAFILE;
    static void Close(HENHMETAFILE metafile) { DeleteEnhMetaFile(metafile); }
};
using Metafile = Handle<MetafileTraits>;

// A white bitmap of the size of what a printer reaches, which is the resolution's business.
class PagePicture {
  public:
    explicit PagePicture(const Paper& paper);
    ~PagePicture();
    PagePicture(const PagePicture&) = delete;
    PagePicture& operator=(const PagePicture&) = delete;

    HDC dc() const { return dc_.get(); }
    int width() const { return width_; }
    int height() const { return height_; }
    // 0xRRGGBB.
    std::uint32_t at(int x, int y) const;
    // Of those that fulfil a condition.
    int count(const std::function<bool(int x, int y, std::uint32_t colour)>& condition) const;
    // The smallest area that holds all that is not white.
    DotArea printed() const;
    void play(const Metafile& metafile) const;
    // Writes "NAME.bmp" into the folder of screenshots, where there is one.
    void save(const std::string& name) const;

  private:
    MemoryDc dc_;
    BitmapHandle bitmap_;
    HGDIOBJ first_ = nullptr;
    const std::uint32_t* dots_ = nullptr;  // owned by the bitmap
    int width_;
    int height_;
};

}  // namespace vexa::test
