#include "app/printed_line.h"

#include <algorithm>
#include <cmath>

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

using namespace Qt::StringLiterals;

namespace vantrix {
namespace {

std::size_t lettersOf(const std::string& utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string joinedWith(const std::vector<std::string>& parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : separator) + part;
    return text;
}

std::string paddedBlock(const MenuBarItem& item) {
    const std::size_t width = lettersOf(item.reference);
    std::string text = item.label;
    for (const std::string& line : item.lines)
        text += ' ' + std::string(width - std::min(width, lettersOf(line)), ' ') + line;
    return text;
}

QLatin1StringView nameOf(MenuBarSeverity severity) {
    switch (severity) {
    case MenuBarSeverity::critical:
        return "critical"_L1;
    case MenuBarSeverity::warning:
        return "warning"_L1;
    case MenuBarSeverity::normal:
        break;
    }
    return "normal"_L1;
}

MenuBarSeverity worstSeverity(const std::vector<MenuBarItem>& items) {
    auto worst = MenuBarSeverity::normal;
    for (const MenuBarItem& item : items)
        worst = std::max(worst, item.severity);
    return worst;
}

std::string compact(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

std::string textLine(const std::vector<MenuBarItem>& items) {
    std::vector<std::string> blocks;
    blocks.reserve(items.size());
    for (const MenuBarItem& item : items)
        blocks.push_back(paddedBlock(item));
    return joinedWith(blocks, "  ");
}

std::string waybarLine(const std::vector<MenuBarItem>& items) {
    std::vector<std::string> blocks;
    blocks.reserve(items.size());
    for (const MenuBarItem& item : items)
        blocks.push_back(itemText(item));
    // The bar reads both texts as Pango markup.
    const auto markup = [](const std::string& text) { return QString::fromStdString(text).toHtmlEscaped(); };
    QJsonObject object{{u"text"_s, markup(joinedWith(blocks, "  "))},
                       {u"tooltip"_s, markup(joinedWith(blocks, "\n"))},
                       {u"class"_s, nameOf(worstSeverity(items))}};
    if (!items.empty())
        object[u"percentage"_s] = static_cast<int>(std::lround(items.front().fraction * 100.0));
    return compact(object);
}

} // namespace vantrix
