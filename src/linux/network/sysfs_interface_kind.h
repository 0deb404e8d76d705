#pragma once

#include <string>
#include <string_view>

#include "samplers/network_info_sampler.h"

namespace vantrix {

struct InterfaceKind {
    NetworkInfoSampler::InterfaceType type = NetworkInfoSampler::InterfaceType::other;
    std::string_view name; ///< as people know it, in English; empty without one
};

/// What sort of interface `name` is, from <sys>/class/net/<name>. Absent when there is none such.
std::optional<InterfaceKind> readInterfaceKind(const std::string& sys, std::string_view name);

} // namespace vantrix
