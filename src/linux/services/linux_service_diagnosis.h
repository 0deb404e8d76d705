#pragma once

#include <memory>
#include <optional>

#include <QObject>

#include "linux/services/service_answers.h"
#include "linux/services/session_bus.h"

namespace vantrix {

/// The addresses of the buses; absent where there is none.
struct BusAddresses {
    std::optional<QString> session;
    std::optional<QString> system;

    /// Those of this user and this machine.
    static BusAddresses standard();
};

/// The files behind settings, widgets and the login item.
std::vector<SourceDiagnosis> diagnoseOwnFiles();

/// Asks all services at once; each may take up to `patience` to answer.
class LinuxServiceDiagnoses : public QObject, public ServiceDiagnoses {
    Q_OBJECT
  public:
    LinuxServiceDiagnoses(const BusAddresses& addresses, std::chrono::milliseconds patience);

  private:
    struct Bus {
        std::shared_ptr<BusConnection> connection; ///< null when it cannot be reached
        SourceDiagnosis diagnosis;
    };

    Bus reach(const char* name, const std::optional<QString>& address, bool mayConnect) const;
    void ask(Bus& bus, ServiceQuestion question, const QDBusMessage& message);
    void report();

    std::chrono::milliseconds patience_;
    Bus session_;
    Bus system_; // not reached for while the toolkit waits for the session bus
    TrayAnswer tray_;
    ServiceAnswers answers_;
    int unanswered_ = 0;
};

} // namespace vantrix
