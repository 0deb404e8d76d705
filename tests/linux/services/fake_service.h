#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include "linux/services/session_bus.h"

namespace vantrix {

/// A service on a bus of the test's own, which notes what it is asked and answers well, badly, late or not at all.
class FakeService : public QDBusVirtualObject {
  public:
    /// What a service in its right mind replies.
    using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

    FakeService(const QString& busAddress, const QString& name, const QString& path, Answer answer = {},
                QDBusConnection::VirtualObjectRegisterOption extent = QDBusConnection::SingleNode)
        : name_(name), answer_(std::move(answer)), connection_(busAddress) {
        connection_.bus().registerVirtualObject(path, this, extent);
    }

    /// Takes the service's name; false when another has it.
    bool appear() {
        return connection_.bus().interface()->registerService(name_).value() ==
               QDBusConnectionInterface::ServiceRegistered;
    }

    /// Lets a successor be the service; what was asked here before can still be answered. By the end the bus has
    /// told everybody.
    void resign() { connection_.bus().interface()->unregisterService(name_); }

    /// Answers a call that was held back.
    void answer(const QDBusMessage& call) { connection_.bus().send(answer_(call)); }

    void emitSignal(const QString& path, const QString& interface, const QString& member,
                    const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(path, interface, member);
        signal.setArguments(arguments);
        connection_.bus().send(signal);
    }

    /// How often a method was asked for.
    long count(QStringView method) const {
        return std::count_if(asked.begin(), asked.end(), [&](const auto& call) { return call.member() == method; });
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        asked.push_back(call);
        call.setDelayedReply(true);
        if (error != QDBusError::NoError)
            bus.send(call.createErrorReply(error, QStringLiteral("no")));
        else if (always)
            bus.send(call.createReply(*always));
        else if (!hangs)
            answer(call);
        return true;
    }

    bool hangs = false;
    QDBusError::ErrorType error = QDBusError::NoError;
    std::optional<QVariantList> always; ///< answered to everything
    std::vector<QDBusMessage> asked;

  private:
    QString name_;
    Answer answer_;
    BusConnection connection_;
};

} // namespace vantrix
