#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QObject>
#include <QTimer>

#include "linux/services/session_bus.h"
#include "monitor/task_runner.h"

namespace vantrix {

/// A connection to a message bus that is made, and after the bus was gone made anew, without the main thread ever
/// waiting for it. Main thread only.
class BusLink : public QObject {
    Q_OBJECT
  public:
    /// The pause before the first attempt to reach a bus that is gone. Each further one is twice as long, up to 64
    /// times as long.
    static constexpr std::chrono::milliseconds usualPause{500};

    /// Without an address there is never a connection. Starts to connect at once, but never has by its return.
    explicit BusLink(const std::optional<QString>& address, std::chrono::milliseconds pause = usualPause);

    /// Null while the bus cannot be reached. What was asked through a connection that is lost ends with an error.
    QDBusConnection* bus();

    /// Calls `take` with the connection there is, and from then on with each new one, for as long as `receiver` lives.
    void whenConnected(const QObject* receiver, const std::function<void(QDBusConnection&)>& take);

    const std::optional<QString>& address() const { return address_; }

  Q_SIGNALS:
    void connected();
    /// There is no connection: it was lost, or an attempt to make one has failed.
    void disconnected();

  private Q_SLOTS:
    void lose();

  private:
    void tryToConnect();
    void take(std::unique_ptr<BusConnection> made);
    void tryAgain();

    std::optional<QString> address_;
    std::chrono::milliseconds pause_;
    int failures_ = 0; ///< since the last connection
    bool isConnected_ = false;
    std::unique_ptr<BusConnection> connection_; ///< one that is lost is kept until the next, to end what was asked
    QTimer retry_;
    ThreadTaskRunner runner_; // last: it uses what stands above
};

/// The user's session bus, and the machine's bus. All who hold one share its connection.
std::shared_ptr<BusLink> sharedSessionBus();
std::shared_ptr<BusLink> sharedSystemBus();

} // namespace vantrix
