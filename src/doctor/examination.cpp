#include "doctor/examination.h"

#include <algorithm>

#include "support/finishes_within.h"

namespace vantrix {
namespace {

constexpr std::size_t timedReads = 5;

double microsecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double>& numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

} // namespace

Examination::Examination(SamplingSources sources, std::chrono::milliseconds patience)
    : samplers_(std::make_shared<Samplers>(std::move(sources))), patience_(patience), hangs_(probes().size()) {}

void Examination::beginPass() {
    for (std::size_t i = 0; i < probes().size(); ++i) {
        const Probe& probe = probes()[i];
        if (probe.isOnPass)
            hangs_[i] = !finishesWithin(patience_, [samplers = samplers_, read = probe.read] { read(*samplers); });
    }
}

/// What each reading of a probe gave.
std::vector<Finding> Examination::measure(std::size_t place) {
    const Probe& probe = probes()[place];
    const auto findings = std::make_shared<std::vector<Finding>>(probe.readings.size());
    // A slow source is read less often, so that only one that hangs uses up the patience.
    const double enough = std::chrono::duration<double, std::micro>(patience_).count() / 4.0;
    const auto measure = [findings, enough, samplers = samplers_, read = probe.read,
                          most = probe.isOnPass ? timedReads : 1] {
        std::vector<double> costs;
        for (double spent = 0.0; costs.size() < most && spent < enough; spent += costs.back()) {
            const auto start = std::chrono::steady_clock::now();
            auto values = read(*samplers);
            costs.push_back(microsecondsSince(start));
            if (costs.size() == 1) // later ones measure rates over no time
                std::move(values.begin(), values.end(), findings->begin());
        }
        findings->front().microseconds = median(costs);
    };
    hangs_[place] = hangs_[place] || !finishesWithin(patience_, measure);
    return hangs_[place] ? std::vector<Finding>(probe.readings.size(), {.isSilent = true}) : std::move(*findings);
}

Findings Examination::finish() {
    Findings findings;
    for (std::size_t i = 0; i < probes().size(); ++i) {
        auto measured = measure(i);
        for (std::size_t j = 0; j < measured.size(); ++j)
            findings[probes()[i].readings[j]] = std::move(measured[j]);
    }
    return findings;
}

bool Examination::leftThreadBehind() const {
    return std::find(hangs_.begin(), hangs_.end(), true) != hangs_.end();
}

} // namespace vantrix
