"""What the program takes of the system, over time."""

import os
from statistics import median

PARTS = 10
# How much more of each the last third may take than the first: a share of it, and so much besides. Of descriptors and
# threads the fewest count, as they come and go with slow devices. The first part is left out, in which caches fill.
LIMITS = {"RSS KiB": (0.03, 3072, median), "USS KiB": (0.03, 2048, median), "descriptors": (0, 30, min),
          "threads": (0, 8, min), "CPU ms/s": (0.5, 20, lambda values: sum(values) / len(values))}


class Measure:
    def __init__(self, process):
        self.process, self.samples, self.last = process, [], None

    def take(self, now):
        """`now`: seconds of a clock that does not step back."""
        folder = f"/proc/{self.process}"
        with open(folder + "/smaps_rollup", encoding="ascii") as file:
            sizes = {line.split(":")[0]: int(line.split()[1]) for line in file if line.endswith("kB\n")}
        with open(folder + "/stat", encoding="ascii") as file:
            numbers = file.read().rpartition(") ")[2].split()
        cpu = (int(numbers[11]) + int(numbers[12])) * 1000 / os.sysconf("SC_CLK_TCK")
        if self.last:
            own = sum(size for name, size in sizes.items() if name.startswith("Private_"))
            self.samples.append((sizes["Rss"], own, len(os.listdir(folder + "/fd")), int(numbers[17]),
                                 (cpu - self.last[1]) / (now - self.last[0])))
        self.last = (now, cpu)

    def part(self, begin, end):
        """Between two shares of the time."""
        part = self.samples[int(begin * len(self.samples)):int(end * len(self.samples))]
        return [typical(column) for (_, _, typical), column in zip(LIMITS.values(), zip(*part))]

    def table(self):
        parts = [self.part(part / PARTS, (part + 1) / PARTS) for part in range(PARTS)]
        return "\n".join(" ".join(f"{value:>12}" for value in line)
                         for line in [LIMITS, *([round(value) for value in part] for part in parts)])

    def growth(self):
        """What grew, in words."""
        thirds = zip(LIMITS.items(), self.part(1 / PARTS, 0.4), self.part(0.7, 1))
        return [f"{name} grew from {before:.0f} to {after:.0f}" for (name, (share, much, _)), before, after in thirds
                if after > before * (1 + share) + much]
