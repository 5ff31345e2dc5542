#include "shell/opened_notice.h"

#include "base/strings.h"

namespace vexa {

namespace {

std::string LineEndNotice(const TextDocument& document) {
    const LineEnds found = document.disk().lineEnds;
    const bool writesLf = document.options().FileWrite;
    if (document.rules().keepsLineEnds) return {};
    if (writesLf ? !found.crLf : !found.lf) return {};
    const TextId have = found.crLf && found.lf ? TextId::LineEndsMixed
                        : found.lf             ? TextId::LineEndLf
                                               : TextId::LineEndCrLf;
    return FillText(TextId::OtherLineEnds,
                    {LoadText(have), LoadText(writesLf ? TextId::LineEndLf : TextId::LineEndCrLf)});
}

}  // namespace

std::string OpenedNotice(const TextDocument& document) {
    const auto& facts = document.disk().facts;
    const std::string readOnly =
        facts && facts->isReadOnly ? FillText(TextId::FileIsReadOnly, {document.baseName()}) : "";
    const std::string lineEnds = LineEndNotice(document);
    return readOnly + (readOnly.empty() || lineEnds.empty() ? "" : " ") + lineEnds;
}

}  // namespace vexa
