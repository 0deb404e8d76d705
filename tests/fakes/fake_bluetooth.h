#pragma once

#include <utility>

#include "monitor/task_runner.h"
#include "platform/bluetooth.h"
#include "support/repeating_timer.h"

namespace vantrix::fakes {

/// Notes what it is asked; the test answers through `delegate`.
struct FakePeripheral : BluetoothPeripheral {
    explicit FakePeripheral(std::string id, std::optional<std::string> called = std::nullopt)
        : id(std::move(id)), called(std::move(called)) {}

    std::string identifier() const override { return id; }
    std::optional<std::string> name() const override { return called; }
    std::string address() const override { return radio; }
    bool isConnected() const override { return connected; }
    void discoverServices(const BluetoothUUID& kind) override {
        asked.push_back("services");
        if (delegate)
            delegate->didDiscoverServices(*this, {{BluetoothUUID("180A"), "other"}, {kind, "service"}});
    }
    void discoverCharacteristics(const BluetoothAttribute& service, const BluetoothUUID& kind) override {
        asked.push_back("characteristics of " + service.identifier);
        if (delegate)
            delegate->didDiscoverCharacteristics(*this, {{BluetoothUUID("2A29"), "maker"}, {kind, "level"}});
    }
    void readValue(const BluetoothAttribute& characteristic) override {
        asked.push_back("read " + characteristic.identifier);
        if (delegate && value)
            delegate->didUpdateValue(*this, characteristic, *value);
    }
    void subscribe(const BluetoothAttribute& characteristic) override {
        asked.push_back("subscribe " + characteristic.identifier);
    }
    void tell(const std::vector<std::uint8_t>& bytes, const char* uuid = "2A19") {
        delegate->didUpdateValue(*this, {BluetoothUUID(uuid), "level"}, bytes);
    }

    std::string id;
    std::string radio = "AA:" + id; ///< its address
    std::optional<std::string> called;
    bool connected = true;
    std::optional<std::vector<std::uint8_t>> value;
    std::vector<std::string> asked;
};

struct FakeCentral : BluetoothCentral {
    BluetoothState state() const override { return current; }
    std::vector<std::shared_ptr<BluetoothPeripheral>> connectedPeripherals(const BluetoothUUID& service) override {
        ++listings;
        return service == BluetoothUUID("180f") ? peripherals : decltype(peripherals)();
    }
    void connect(BluetoothPeripheral& peripheral) override { connecting.push_back(peripheral.identifier()); }
    void become(BluetoothState state) {
        current = state;
        delegate->centralDidUpdateState();
    }

    BluetoothState current = BluetoothState::unknown;
    std::vector<std::shared_ptr<BluetoothPeripheral>> peripherals;
    std::vector<std::string> connecting;
    int listings = 0;
};

struct FakeClassicDevices : ClassicBluetoothDevices {
    std::vector<Device> devices;
    std::vector<Device> paired() override { return devices; }
};

struct FakeTimer : RepeatingTimer {
    void schedule(double, double, std::function<void()> callback) override {
        ++schedules;
        fire = std::move(callback);
    }
    std::function<void()> fire;
    int schedules = 0;
};

/// Needs no thread.
struct ImmediateRunner : TaskRunner {
    void run(std::function<void()> work, std::function<void()> done) override {
        work();
        done();
    }
};

/// Bluetooth in the test's hands; the pointers stay valid as long as whatever took the bundle.
struct FakeBluetooth {
    FakeCentral* central = nullptr;
    FakeClassicDevices* classic = nullptr;
    FakeTimer* timer = nullptr;

    /// A connected LE device of a Mac, which keeps its address secret.
    void add(const std::string& id, const std::string& name, std::uint8_t level) const {
        const auto peripheral = std::make_shared<FakePeripheral>(id, name);
        peripheral->radio.clear();
        peripheral->value = {level};
        central->peripherals.push_back(peripheral);
    }

    Bluetooth make() {
        central = new FakeCentral;
        classic = new FakeClassicDevices;
        timer = new FakeTimer;
        return {std::unique_ptr<BluetoothCentral>(central), std::unique_ptr<ClassicBluetoothDevices>(classic),
                std::unique_ptr<RepeatingTimer>(timer)};
    }
};

} // namespace vantrix::fakes
