#include "quickhelp/topics/btree.h"

#include <vector>

namespace vexa::topics {
namespace {

constexpr std::size_t kHeaderSize = 38;
constexpr int kMagic = 0x293B;
constexpr int kDeepestTree = 32;
constexpr int kSmallestPage = 16;

struct Tree {
    std::string_view bytes;
    int pageSize = 0;
    int root = 0;
    int pages = 0;
    int levels = 0;

    bool hasPage(int number) const { return number >= 0 && number < pages; }
    std::string_view page(int number) const {
        const std::size_t start = kHeaderSize + static_cast<std::size_t>(number) * static_cast<std::size_t>(pageSize);
        return start < bytes.size() ? bytes.substr(start, static_cast<std::size_t>(pageSize)) : std::string_view();
    }
};

Tree ReadHeader(std::string_view bytes) {
    Tree tree;
    ByteReader in(bytes);
    const bool isTree = in.u16() == kMagic;
    in.skip(2);
    tree.pageSize = in.u16();
    in.skip(20);
    tree.root = in.i16();
    in.skip(2);
    tree.pages = in.i16();
    tree.levels = in.i16();
    in.skip(4);
    if (!isTree || in.failed() || tree.pageSize < kSmallestPage || tree.levels > kDeepestTree) tree.pages = -1;
    tree.bytes = bytes;
    return tree;
}

int FirstLeaf(const Tree& tree) {
    int number = tree.root;
    for (int level = 1; level < tree.levels && tree.hasPage(number); ++level) {
        ByteReader in(tree.page(number));
        in.skip(4);
        number = in.i16();
        if (in.failed()) return -1;
    }
    return number;
}

// Reads the entries of a leaf. The next leaf, -1 after the last, or -2 for a damaged one.
int ReadLeaf(std::string_view page, const Callback<void(ByteReader&)>& readEntry) {
    ByteReader in(page);
    in.skip(2);
    const int count = in.i16();
    in.skip(2);
    const int next = in.i16();
    for (int i = 0; i < count && !in.failed(); ++i)
        readEntry(in);
    return in.failed() || count < 0 ? -2 : next;
}

}  // namespace

bool ReadTree(std::string_view bytes, const Callback<void(ByteReader&)>& readEntry) {
    const Tree tree = ReadHeader(bytes);
    if (tree.pages < 0) return false;
    if (tree.levels <= 0) return true;
    std::vector<bool> seen(static_cast<std::size_t>(tree.pages));
    int number = FirstLeaf(tree);
    while (tree.hasPage(number) && !seen[static_cast<std::size_t>(number)]) {
        seen[static_cast<std::size_t>(number)] = true;
        number = ReadLeaf(tree.page(number), readEntry);
    }
    return number == -1;
}

}  // namespace vexa::topics
