// What every benchmark of documents needs: the corpora, a disk for the editor to work on, and a document on it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/editor_options.h"
#include "document/text/text_document.h"
#include "document/view/edit_view.h"
#include "support/silent.h"

namespace vexa::bench {

// The host's path of a corpus ("c.txt", "wide.txt"), in the folder that the environment variable VEXA_CORPORA names.
std::string CorpusPath(const std::string& name);

// A drive C: that holds the corpora, for as long as it lives. It lies beside the corpora, so that it is on the same
// file system.
class Disk {
  public:
    Disk();
    ~Disk();
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
};

// The host's path of a name on drive C:.
std::string HostPathOf(const std::string& name);

// A document in a window of 40 rows of 100 columns.
struct Session {
    Session() { view.resize(40, 100); }
    // With a file of drive C: loaded.
    explicit Session(const std::string& name) : Session() { load(name); }
    void load(const std::string& name);
    void type(char character);
    // Types a text of as many characters, in lines of 80.
    void typeText(int characters);

    SilentNotices notices;
    EditorOptions options;
    TextDocument document{options, notices};
    EditView view{document, options, notices};
};

// From now on the process keeps what it has freed. Else it is chance whether the C library gives the memory of a
// document back when it is closed, and to find pages for it again costs as much as what is measured.
void KeepFreedMemory();

// Bytes that the C library has handed out at this moment.
double AllocatedBytes();

}  // namespace vexa::bench
