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
    auto* const manager = new FakeManager;
    LocationAccess access{std::unique_ptr<LocationManager>(manager)};
    int changes = 0;
    access.onChange = [&] { ++changes; };
    const auto expectAfterAsking = [&](int requests, int panes) {
        access.requestLocationAccess();
        EXPECT_EQ(std::pair(manager->requests, manager->panes), std::pair(requests, panes)) << manager->status;
        EXPECT_EQ(access.isAuthorized(), manager->status == LocationAccess::authorizedAlways);
    };
    expectAfterAsking(1, 0);
    manager->status = 2; // denied
    manager->authorizationChanged();
    expectAfterAsking(1, 1);
    manager->status = LocationAccess::authorizedAlways;
    manager->authorizationChanged();
    expectAfterAsking(1, 1);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace vantrix
