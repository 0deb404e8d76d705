#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QObject>

#include "accessories/bluetooth_battery_reader.h"
#include "monitor/active_components.h"
#include "monitor/qt_repeating_timer.h"
#include "monitor/readings.h"
#include "monitor/samplers.h"
#include "monitor/task_runner.h"
#include "platform/bluetooth.h"

namespace vantrix {

class UserDefaults;

/// The one model of the program: owns the samplers, runs one sampling pass per interval, keeps the readings and says
/// when they change. Everything that is shown is drawn from it. Main thread only.
class SystemMonitor : public QObject {
    Q_OBJECT
  public:
    /// `defaults` outlives the monitor. Without Bluetooth the accessories are those that the scan finds.
    SystemMonitor(SamplingSources sources, const UserDefaults& defaults, std::unique_ptr<RepeatingTimer> timer,
                  std::unique_ptr<TaskRunner> background, Bluetooth bluetooth = {});

    const Readings& readings() const { return readings_; }

    /// Takes the interval from the settings (at least 0.5 s), runs one pass at once and then one per interval.
    /// Does nothing when already started.
    void start();

    /// The same with an interval of its own.
    void start(double interval);

    /// Replaces a running timer at once. The caller keeps the value at 0.5 s or more.
    void setInterval(double seconds);

    /// One sampling pass.
    void sample();

    /// Keeps `processes` up to date for as long as the result, or another one, lives: a look at once, one soon after,
    /// as shares of the processor are differences, and then one on each pass. Without a watch nothing is looked at.
    std::shared_ptr<void> watchPrograms();

    /// For a look at the processes of the caller's own, apart from those that are watched. Null where the system tells
    /// nothing of processes; to be used only while the monitor lives.
    std::shared_ptr<ProcessSampler> makeProcessSampler();

    /// Replaces every reading by fixed values and turns live accessory updates off, for product images.
    void loadDemo();

    /// Asks for what the system demands before it tells the name of a Wi-Fi network.
    void requestLocationAccess() { location_.requestLocationAccess(); }

    /// The hardware ports to choose among, by name, as of the last pass.
    std::vector<std::string> networkPorts() const { return samplers_.network.ports(); }
    /// The mount points of volumes to choose among, looked up now.
    std::vector<std::string> volumes() const { return samplers_.sources.volume->mounted(); }

    /// Called once at the end of every pass.
    std::function<void()> onUpdate;

  Q_SIGNALS:
    /// A reading was assigned or appended to. `interval` and `gpu` stay silent when given the value they hold,
    /// `accessories` when the merged list is the same.
    void changed(Reading reading);

  private:
    void takeChoices();
    void samplePass();
    void sampleCPU();
    void sampleMemory();
    void sampleNetwork();
    void sampleNetworkInfo();
    void sampleDisk();
    void sampleGPU();
    void sampleSensors();
    void sampleBattery();
    void sampleProcesses();
    void forgetProcesses();
    void sampleAccessories();
    void finishAccessories(std::optional<AccessoriesSampler::Scan> scan);
    void mergeAccessories();
    void scheduleTimer();
    void appendTo(History Readings::*history, double value, Reading reading);
    template<typename T>
    void store(T Readings::*field, const T& value, Reading reading);

    const UserDefaults& defaults_;
    Samplers samplers_;
    std::string port_;                                       // the chosen one
    std::string mountPoint_;                                 // likewise
    std::shared_ptr<AccessoriesSampler> accessoriesSampler_; // shared with a scan under way
    LocationAccess location_;

    Readings readings_;
    ActiveComponents activeComponents_;
    std::unique_ptr<RepeatingTimer> timer_;
    std::unique_ptr<TaskRunner> background_;
    bool isScheduled_ = false;
    bool isDemo_ = false;
    bool isSamplingAccessories_ = false;
    double nextProcessLook_ = 0.0;                // uptime
    std::weak_ptr<void> watch_;                   // of the programs
    std::optional<double> lastAccessoriesSample_; // uptime; absent: the distant past
    std::vector<AccessoryReading> sampledAccessories_;
    std::string sampledDiagnostics_;
    std::optional<BluetoothBatteryReader> bluetooth_; // absent with its central
};

} // namespace vantrix
