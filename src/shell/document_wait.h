// A start that ends when the user has closed a document, whichever editor has it.
//
// The start gives the document a number, which goes with the file's name. While the document is open, or on its way to
// that, the editor has a turn that is named by this number; when the user closes the document the editor says so. The
// turn of a program that ends by force is free again, so nobody waits for an editor that is no more.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/platform.h"

namespace vexa {

class TextDocument;

// What the start and the editor share of one such document.
class SharedWait {
  public:
    // A number that no other wait has which goes on. One start at a time may do this.
    SharedWait() : SharedWait(0) {}
    // Any other number is that of a wait which has begun.
    explicit SharedWait(std::int32_t number);

    std::int32_t number() const { return number_; }
    std::string turn() const;  // its name
    bool isClosed() const { return isClosed_.get() != 0; }
    void setClosed() { isClosed_.set(1); }

  private:
    std::int32_t nextNumber();

    platform::SharedNumber lastNumber_{"VexaLastWait"};  // stays known as long as anybody waits
    const std::int32_t number_;
    platform::SharedNumber isClosed_;
};

// The start's side, from before the file is handed over.
class DocumentWait {
  public:
    std::int32_t number() const { return shared_.number(); }
    // Waits until the editor, which has read what was handed over, lets go of the document. False if the user has not
    // closed it: it could not be opened, or the editor has ended by force.
    bool awaitEnd() const;

  private:
    SharedWait shared_;
};

// The editor's side: the documents that somebody waits for.
class WaitedDocuments {
  public:
    // Whoever waits does so from now on. The number is any that came with a file.
    void expect(std::int32_t number);
    // None when the file could not be opened; then nobody waits any more.
    void opened(std::int32_t number, const TextDocument* document);
    void closed(const TextDocument& document);

  private:
    struct Waited {
        explicit Waited(std::int32_t number) : shared(number), turn(shared.turn(), 0) {}

        SharedWait shared;
        platform::SystemTurn turn;
        const TextDocument* document = nullptr;
        bool isOnItsWay = true;
    };

    void letGoOf(const TextDocument* document);

    std::vector<std::unique_ptr<Waited>> waited_;
};

}  // namespace vexa
