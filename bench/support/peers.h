// The peers that documents are measured against: plain loops of the kind that one writes first, and QScintilla, an
// editing component in wide use.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QsciScintillaBase;

namespace vexa::bench {

// ---- plain loops ----

// A file's bytes, read in one call.
struct Bytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    std::string_view view() const { return {data.get(), size}; }
};
Bytes ReadBytes(const std::string& hostPath);
// The lines of a file that is read whole and cut by memchr, one string each.
std::vector<std::string> ReadLines(const std::string& hostPath);

enum class Sync { No, Yes };
// Writes a file, new or over what it held, with one call, and brings it to the disk if asked.
bool WriteBytes(const std::string& hostPath, std::string_view bytes, Sync sync);
// Writes lines with CR LF through a stream of the C library with a buffer of 64 KB, and brings them to the disk.
bool WriteLinesBuffered(const std::string& hostPath, const std::vector<std::string>& lines);

// ---- QScintilla ----

// An editing component that is never shown. One at a time.
class Scintilla {
  public:
    Scintilla();
    ~Scintilla();
    Scintilla(const Scintilla&) = delete;
    Scintilla& operator=(const Scintilla&) = delete;

    // A fresh document, without a history unless asked for.
    void clear(bool withHistory = false);
    void setText(std::string_view text);  // the bytes must be followed by a NUL
    void insert(long position, const char* text);
    void typeAsOneStep(const char* text);
    void undo();
    void redo();
    long length() const;
    // Colours as C++ with these keywords, separated by blanks; colour() does the whole text again.
    void useCppLexer(const std::string& keywords);
    void colour();
    bool isColouredAt(std::size_t position) const;

  private:
    std::unique_ptr<QsciScintillaBase> editor_;
};

}  // namespace vexa::bench
