#include "shell/document_wait.h"

namespace vexa {

namespace {

constexpr std::uint32_t kForEver = 0xFFFF'FFFF;

}  // namespace

SharedWait::SharedWait(std::int32_t number)
    : number_(number != 0 ? number : nextNumber()), isClosed_("VexaClosed" + std::to_string(number_)) {}

// From 1 on.
std::int32_t SharedWait::nextNumber() {
    lastNumber_.set((lastNumber_.get() + 1) & 0x7FFF'FFFF);
    return static_cast<std::int32_t>(lastNumber_.get());
}

std::string SharedWait::turn() const {
    return "VexaWait" + std::to_string(number_);
}

bool DocumentWait::awaitEnd() const {
    const platform::SystemTurn turn(shared_.turn(), kForEver);
    return shared_.isClosed();
}

void WaitedDocuments::expect(std::int32_t number) {
    waited_.push_back(std::make_unique<Waited>(number));
}

void WaitedDocuments::opened(std::int32_t number, const TextDocument* document) {
    for (const auto& waited : waited_) {
        if (waited->shared.number() != number) continue;
        waited->document = document;
        waited->isOnItsWay = false;
    }
    if (!document) letGoOf(nullptr);
}

void WaitedDocuments::closed(const TextDocument& document) {
    for (const auto& waited : waited_) {
        if (waited->document == &document) waited->shared.setClosed();
    }
    letGoOf(&document);
}

void WaitedDocuments::letGoOf(const TextDocument* document) {
    std::erase_if(waited_, [=](const auto& waited) { return !waited->isOnItsWay && waited->document == document; });
}

}  // namespace vexa
