// Prints the topic that a viewer shows.
#pragma once

#include <windows.h>

#include <string>

#include "quickhelp/topics/help_browser.h"

namespace vexa {

class TopicPrinter {
  public:
    virtual ~TopicPrinter() = default;
    // Lets the user choose the printer; gives what to tell him of the end, nothing when he has given up.
    virtual std::string printTopic(HWND owner, const topics::ShownTopic& topic) = 0;
};

}  // namespace vexa
