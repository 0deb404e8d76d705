#include <cstring>
#include <future>
#include <unistd.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"
#include "posix/spin_until.h"

namespace {

std::string temporaryFolder;
uid_t peer = ::geteuid();

} // namespace

/// The simulated system's: it knows but the user's folder of temporary files.
extern "C" size_t confstr(int name, char* text, size_t size) noexcept {
    if (name != _CS_DARWIN_USER_TEMP_DIR)
        return 0;
    std::strncpy(text, temporaryFolder.c_str(), size);
    return temporaryFolder.size() + 1;
}

extern "C" int getpeereid(int, uid_t* user, gid_t*) {
    *user = peer;
    return 0;
}

namespace vantrix {
namespace {

/// From another thread, as the one that is asked answers from its event loop.
bool isAnswered(const std::string& request) {
    auto answer = std::async(std::launch::async, [request] { return sendToRunningInstance(request); });
    spinUntil([&answer] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    return answer.get().has_value();
}

TEST(InstanceChannel, TakesTheRequestsOfOthersOneInstanceAtATime) {
    const QTemporaryDir folder;
    temporaryFolder = folder.path().toStdString() + '/';
    auto channel = claimInstance();
    ASSERT_NE(channel, nullptr);
    std::vector<std::string> requests;
    channel->received = [&requests](const std::string& request) { requests.push_back(request); };
    EXPECT_TRUE(isAnswered("show-popover"));
    EXPECT_TRUE(isAnswered("quit"));
    ++peer;
    EXPECT_FALSE(isAnswered("quit")) << "another user's";
    --peer;
    EXPECT_EQ(requests, (std::vector<std::string>{"show-popover", "quit"}));
    EXPECT_EQ(claimInstance(), nullptr);
    channel.reset();
    EXPECT_FALSE(sendToRunningInstance("show-popover"));
    EXPECT_NE(claimInstance(), nullptr);
}

TEST(InstanceChannel, WithoutAFolderItRunsUnheard) {
    temporaryFolder.assign(5000, 'x'); // longer than any path
    EXPECT_NE(claimInstance(), nullptr);
    EXPECT_FALSE(sendToRunningInstance("quit"));
}

} // namespace
} // namespace vantrix

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
