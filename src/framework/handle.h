// The one owner of things that the system hands out and wants back.
#pragma once

#include <windows.h>

#include <utility>

namespace vexa {

// Owns one handle. Traits name its type (Value, whose default value means none) and give it back (Close).
template <class Traits>
class Handle {
  public:
    using Value = typename Traits::Value;

    Handle() = default;
    explicit Handle(Value value) : value_(value) {}
    Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, Value{})) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) reset(std::exchange(other.value_, Value{}));
        return *this;
    }
    ~Handle() { reset(); }

    Value get() const { return value_; }
    explicit operator bool() const { return value_ != Value{}; }
    void reset(Value value = Value{}) {
        if (value_ != Value{}) Traits::Close(value_);
        value_ = value;
    }
    // Hands the value over to a caller who now owns it.
    [[nodiscard]] Value release() { return std::exchange(value_, Value{}); }

  private:
    Value value_{};
};

struct MenuTraits {
    using Value = HMENU;
    static void Close(HMENU menu) { DestroyMenu(menu); }
};
struct AcceleratorTraits {
    using Value = HACCEL;
    static void Close(HACCEL table) { DestroyAcceleratorTable(table); }
};
template <class GdiObject>
struct GdiTraits {
    using Value = GdiObject;
    static void Close(GdiObject object) { DeleteObject(object); }
};
struct MemoryDcTraits {
    using Value = HDC;
    static void Close(HDC dc) { DeleteDC(dc); }
};

using MenuHandle = Handle<MenuTraits>;
using AcceleratorHandle = Handle<AcceleratorTraits>;
using FontHandle = Handle<GdiTraits<HFONT>>;
using BitmapHandle = Handle<GdiTraits<HBITMAP>>;
using MemoryDc = Handle<MemoryDcTraits>;

}  // namespace vexa
