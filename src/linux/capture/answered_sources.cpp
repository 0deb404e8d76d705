#include "linux/capture/answered_sources.h"

namespace vantrix {

std::optional<DiskSampler::Volume> AnsweredVolume::read() {
    if (const auto volume = live_ ? live_->read() : std::nullopt) {
        answers_->set("volume", "asked");
        answers_->setInteger("volume.total", volume->total);
        answers_->setInteger("volume.available", volume->available);
    }
    if (!answers_->has("volume"))
        return std::nullopt;
    return DiskSampler::Volume{answers_->integer<std::int64_t>("volume.total"),
                               answers_->integer<std::int64_t>("volume.available")};
}

AnsweredInformation::AnsweredInformation(const std::shared_ptr<Answers>& answers,
                                         std::unique_ptr<SystemInformation> files, bool isLive)
    : files_(std::move(files)) {
    if (isLive)
        answers->set("processors", std::to_string(files_->processorCount()));
    count_ = answers->integer<int>("processors").value_or(1);
}

void AnsweredRoutes::writeDown(const std::string& key, const DefaultRoute* route) {
    if (route == nullptr)
        return;
    answers_->set(key + ".index", std::to_string(route->index));
    answers_->set(key + ".interface", redaction_->name(route->interface));
    if (route->ipv4Address)
        answers_->set(key + ".address", redaction_->text(*route->ipv4Address, {}));
}

std::optional<DefaultRoute> AnsweredRoutes::readBack(const std::string& key) const {
    DefaultRoute route{answers_->integer<int>(key + ".index").value_or(0), answers_->text(key + ".interface"), {}};
    if (answers_->has(key + ".address"))
        route.ipv4Address = answers_->text(key + ".address");
    return route.interface.empty() ? std::nullopt : std::optional(route);
}

bool AnsweredRoutes::refresh() {
    if (live_ && live_->refresh()) {
        answers_->set("routes", std::to_string(live_->generation()));
        writeDown("route4", live_->primary(Family::ipv4));
        writeDown("route6", live_->primary(Family::ipv6));
    }
    generation_ = answers_->integer<std::uint64_t>("routes").value_or(generation_);
    ipv4_ = readBack("route4");
    ipv6_ = readBack("route6");
    return answers_->has("routes");
}

const DefaultRoute* AnsweredRoutes::primary(Family family) const {
    const auto& route = family == Family::ipv4 ? ipv4_ : ipv6_;
    return route ? &*route : nullptr;
}

void AnsweredWiFi::read(int link, WiFiReading& reading) {
    if (live_) {
        live_->read(link, reading);
        answers_->set("wifi.signal", std::to_string(reading.signal));
        answers_->set("wifi.noise", std::to_string(reading.noise));
        answers_->set("wifi.rate", reading.bitRate);
        answers_->set("wifi.network", redaction_->network(reading.ssid));
        answers_->set("wifi.problem", reading.problem);
    }
    reading.fail(answers_->has("wifi.problem") ? answers_->text("wifi.problem") : "nl80211 was not asked");
    reading.signal = answers_->integer<int>("wifi.signal").value_or(0);
    reading.noise = answers_->integer<int>("wifi.noise").value_or(0);
    reading.bitRate = answers_->number("wifi.rate").value_or(0.0);
    reading.ssid = answers_->text("wifi.network");
}

bool AnsweredNvidia::isInstalled() const {
    if (live_)
        answers_->set("nvidia.installed", live_->isInstalled() ? "1" : "0");
    return answers_->text("nvidia.installed") == "1";
}

bool AnsweredNvidia::start() {
    gpus_.clear();
    if (live_)
        answers_->set("nvidia.started", live_->start() ? "1" : "0");
    return answers_->text("nvidia.started") == "1";
}

void AnsweredNvidia::stop() {
    if (live_)
        live_->stop();
}

std::optional<NvidiaLibrary::Device> AnsweredNvidia::find(const std::string& address) {
    const std::string key = "nvidia." + address;
    const auto device = live_ ? live_->find(address) : std::nullopt;
    if (device)
        answers_->set(key, "found");
    if (!answers_->has(key))
        return std::nullopt;
    gpus_.push_back(std::make_unique<GPU>(GPU{key, device.value_or(nullptr)}));
    return gpus_.back().get();
}

int AnsweredNvidia::utilization(Device device, unsigned& percent) {
    const auto* gpu = static_cast<const GPU*>(device);
    if (live_) {
        const int answer = live_->utilization(gpu->device, percent);
        answers_->set(gpu->key + ".answer", std::to_string(answer));
        answers_->set(gpu->key + ".load", std::to_string(percent));
    }
    percent = answers_->integer<unsigned>(gpu->key + ".load").value_or(0);
    return answers_->integer<int>(gpu->key + ".answer").value_or(unknownError);
}

std::optional<double> AnsweredNvidia::temperature(Device device) {
    const auto* gpu = static_cast<const GPU*>(device);
    if (const auto celsius = live_ ? live_->temperature(gpu->device) : std::nullopt)
        answers_->set(gpu->key + ".temperature", *celsius);
    return answers_->number(gpu->key + ".temperature");
}

} // namespace vantrix
