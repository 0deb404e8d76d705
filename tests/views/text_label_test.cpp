#include "views/text_label.h"

#include <QImage>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "views/theme.h"

namespace vantrix {
namespace {

class TextLabelTest : public ::testing::Test {
  protected:
    /// The label drawn at `size` on white.
    static QImage drawn(TextLabel& label, QSize size) {
        label.resize(size);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        label.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }

    /// The rightmost column with ink.
    static int lastInk(const QImage& image) {
        for (int x = image.width() - 1; x >= 0; --x)
            for (int y = 0; y < image.height(); ++y)
                if (image.pixelColor(x, y) != Qt::white)
                    return x;
        return -1;
    }

    fakes::FakeAppearance appearance;
    Theme theme{appearance};
};

TEST_F(TextLabelTest, AWrappingTextGrowsInHeightInsteadOfLosingWords) {
    TextLabel label(theme, {.points = 11.0, .wraps = true}, QStringLiteral("several words that need some room"));
    const int oneLine = label.heightForWidth(2000);
    EXPECT_EQ(oneLine, label.sizeHint().height());
    EXPECT_GE(label.heightForWidth(60), 3 * oneLine - 3);
}

TEST_F(TextLabelTest, ACutTextTellsItselfInItsToolTip) {
    TextLabel label(theme, {.points = 11.0}, QStringLiteral("a rather long text"));
    label.resize(20, 20);
    label.show();
    EXPECT_EQ(label.toolTip(), label.text());
    label.resize(label.sizeHint());
    EXPECT_EQ(label.toolTip(), QString());
}

TEST_F(TextLabelTest, ANumberTooWideForItsRoomIsSetSmaller) {
    TextLabel label(theme, {.points = 20.0, .monospaced = true}, QStringLiteral("1234567.1"));
    const int natural = label.sizeHint().width();
    const QImage image = drawn(label, {natural / 2, label.sizeHint().height()});
    EXPECT_GT(lastInk(image), natural / 2 - 8); // the last digit is still there
    EXPECT_EQ(label.toolTip(), QString());
}

TEST_F(TextLabelTest, FollowsTheReadingDirection) {
    TextLabel label(theme, {.points = 11.0, .monospaced = true, .side = Qt::AlignRight}, QStringLiteral("12%"));
    EXPECT_GT(lastInk(drawn(label, {200, 20})), 190);
    label.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(lastInk(drawn(label, {200, 20})), 60);
}

} // namespace
} // namespace vantrix
