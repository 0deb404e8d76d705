#pragma once

#include <memory>

namespace vantrix::bench {

/// Processors, memory and disks through libproc2, which knows nothing of the network.
class Proc2Reading {
  public:
    Proc2Reading();
    ~Proc2Reading();

    void pass();

  private:
    struct Handles;
    std::unique_ptr<Handles> handles_;
};

/// Processes through libproc2: what the programs' list needs of each, without what application it belongs to.
class Proc2Processes {
  public:
    Proc2Processes();
    ~Proc2Processes();

    /// How many there were.
    int pass();

  private:
    struct Handle;
    std::unique_ptr<Handle> handle_;
};

/// Processors, memory, swap, network and disk space through libgtop, which knows nothing of disk rates.
class GTopReading {
  public:
    GTopReading();

    void pass();
};

} // namespace vantrix::bench
