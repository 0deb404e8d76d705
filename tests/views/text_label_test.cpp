#include "views/text_label.h"

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "views/drawn.h"
#include "views/theme.h"

namespace vantrix {
namespace {

struct TextLabelTest : ::testing::Test {
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
};

TEST_F(TextLabelTest, ACutTextTellsItselfInItsToolTip) {
    TextLabel label(theme, {.points = 11.0}, QStringLiteral("a rather long text"));
    label.resize(20, 20);
    label.show();
    EXPECT_EQ(label.toolTip(), label.text());
    label.setText(QStringLiteral("<img src='/dev/zero'> as a name"));
    EXPECT_TRUE(label.toolTip().contains(QStringLiteral("&lt;img"))) << "nothing is opened";
    label.resize(label.sizeHint());
    EXPECT_EQ(label.toolTip(), QString());
}

TEST_F(TextLabelTest, ANumberStandsOnTheBaselineOfATextBesideIt) {
    const auto bottom = [this](const TextLabel::Style& style) {
        TextLabel label(theme, style, QStringLiteral("7"));
        label.resize(30, 24);
        QImage image(60, 48, QImage::Format_RGB32);
        image.setDevicePixelRatio(2.0);
        image.fill(Qt::white);
        label.render(&image, {}, {}, QWidget::DrawChildren);
        return inkOf(image, Qt::white).bottom();
    };
    EXPECT_EQ(bottom({.points = 13.0, .monospaced = true}), bottom({.points = 13.0, .wraps = true}));
}

TEST_F(TextLabelTest, ANumberTooWideForItsRoomIsSetSmaller) {
    TextLabel label(theme, {.points = 20.0, .monospaced = true}, QStringLiteral("1234567.1"));
    const QSize half(label.sizeHint().width() / 2, label.sizeHint().height());
    const QImage before = drawn(label, half, Qt::white);
    label.setText(QStringLiteral("1234567.8"));
    EXPECT_NE(drawn(label, half, Qt::white), before) << "the last digit is still there";
}

} // namespace
} // namespace vantrix
