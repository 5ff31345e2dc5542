#include "support/peers.h"

#include <Qsci/qsciscintillabase.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstring>

#include "support/fail.h"

namespace vexa::bench {

using Sci = QsciScintillaBase;

Bytes ReadBytes(const std::string& hostPath) {
    Bytes bytes;
    const int file = open(hostPath.c_str(), O_RDONLY);
    struct stat status;
    if (file < 0 || fstat(file, &status) != 0) Fail("cannot read " + hostPath);
    bytes.size = static_cast<std::size_t>(status.st_size);
    bytes.data.reset(new char[bytes.size + 1]);
    if (read(file, bytes.data.get(), bytes.size) != status.st_size) Fail("cannot read all of " + hostPath);
    bytes.data[bytes.size] = '\0';
    close(file);
    return bytes;
}

std::vector<std::string> ReadLines(const std::string& hostPath) {
    const Bytes bytes = ReadBytes(hostPath);
    std::vector<std::string> lines;
    const char* start = bytes.data.get();
    const char* const end = start + bytes.size;
    while (start < end) {
        const void* found = std::memchr(start, '\n', static_cast<std::size_t>(end - start));
        const char* const lineEnd = found != nullptr ? static_cast<const char*>(found) : end;
        lines.emplace_back(start, lineEnd);
        start = lineEnd + 1;
    }
    return lines;
}

bool WriteBytes(const std::string& hostPath, std::string_view bytes, Sync sync) {
    constexpr mode_t kMode = 0644;
    const int file = open(hostPath.c_str(), O_WRONLY | O_CREAT, kMode);
    if (file < 0) return false;
    const bool written = write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    const bool synced = sync == Sync::No || fsync(file) == 0;
    return close(file) == 0 && written && synced;
}

bool WriteLinesBuffered(const std::string& hostPath, const std::vector<std::string>& lines) {
    constexpr std::size_t kBuffer = 64 * 1024;
    FILE* const file = std::fopen(hostPath.c_str(), "w");
    if (file == nullptr) return false;
    std::setvbuf(file, nullptr, _IOFBF, kBuffer);
    for (const std::string& line : lines) {
        std::fwrite(line.data(), 1, line.size(), file);
        std::fwrite("\r\n", 1, 2, file);
    }
    const bool synced = std::fflush(file) == 0 && fsync(fileno(file)) == 0;
    return std::fclose(file) == 0 && synced;
}

namespace {

// Qt wants one application object for as long as anything of it is in use.
void StartQt() {
    static int argumentCount = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    static const QApplication application(argumentCount, arguments);
}

std::unique_ptr<Sci> NewEditor() {
    StartQt();
    return std::make_unique<Sci>();
}

}  // namespace

Scintilla::Scintilla() : editor_(NewEditor()) {}

Scintilla::~Scintilla() = default;

void Scintilla::clear(bool withHistory) {
    editor_->SendScintilla(Sci::SCI_SETDOCPOINTER, 0, 0L);
    editor_->SendScintilla(Sci::SCI_SETUNDOCOLLECTION, withHistory ? 1UL : 0UL);
}

void Scintilla::setText(std::string_view text) {
    editor_->SendScintilla(Sci::SCI_SETTEXT, 0UL, text.data());
}

void Scintilla::insert(long position, const char* text) {
    editor_->SendScintilla(Sci::SCI_INSERTTEXT, static_cast<unsigned long>(position), text);
}

void Scintilla::typeAsOneStep(const char* text) {
    editor_->SendScintilla(Sci::SCI_BEGINUNDOACTION);
    editor_->SendScintilla(Sci::SCI_ADDTEXT, static_cast<unsigned long>(std::strlen(text)), text);
    editor_->SendScintilla(Sci::SCI_ENDUNDOACTION);
}

void Scintilla::undo() {
    editor_->SendScintilla(Sci::SCI_UNDO);
}

void Scintilla::redo() {
    editor_->SendScintilla(Sci::SCI_REDO);
}

long Scintilla::length() const {
    return editor_->SendScintilla(Sci::SCI_GETLENGTH);
}

void Scintilla::useCppLexer(const std::string& keywords) {
    editor_->SendScintilla(Sci::SCI_SETLEXERLANGUAGE, 0UL, "cpp");
    editor_->SendScintilla(Sci::SCI_SETKEYWORDS, 0UL, keywords.c_str());
}

void Scintilla::colour() {
    constexpr long kToEnd = -1;
    editor_->SendScintilla(Sci::SCI_COLOURISE, 0UL, kToEnd);
}

bool Scintilla::isColouredAt(std::size_t position) const {
    return editor_->SendScintilla(Sci::SCI_GETSTYLEAT, static_cast<unsigned long>(position)) != 0;
}

}  // namespace vexa::bench
