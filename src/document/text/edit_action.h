// One recorded step of a command: it knows how to carry itself out and how to take itself back.
#pragma once

#include <cstdint>

namespace vexa {

class TextDocument;

// Taking back is exact: undo() in the state that perform() left restores what perform() found, and performing again,
// also on a text that has changed since, keeps that so. Either may throw std::bad_alloc, and has then done nothing.
class EditAction {
  public:
    explicit EditAction(TextDocument& document) : document_(document) {}
    virtual ~EditAction() = default;
    EditAction(const EditAction&) = delete;
    EditAction& operator=(const EditAction&) = delete;

    // True when there was something to do.
    virtual bool perform() = 0;
    virtual void undo() = 0;

    // The actions of one command share a number.
    std::uint32_t group() const { return group_; }
    void setGroup(std::uint32_t group) { group_ = group; }

  protected:
    TextDocument& document() const { return document_; }

  private:
    TextDocument& document_;
    std::uint32_t group_ = 0;
};

}  // namespace vexa
