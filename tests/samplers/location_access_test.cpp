#include "samplers/location_access.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

struct FakeManager : LocationManager {
    std::int32_t status = LocationAccess::notDetermined;
    int requests = 0;
    int panes = 0;

    std::int32_t authorizationStatus() const override { return status; }
    void requestAlwaysAuthorization() override { ++requests; }
    void openPrivacyPane() override { ++panes; }
};

TEST(LocationAccess, AsksOnceAndThenShowsWhereToChangeTheAnswer) {
    auto owned = std::make_unique<FakeManager>();
    FakeManager& manager = *owned;
    LocationAccess access(std::move(owned));
    int changes = 0;
    access.onChange = [&] { changes += access.status() == manager.status ? 1 : 100; };
    const auto expect = [&](std::int32_t status, int requests, int panes) {
        EXPECT_EQ(access.status(), status);
        access.requestLocationAccess();
        EXPECT_EQ(manager.requests, requests) << status;
        EXPECT_EQ(manager.panes, panes) << status;
    };
    expect(0, 1, 0);
    manager.status = 2;
    expect(0, 2, 0); // what the system has not told yet is not known
    manager.authorizationChanged();
    EXPECT_EQ(changes, 1);
    expect(2, 2, 1);
    manager.status = 1;
    manager.authorizationChanged();
    expect(1, 2, 2);
    EXPECT_FALSE(access.isAuthorized());
    manager.status = 3;
    manager.authorizationChanged();
    EXPECT_TRUE(access.isAuthorized());
    expect(3, 2, 2);
    access.onChange = nullptr;
    manager.authorizationChanged();
    EXPECT_EQ(changes, 3);
}

TEST(LocationAccess, IsAuthorizedWhereNothingIsWithheld) {
    LocationAccess access(nullptr);
    EXPECT_TRUE(access.isAuthorized());
    access.requestLocationAccess();
    EXPECT_EQ(access.status(), 3);
}

} // namespace
} // namespace vantrix
