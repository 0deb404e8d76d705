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
    access.onChange = [&] { changes += access.status() == manager->status ? 1 : 100; };
    const struct {
        std::int32_t status;
        bool isTold; // by the system
        int requests;
        int panes;
    } steps[] = {{0, false, 1, 0}, {2, false, 2, 0}, {2, true, 2, 1}, {1, true, 2, 2}, {3, true, 2, 2}};
    for (const auto& step : steps) {
        manager->status = step.status;
        if (step.isTold)
            manager->authorizationChanged();
        EXPECT_EQ(access.isAuthorized(), step.status == LocationAccess::authorizedAlways);
        access.requestLocationAccess();
        EXPECT_EQ(manager->requests, step.requests) << step.status;
        EXPECT_EQ(manager->panes, step.panes) << step.status;
    }
    access.onChange = nullptr;
    manager->authorizationChanged();
    EXPECT_EQ(changes, 3);
}

TEST(LocationAccess, IsAuthorizedWhereNothingIsWithheld) {
    LocationAccess access(nullptr);
    access.requestLocationAccess();
    EXPECT_TRUE(access.isAuthorized());
}

} // namespace
} // namespace vantrix
