// Orders come faster than the disk carries them out.
#include "shell/unsaved/recovery_disk.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "document/document_session.h"
#include "shell/unsaved/recovery_file.h"
#include "support/test_disk.h"

#ifndef _WIN32
#include "base/platform/host/background.h"
#endif

namespace vexa::test {
namespace {

class RecoveryDiskTest : public ::testing::Test {
  protected:
    RecoveryDiskTest() { hold(5); }
    ~RecoveryDiskTest() override { hold(0); }
    static void hold([[maybe_unused]] int asks) {
#ifndef _WIN32
        platform::host::HoldBackground(asks);
#endif
    }
    // Files whose last character tells which of the orders has written them.
    void write(const std::string& name, std::uint32_t number) {
        RecoveryOrder order{disk.path(name), {}, &session.document_, number};
        order.parts.emplace_back().text = RecoveryBeginning(session.document_);
        order.parts.emplace_back().text = std::to_string(number);
        orders->write(std::move(order));
    }

    TestDisk disk;
    DocumentSession session;
    RecoveryNames names{disk.path()};
    std::optional<RecoveryDisk> orders{std::in_place, names};
};

TEST_F(RecoveryDiskTest, EveryOrderIsCarriedOutAndTheyInTheirOrder) {
    std::vector<std::uint32_t> written;
    for (const std::uint32_t number : {1U, 2U, 3U})
        write("a", number);
    write("b", 4);
    orders->remove(disk.path("b"));
    for (; orders->isBusy(); platform::Pause(1)) {
        if (const auto ended = orders->takeEnded()) written.push_back(ended->revision);
    }
    EXPECT_EQ(written, (std::vector<std::uint32_t>{1, 2, 3, 4}));
    EXPECT_EQ(disk.get("a").back(), '3');
    EXPECT_FALSE(disk.has("b"));
}

TEST_F(RecoveryDiskTest, ItsEndWaitsForEveryOrder) {
    write("a", 1);
    write("a", 2);
    orders.reset();
    EXPECT_EQ(disk.get("a").back(), '2');
}

}  // namespace
}  // namespace vexa::test
