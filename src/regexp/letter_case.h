// Whether letters are compared as they are written; ignoring case folds A-Z to a-z.
#pragma once

namespace vexa {

enum class LetterCase { Sensitive, Ignored };

}  // namespace vexa
