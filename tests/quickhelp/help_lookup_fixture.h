// A disk with installed help files, and a look-up on them.
#pragma once

#include <string>
#include <vector>

#include "base/platform.h"
#include "quickhelp/help_lookup.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

struct InstalledHelp {
    InstalledHelp() { disk.makeDirectory("vHelp"); }

    // Puts NAME.HLP, an empty file, and its index on the disk.
    void install(const std::string& name, const std::string& title, const std::vector<std::string>& keywords) const {
        disk.put(name + ".HLP", "");
        std::string index = "00000\r\n" + disk.path(name + ".HLP") + "\r\n" + title + "\r\n";
        for (const std::string& keyword : keywords)
            index += keyword + "\r\n";
        disk.put("vHelp\\" + name + ".ZIX", index);
    }

    TestDisk disk;
    RecordingNotices notices;
    HelpLookup lookup{disk.path("vHelp"), notices};
};

}  // namespace vexa::test
