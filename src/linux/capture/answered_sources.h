#pragma once

#include <memory>
#include <vector>

#include "linux/capture/answers.h"
#include "linux/capture/redaction.h"
#include "linux/graphics/nvidia_library.h"
#include "linux/network/default_routes.h"
#include "linux/network/wifi_reader.h"
#include "samplers/disk_sampler.h"
#include "support/system_information.h"

namespace vantrix {

// What is not read from files. Over a source of this machine each writes down its answers; without one, in a replay, it
// gives those that were written down. In both cases the answers are taken from what stands there.

class AnsweredVolume : public DiskSampler::VolumeSource {
  public:
    AnsweredVolume(std::shared_ptr<Answers> answers, std::unique_ptr<DiskSampler::VolumeSource> live)
        : answers_(std::move(answers)), live_(std::move(live)) {}
    std::optional<DiskSampler::Volume> read() override;

  private:
    std::shared_ptr<Answers> answers_;
    std::unique_ptr<DiskSampler::VolumeSource> live_;
};

class AnsweredInformation : public SystemInformation {
  public:
    /// What is read from files is asked of `files`, always.
    AnsweredInformation(const std::shared_ptr<Answers>& answers, std::unique_ptr<SystemInformation> files, bool isLive);
    std::optional<std::int64_t> integer(std::string_view name) const override { return files_->integer(name); }
    std::optional<std::string> text(std::string_view name) const override { return files_->text(name); }
    int processorCount() const override { return count_; }

  private:
    std::unique_ptr<SystemInformation> files_;
    int count_;
};

class AnsweredRoutes : public DefaultRoutes {
  public:
    /// `redaction` is needed by live ones alone, and outlives this.
    AnsweredRoutes(std::shared_ptr<Answers> answers, std::unique_ptr<DefaultRoutes> live, Redaction* redaction)
        : answers_(std::move(answers)), live_(std::move(live)), redaction_(redaction) {}
    bool refresh() override;
    std::uint64_t generation() const override { return generation_; }
    const DefaultRoute* primary(Family family) const override;

  private:
    void writeDown(const std::string& key, const DefaultRoute* route);
    std::optional<DefaultRoute> readBack(const std::string& key) const;

    std::shared_ptr<Answers> answers_;
    std::unique_ptr<DefaultRoutes> live_;
    Redaction* redaction_;
    std::optional<DefaultRoute> ipv4_;
    std::optional<DefaultRoute> ipv6_;
    std::uint64_t generation_ = 0;
};

class AnsweredWiFi : public WiFiReader {
  public:
    AnsweredWiFi(std::shared_ptr<Answers> answers, std::unique_ptr<WiFiReader> live, Redaction* redaction)
        : answers_(std::move(answers)), live_(std::move(live)), redaction_(redaction) {}
    void read(int link, WiFiReading& reading) override;

  private:
    std::shared_ptr<Answers> answers_;
    std::unique_ptr<WiFiReader> live_;
    Redaction* redaction_;
};

class AnsweredNvidia : public NvidiaLibrary {
  public:
    AnsweredNvidia(std::shared_ptr<Answers> answers, std::unique_ptr<NvidiaLibrary> live)
        : answers_(std::move(answers)), live_(std::move(live)) {}
    bool isInstalled() const override;
    bool start() override;
    void stop() override;
    std::optional<Device> find(const std::string& address) override;
    int utilization(Device device, unsigned& percent) override;
    std::optional<double> temperature(Device device) override;

  private:
    struct GPU {
        std::string key;
        Device device = nullptr; ///< the live one
    };

    std::shared_ptr<Answers> answers_;
    std::unique_ptr<NvidiaLibrary> live_;
    std::vector<std::unique_ptr<GPU>> gpus_; // what is handed out as a device
};

} // namespace vantrix
