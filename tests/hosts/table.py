"""The results as markdown: hosts down, checks across, and below them a reason for everything that is red."""

CHECKS = ("shown as", "whole", "readable", "no box", "5 clicks", "popover's place", "right click",
          "right click over popover", "Escape", "click outside", "turned light", "turned dark", "panel restarted",
          "click after restart")


class Table:
    def __init__(self):
        self.rows, self.reasons, self.red = [], [], False

    def skip(self, host, reason, asked):
        """A host that is not there: a fault only where it was asked for."""
        self.rows.append([host, reason] + ["–"] * (len(CHECKS) - 1))
        self.red = self.red or asked

    def add(self, host, results):
        found = {result["check"]: result for result in results}
        self.rows.append([host] + [found[check]["verdict"] if check in found else "n/a" for check in CHECKS])
        for result in results:
            if result["verdict"] == "RED":
                self.red = True
                self.reasons.append(f"- **{host}**, {result['check']}: {result['reason']}")

    def markdown(self):
        lines = [["host", *CHECKS], ["---"] * (len(CHECKS) + 1), *self.rows]
        table = "\n".join("| " + " | ".join(line) + " |" for line in lines)
        return table + ("\n\n" + "\n".join(self.reasons) if self.reasons else "")
