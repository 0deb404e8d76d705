#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/sampling_sources.h"

namespace vantrix::fakes {

/// The sources that a machine may lack, which write down in which order they were asked.
struct OptionalSources {
    std::vector<std::string> asked;
    Properties gpu{{"Device Utilization %", std::int64_t{40}}};
    Properties powerSource{{"Type", "InternalBattery"}, {"Current Capacity", std::int64_t{50}}};
    std::optional<double> temperature = 52.0;
    std::optional<double> power = 9.5;
    std::optional<std::string_view> route = "en0";

    void addTo(SamplingSources& sources) {
        sources.networkInfo = std::make_unique<Connection>(*this);
        sources.gpu = std::make_unique<GPU>(*this);
        sources.temperatures = std::make_unique<Temperatures>(*this);
        sources.sensorKeys = std::make_unique<Keys>(*this);
        sources.battery = std::make_unique<Battery>(*this);
    }

  private:
    struct Connection : NetworkInfoSampler::Source {
        explicit Connection(OptionalSources& e) : extras(e) {}
        bool refresh() override {
            extras.asked.emplace_back("connection");
            return true;
        }
        std::optional<std::string_view> primaryInterface(NetworkInfoSampler::AddressFamily) override {
            return extras.route;
        }
        std::optional<std::string_view> ipv4Address(std::string_view) override { return "192.0.2.1"; }
        std::optional<NetworkInfoSampler::Interface> describe(std::string_view) override {
            return NetworkInfoSampler::Interface{NetworkInfoSampler::InterfaceType::ethernet, "Ethernet"};
        }
        std::optional<NetworkInfoSampler::WiFi> wifi(std::string_view) override { return std::nullopt; }
        bool hidesNetworkNames() const override { return false; }
        OptionalSources& extras;
    };
    struct GPU : GPUSampler::Source {
        explicit GPU(OptionalSources& e) : extras(e) {}
        std::optional<std::span<const Properties>> read() override {
            extras.asked.emplace_back("gpu");
            return std::span(&extras.gpu, 1);
        }
        OptionalSources& extras;
    };
    struct Temperatures : HIDTemperatureSampler::Source {
        explicit Temperatures(OptionalSources& e) : extras(e) {}
        bool read(std::vector<HIDTemperatureSampler::Service>& services) override {
            extras.asked.emplace_back("sensors");
            services = {{"CPU", extras.temperature}};
            return true;
        }
        OptionalSources& extras;
    };
    struct Keys : SensorKeys {
        explicit Keys(OptionalSources& e) : extras(e) {}
        std::optional<double> value(std::string_view key) override {
            return key == "PSTR" ? extras.power : std::nullopt;
        }
        OptionalSources& extras;
    };
    struct Battery : BatterySampler::Source {
        explicit Battery(OptionalSources& e) : extras(e) {}
        std::optional<std::span<const Properties>> powerSources() override {
            extras.asked.emplace_back("battery");
            return std::span(&extras.powerSource, 1);
        }
        const Properties* smartBattery() override { return nullptr; }
        OptionalSources& extras;
    };
};

} // namespace vantrix::fakes
