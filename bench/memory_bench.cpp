// The memory that a loaded text takes, in the editor and in QScintilla: one line for each, with what the C library has
// handed out and what the process has become larger by, both in bytes. Each is measured in a process of its own, as
// memory that an earlier one has left behind would be taken again.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <string>

#include "document/text/text_line.h"
#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

double ResidentBytes() {
    long pages = 0;
    if (FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*d %ld", &pages) != 1) pages = 0;
        std::fclose(file);
    }
    return static_cast<double>(pages * sysconf(_SC_PAGESIZE));
}

struct Memory {
    double allocated = AllocatedBytes();
    double resident = ResidentBytes();
};

void Print(const std::string& name, const Memory& before, const Memory& after) {
    std::printf("%s allocated %.0f resident %.0f\n", name.c_str(), after.allocated - before.allocated,
                after.resident - before.resident);
    std::fflush(stdout);
}

void InOwnProcess(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    waitpid(child, nullptr, 0);
}

void MeasureVexa(const std::string& corpus, const std::string& file) {
    const Memory before;
    const Session session(file);
    Print("memory/" + corpus + "/vexa", before, Memory());
    const int lines = session.document.lastLine(LastUsed::Plain).value + 1;
    std::printf("memory/%s/reserve_of_every_line allocated %.0f resident 0\n", corpus.c_str(),
                static_cast<double>(lines) * TextLine::kReserve);
    std::fflush(stdout);
}

void MeasureScintilla(const std::string& corpus, const std::string& file) {
    Scintilla editor;
    editor.clear();
    editor.setText("warm\n");
    const Memory before;
    {
        const Bytes bytes = ReadBytes(HostPathOf(file));
        editor.setText(bytes.view());
    }
    Print("memory/" + corpus + "/qscintilla", before, Memory());
}

}  // namespace
}  // namespace vexa::bench

int main() {
    using namespace vexa::bench;
    const Disk disk;
    for (const auto& [corpus, file] : {std::pair("C", "c.txt"), std::pair("WIDE", "wide.txt")}) {
        InOwnProcess([&] { MeasureVexa(corpus, file); });
        InOwnProcess([&] { MeasureScintilla(corpus, file); });
    }
}
