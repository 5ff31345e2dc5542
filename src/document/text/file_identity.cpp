#include "document/text/file_identity.h"

#include "base/ascii.h"
#include "base/file_name.h"
#include "document/text/text_document.h"

namespace vexa {

namespace {

using Facts = std::optional<platform::FileFacts>;

bool HaveOneNumber(const Facts& a, const Facts& b) {
    return a && b && a->index != 0 && a->index == b->index && a->volume == b->volume;
}

}  // namespace

FileIdentity::FileIdentity(const std::string& path)
    : path_(platform::LongPath(path)), facts_(platform::FactsOf(path)) {}

// The numbers of a file that has gone may be another's by now, so those that the document remembers are only a first
// look, which costs nothing for each of many documents.
bool FileIdentity::isFileOf(const TextDocument& document) const {
    const std::string& path = document.fullPath();
    if (!IsFullName(path)) return false;
    if (EqualIgnoringCase(path, path_)) return true;
    return HaveOneNumber(facts_, document.disk().facts) && HaveOneNumber(facts_, platform::FactsOf(path));
}

bool IsFileOf(const TextDocument& document, const std::string& path, std::uint64_t size) {
    if (EqualIgnoringCase(document.fullPath(), path)) return true;
    const Facts& facts = document.disk().facts;
    return facts && facts->stamp.size == size && FileIdentity(path).isFileOf(document);
}

}  // namespace vexa
