#include "menubar/menu_bar_renderer.h"

#include <cmath>
#include <functional>

#include <QFontDatabase>
#include <QPainter>

#include <gmock/gmock.h>

#include "menubar/monospaced_font.h"
#include "menubar/row_picture.h"
#include "views/drawn.h"

namespace vantrix {
namespace {

const MenuBarPalette palette{QColor(255, 255, 255), QColor(255, 160, 0), QColor(255, 0, 0)};
constexpr MenuBarStyle styles[] = {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph};

MenuBarItem percentItem(const char* label, const char* text) {
    return {label, {text}, MenuBarSeverity::normal, {}, 0.5, "100%"};
}

MenuBarItem networkItem() {
    return {"NET", {"↓1.5M", "↑0K"}, MenuBarSeverity::normal, {}, 0.0, "↓99M"};
}

QImage rendered(const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize = true, double scale = 1.0) {
    QImage image;
    MenuBarRenderer::render(image, items, style, colorize, palette, scale);
    return image;
}

TEST(MonospacedFont, GivesEveryDigitTheSameAdvanceInEveryInstalledFont) {
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isScalable(family))
            continue;
        const MonospacedFont font(QFont(family), 11.5, QFont::Medium);
        for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
            EXPECT_DOUBLE_EQ(font.width(digit), font.width("0")) << family.toStdString() << ' ' << digit;
        EXPECT_DOUBLE_EQ(font.width("11%"), font.width("88%")) << family.toStdString();
    }
}

TEST(MenuBarRenderer, WidthsStayWhileNumbersChangeAndGrowOnlyForWhatIsWider) {
    for (const MenuBarStyle style : styles) {
        const auto width = [style](const std::vector<MenuBarItem>& items) {
            return MenuBarRenderer::size(items, style).width();
        };
        const MenuBarItem cpu = percentItem("CPU", "1%");
        EXPECT_EQ(width({cpu}), width({percentItem("CPU", "100%")}));
        EXPECT_GT(width({cpu, cpu}), 2 * width({cpu})) << "no gap between two";
        MenuBarItem wide = networkItem();
        wide.lines = {"↓1000K", "↑1000K"};
        EXPECT_GT(width({wide}), width({networkItem()}));
    }
    EXPECT_EQ(MenuBarRenderer::size({}, MenuBarStyle::stacked).width(), 1.0);
}

TEST(MenuBarRenderer, NothingIsDrawnBeyondTheRowsSize) {
    MenuBarItem wide = networkItem();
    wide.lines = {"↓1000K", "↑1000K"};
    const std::vector<MenuBarItem> rows[] = {{percentItem("CPU", "100%"), wide},
                                             {percentItem("A VERY WIDE CAPTION", "1%")},
                                             {percentItem("T", "a value far wider than its reference")}};
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (const MenuBarStyle style : styles)
            for (const std::vector<MenuBarItem>& row : rows) {
                const QSizeF size = MenuBarRenderer::size(row, style);
                const QSize pixels(static_cast<int>(std::ceil(size.width() * scale)),
                                   static_cast<int>(std::ceil(size.height() * scale)));
                EXPECT_EQ(rendered(row, style, true, scale).size(), pixels);

                const QPoint corner(60, 60);
                QImage page(pixels + QSize(120, 120), QImage::Format_ARGB32_Premultiplied);
                page.fill(Qt::transparent);
                QPainter painter(&page);
                painter.translate(corner);
                painter.scale(scale, scale);
                MenuBarRenderer::paint(painter, row, style, true, palette);
                painter.end();
                EXPECT_TRUE(QRect(corner, pixels).contains(inkOf(page, Qt::transparent)))
                    << row.front().label << ", scale " << scale << ", style " << static_cast<int>(style);
            }
}

TEST(MenuBarRenderer, InlineValuesStandAtTheRightOfTheirSlots) {
    const auto left = [](const char* lines) {
        return inkOf(rendered({percentItem("", lines)}, MenuBarStyle::inlined), Qt::transparent).left();
    };
    const auto right = [](const std::vector<std::string>& lines) {
        MenuBarItem item{"", lines, MenuBarSeverity::normal, {}, 0.0, "↓99M"};
        return inkOf(rendered({item}, MenuBarStyle::inlined), Qt::transparent).right();
    };
    EXPECT_GT(left("5%"), left("55%") + 3);
    EXPECT_EQ(right({"0K"}), right({"888K"}));
    EXPECT_EQ(right({"↓0K", ""}), right({"↓888K", ""})) << "each in a slot of its own";
    EXPECT_GT(right({"↓0K", "8K"}), right({"↓0K", ""}) + 10);
}

TEST(MenuBarRenderer, TellsSeveritiesApartOnlyWhenAsked) {
    for (const MenuBarStyle style : styles) {
        MenuBarItem item = percentItem("CPU", "88%");
        const QImage normal = rendered({item}, style);
        item.severity = MenuBarSeverity::warning;
        const QImage warning = rendered({item}, style);
        item.severity = MenuBarSeverity::critical;
        EXPECT_NE(warning, normal) << static_cast<int>(style);
        EXPECT_NE(rendered({item}, style), warning) << static_cast<int>(style);
        EXPECT_EQ(rendered({item}, style, false), normal) << static_cast<int>(style);
    }
}

TEST(MenuBarRenderer, TheGraphShowsTheNewestValuesWithinItsBounds) {
    const auto graph = [](const std::vector<double>& history) {
        MenuBarItem item = percentItem("CPU", "50%");
        item.history = history;
        return rendered({item}, MenuBarStyle::graph);
    };
    std::vector<double> aged(16, 1.0); // too old to be drawn
    aged.insert(aged.end(), 24, 0.25);
    EXPECT_EQ(graph(aged), graph(std::vector(24, 0.25)));
    EXPECT_EQ(graph({0.0, 2.0, -1.0}), graph({0.0, 1.0, 0.0}));
    EXPECT_EQ(graph({1.0}), graph({})) << "too few for a line: a bar of the fraction";
    EXPECT_NE(graph({1.0, 1.0}), graph({}));
}

/// Another font of the desktop's, of the same shape.
void setDesktopFont(QFont::StyleHint hint) {
    QFont font = QGuiApplication::font();
    font.setStyleHint(hint);
    QGuiApplication::setFont(font);
}

TEST(RowPicture, WhatIsKeptEqualsWhatIsDrawnAfresh) {
    std::vector<MenuBarItem> row{percentItem("CPU", "12%"), networkItem(), percentItem("RAM", "48%")};
    const std::pair<std::size_t, std::function<void()>> changes[] = {
        {3, [] {}},
        {1, [&] { row[0].lines = {"7%"}; }},
        {1, [&] { row[2].severity = MenuBarSeverity::critical; }},
        {3, [] { setDesktopFont(QFont::Serif); }},
        {2,
         [&] {
             row[0].lines = {"100%"}, row[1].lines = {"↓2.5M", "↑3K"};
         }},
        {0, [] {}},
        {3,
         [&] {
             row[1].lines = {"↓1000.5M", "↑1000.5M"};
         }},
        {2, [&] { row.pop_back(); }},
        {1,
         [&] {
             row[0].history = {0.1, 0.9}, row[0].severity = MenuBarSeverity::warning;
         }},
    };
    for (const MenuBarStyle style : styles)
        for (const double scale : {1.0, 1.25, 2.0}) {
            SCOPED_TRACE(testing::Message() << choiceOf(menuBarStyles, style).rawValue << " at " << scale);
            RowPicture kept;
            for (const auto& [parts, change] : changes) {
                change();
                const QImage fresh = rendered(row, style, true, scale);
                const auto drawn = kept.draw(row, {.style = style,
                                                   .palette = palette,
                                                   .size = fresh.size(),
                                                   .toPixel = QTransform::fromScale(scale, scale)});
                EXPECT_EQ(drawn.size(), parts);
                EXPECT_EQ(kept.image(), fresh.convertToFormat(QImage::Format_ARGB32_Premultiplied));
            }
            row = {percentItem("CPU", "12%"), networkItem(), percentItem("RAM", "48%")};
            setDesktopFont(QFont::AnyStyle);
        }
}

TEST(SamePicture, HistoriesCountOnlyWhereTheyAreDrawn) {
    MenuBarItem a = percentItem("CPU", "12%");
    MenuBarItem b = a;
    b.history = {0.5};
    b.fraction = 0.124;
    EXPECT_TRUE(samePicture({a}, {b}, MenuBarStyle::stacked));
    EXPECT_TRUE(samePicture({a}, {b}, MenuBarStyle::inlined));
    EXPECT_FALSE(samePicture({a}, {b}, MenuBarStyle::graph));
    EXPECT_FALSE(samePicture({a}, {a, a}, MenuBarStyle::stacked));
    b.severity = MenuBarSeverity::warning;
    EXPECT_FALSE(samePicture({a}, {b}, MenuBarStyle::stacked));
}

} // namespace
} // namespace vantrix
