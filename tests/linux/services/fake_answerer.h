#pragma once

#include <functional>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "linux/services/session_bus.h"

namespace vantrix {

/// A service on a bus of the test's own that answers every call to one object in the same way, or not at all.
class FakeAnswerer : public QDBusVirtualObject {
    Q_OBJECT
  public:
    using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

    /// Without an answer it hangs.
    FakeAnswerer(const QString& busAddress, const QString& name, const QString& path, Answer answer = {})
        : answer_(std::move(answer)), connection_(busAddress) {
        connection_.bus().registerVirtualObject(path, this);
        connection_.bus().interface()->registerService(name);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        call.setDelayedReply(true);
        if (answer_)
            bus.send(answer_(call));
        return true;
    }

  private:
    Answer answer_;
    BusConnection connection_;
};

} // namespace vantrix
