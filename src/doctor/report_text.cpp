#include <algorithm>
#include <cmath>
#include <cstdio>

#include "doctor/instance_facts.h"
#include "doctor/report.h"
#include "doctor/wrapped_text.h"

namespace vantrix {
namespace {

constexpr std::size_t margin = 2;
constexpr std::size_t gap = 2;
constexpr std::size_t widestValue = 21;

using Facts = std::vector<std::pair<std::string, std::string>>;

std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

std::string microsecondsText(const std::optional<double>& microseconds) {
    if (!microseconds)
        return {};
    char text[32];
    std::snprintf(text, sizeof text, *microseconds < 9.95 ? "%.1f" : "%.0f", *microseconds);
    return text;
}

/// Services name themselves, and a terminal obeys control characters.
SourceDiagnosis withoutControls(SourceDiagnosis diagnosis) {
    for (std::string* text : {&diagnosis.source, &diagnosis.value, &diagnosis.reason})
        std::replace_if(
            text->begin(), text->end(), [](char c) { return (c >= '\0' && c < ' ') || c == '\x7f'; }, ' ');
    return diagnosis;
}

/// Rows in columns as wide as their widest cell: name, state, value, cost, source. A source that finds no room in its
/// column takes a line of its own, reasons follow in lines below.
class Table {
  public:
    Table(std::string heading, const std::vector<DoctorRow>& rows, std::size_t width)
        : heading_(std::move(heading)), rows_(rows), width_(width), name_(lengthOf(heading_) - margin),
          state_(lengthOf("STATE")), value_(lengthOf("VALUE")) {
        for (const DoctorRow& row : rows) {
            name_ = std::max(name_, lengthOf(row.diagnosis.name));
            state_ = std::max(state_, lengthOf(wordOf(row.diagnosis.state)));
            value_ = std::max(value_, std::min(lengthOf(row.diagnosis.value), widestValue));
            cost_ = std::max(cost_, lengthOf(microsecondsText(row.microseconds)));
        }
        if (cost_ > 0)
            cost_ = std::max(cost_, lengthOf("µs"));
    }

    /// Makes room for a cost below the rows.
    void fit(const std::string& cost) { cost_ = std::max(cost_, lengthOf(cost)); }

    std::string text() const {
        std::string text =
            padded(heading_, margin + name_ + gap) + line("STATE", "VALUE", cost_ > 0 ? "µs" : "") + "SOURCE\n";
        for (const DoctorRow& row : rows_)
            append(text, row);
        return text;
    }

    /// A row of nothing but a name and a cost.
    std::string sum(const std::string& name, const std::string& cost) const {
        std::string text = blanks(margin) + padded(name, name_) + blanks(gap) + line("", "", cost);
        text.erase(text.find_last_not_of(' ') + 1);
        return text + '\n';
    }

  private:
    /// The columns between name and source.
    std::string line(std::string_view state, std::string_view value, std::string_view cost) const {
        std::string text = padded(state, state_) + blanks(gap) + padded(value, value_) + blanks(gap);
        if (cost_ > 0)
            text += blanks(cost_ - std::min(cost_, lengthOf(cost))) + std::string(cost) + blanks(gap);
        return text;
    }

    std::size_t valuePlace() const { return margin + name_ + gap + state_ + gap; }
    std::size_t sourcePlace() const { return valuePlace() + value_ + gap + (cost_ > 0 ? cost_ + gap : 0); }

    void append(std::string& text, const DoctorRow& row) const {
        const SourceDiagnosis diagnosis = withoutControls(row.diagnosis);
        auto values = wrapped(diagnosis.value, value_);
        values.resize(std::max<std::size_t>(values.size(), 1));
        const bool fits = sourcePlace() + lengthOf(diagnosis.source) <= width_;
        std::string first = blanks(margin) + padded(diagnosis.name, name_) + blanks(gap) +
                            line(wordOf(diagnosis.state), values.front(), microsecondsText(row.microseconds)) +
                            (fits ? diagnosis.source : "");
        first.erase(first.find_last_not_of(' ') + 1);
        text += first + '\n';
        values.erase(values.begin());
        for (const std::string& value : values)
            text += blanks(valuePlace()) + value + '\n';
        if (!fits)
            appendBelow(text, diagnosis.source);
        appendBelow(text, diagnosis.reason);
    }

    void appendBelow(std::string& text, std::string_view words) const {
        const std::size_t place = margin + name_ + gap; // further left than values: sentences need room
        for (const std::string& part : wrapped(words, width_ - place))
            text += blanks(place) + part + '\n';
    }

    std::string heading_;
    const std::vector<DoctorRow>& rows_;
    std::size_t width_;
    std::size_t name_;
    std::size_t state_;
    std::size_t value_;
    std::size_t cost_ = 0;
};

std::string factsText(const Facts& facts, std::size_t width) {
    std::size_t label = 0;
    for (const auto& fact : facts)
        label = std::max(label, lengthOf(fact.first));
    std::string text;
    for (const auto& [name, words] : facts) {
        std::string lead = blanks(margin) + padded(name, label) + blanks(label > 0 ? gap : 0);
        for (const std::string& part : wrapped(words, width - lengthOf(lead))) {
            text += lead + part + '\n';
            lead = blanks(lengthOf(lead));
        }
    }
    return text;
}

} // namespace

std::string textReport(const DoctorReport& report, int columns) {
    const auto width = static_cast<std::size_t>(columns);
    const std::string pass = microsecondsText(passMicroseconds(report));
    Table readings("READINGS", report.readings, width);
    readings.fit(pass);
    const Table services("SERVICES", report.services, width);
    std::string text =
        "SYSTEM\n" + factsText(report.system, width) + '\n' + readings.text() + readings.sum("One pass", pass);
    if (!report.services.empty())
        text += '\n' + services.text();
    text += "\nRUNNING INSTANCE\n" + factsText(instanceFacts(report.instance), width);
    return report.advice.empty() ? text : text + '\n' + factsText({{"", report.advice}}, width);
}

} // namespace vantrix
