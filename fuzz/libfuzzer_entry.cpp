#include <cstdint>

#include <QApplication>

#include <gtest/gtest.h>

#include "fuzz/targets.h"

using namespace vantrix::fuzz;

/// libFuzzer looks for faults in the target that the environment names.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto* const target = targetNamed(qgetenv("FUZZ_TARGET").constData());
    target->run({reinterpret_cast<const char*>(data), size});
    return 0;
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv);         // stays: the toolkit cannot end as late as libFuzzer does
    GTEST_FLAG_SET(throw_on_failure, true); // which nobody catches
    return 0;
}
