#pragma once

#include <utility>
#include <vector>

#include "platform/notification_center.h"

namespace vantrix::fakes {

/// Keeps what is posted; answers a request for authorisation when the test says so.
struct FakeNotificationCenter : NotificationCenter {
    struct Post {
        QString identifier;
        QString title;
        QString body;

        bool operator==(const Post&) const = default;
    };

    void post(const QString& identifier, const QString& title, const QString& body) override {
        posts.push_back({identifier, title, body});
        if (onPost)
            onPost();
    }
    void requestAuthorization(std::function<void(bool)> answer) override { requests.push_back(std::move(answer)); }

    bool canBeAllowed() const override { return isSigned; }

    bool isSigned = true;
    std::vector<Post> posts;
    std::function<void()> onPost;
    std::vector<std::function<void(bool)>> requests;
};

} // namespace vantrix::fakes
