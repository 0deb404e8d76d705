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
    const Properties powerSource{{"Type", "InternalBattery"}, {"Current Capacity", std::int64_t{50}}};
    std::optional<double> temperature = 52.0;
    std::int64_t gpuEnergy = 0; ///< that the GPU takes up in a pass, millijoules
    std::optional<std::string_view> route = "en0";

    void addTo(SamplingSources& sources) {
        sources.networkInfo = std::make_unique<Source>(*this);
        sources.gpu = std::make_unique<Source>(*this);
        sources.temperatures = std::make_unique<Source>(*this);
        sources.sensorKeys = std::make_unique<Source>(*this);
        sources.energy = std::make_unique<Source>(*this);
        sources.battery = std::make_unique<Source>(*this);
    }

  private:
    /// Could be any of them, and is one.
    struct Source : NetworkInfoSampler::Source,
                    GPUSampler::Source,
                    HIDTemperatureSampler::Source,
                    SensorKeys,
                    IOReportSampler::Source,
                    BatterySampler::Source {
        explicit Source(OptionalSources& e) : extras(e) {}

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
        std::optional<std::span<const Properties>> read() override {
            extras.asked.emplace_back("gpu");
            return std::span(&extras.gpu, 1);
        }
        bool read(std::vector<HIDTemperatureSampler::Service>& services) override {
            extras.asked.emplace_back("sensors");
            services = {{"CPU", extras.temperature}};
            return true;
        }
        std::optional<double> value(std::string_view key) override {
            return key == "PSTR" ? std::optional(9.5) : std::nullopt;
        }
        bool takeSnapshot() override { return true; }
        bool readDifference(std::vector<IOReportSampler::Channel>& channels) override {
            channels = {{"Energy Model", "GPU Energy", "mJ", extras.gpuEnergy}};
            return true;
        }
        std::optional<std::span<const Properties>> powerSources() override {
            extras.asked.emplace_back("battery");
            return std::span(&extras.powerSource, 1);
        }
        const Properties* smartBattery() override { return nullptr; }

        OptionalSources& extras;
    };
};

} // namespace vantrix::fakes
