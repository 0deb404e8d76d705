#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/diagnosis.h"
#include "platform/sampling_sources.h"

namespace vantrix {

/// Lays down what the sources read on this machine, pass by pass, without what is nobody else's business. One at a
/// time, and no other sources beside it.
class Capture {
  public:
    virtual ~Capture() = default;
    /// To be made in the first pass, and read in passes alone. What they tell is as it will be in a replay.
    virtual SamplingSources makeSources() = 0;
    virtual void beginPass() = 0;
    /// Lays down what the pass read, with `record`, what was made of it; empty for what only comes before the first.
    /// False when that fails.
    virtual bool endPass(const std::string& record) = 0;
    /// That were laid down, links included.
    virtual std::size_t fileCount() const = 0;
};

/// A machine as it was captured. It stands before its first pass.
class Replay {
  public:
    virtual ~Replay() = default;
    /// To be made once.
    virtual SamplingSources makeSources() = 0;
    /// Goes on to the next pass; false after the last.
    virtual bool nextPass() = 0;
    /// Seconds between the passes; absent when the capture does not tell.
    virtual std::optional<double> interval() const = 0;
    virtual KernelRoots roots() const = 0;
    /// As `diagnoseSources`.
    virtual std::vector<SourceDiagnosis> diagnose() const = 0;
};

/// False where the kernel shows nothing in files.
bool canCapture();

template<typename T>
using OrProblem = std::variant<std::unique_ptr<T>, std::string>;

/// Into the folder, which is made; or one line that says why not. `interval`, in seconds, is that of the passes.
OrProblem<Capture> startCapture(const std::string& folder, const KernelRoots& roots, double interval);
OrProblem<Replay> startReplay(const std::string& folder);

} // namespace vantrix
