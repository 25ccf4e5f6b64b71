#include "ui/Icons.h"

#include "UiFixture.h"

#include <QImage>
#include <QPainter>

#include <array>
#include <set>

namespace zpsg::ui::test {
namespace {

/// A sign alone on a transparent ground, `margin` pixels away from its edges.
QImage painted(Icon icon, int pixels, const QColor &colour, qreal ratio = 1.0, int margin = 0) {
    QImage image(pixels + 2 * margin, pixels + 2 * margin, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintIcon(painter, icon, {margin / ratio, margin / ratio, pixels / ratio, pixels / ratio}, colour);
    return image;
}

/// How many pixels of `image` inside `area` bear anything.
int ink(const QImage &image, const QRect &area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += qAlpha(image.pixel(x, y)) > 8 ? 1 : 0;
        }
    }
    return count;
}

class IconsTest : public UiTest {};

TEST_F(IconsTest, EverySignHasInkInItsBoxAndNoneAtTheBorder) {
    std::set<QByteArray> drawings;
    for (int i = 0; i < static_cast<int>(Icon::Count); ++i) {
        const auto icon = static_cast<Icon>(i);
        for (const auto &[pixels, ratio] : {std::pair{16, 1.0}, std::pair{22, 1.0}, std::pair{33, 1.5},
                                            std::pair{44, 2.0}, std::pair{66, 3.0}, std::pair{128, 1.0}}) {
            const QImage image = painted(icon, pixels, Qt::white, ratio);
            const QRect inside = image.rect().adjusted(1, 1, -1, -1);
            EXPECT_GT(ink(image, inside), pixels) << "sign " << i << " at " << pixels;
            EXPECT_EQ(ink(image, image.rect()), ink(image, inside))
                << "sign " << i << " at " << pixels << " is cut";
        }
        const QImage large = painted(icon, 128, Qt::white);
        drawings.insert(
            {reinterpret_cast<const char *>(large.constBits()), static_cast<int>(large.sizeInBytes())});
    }
    EXPECT_EQ(drawings.size(), static_cast<std::size_t>(Icon::Count)) << "no two are the same";
}

TEST_F(IconsTest, TheColourIsTheOneAskedForWithItsAlpha) {
    for (const QColor &colour : {QColor(61, 202, 242), QColor(255, 0, 0, 128), QColor(61, 202, 242)}) {
        const QImage image = painted(Icon::Dot, 32, colour);
        EXPECT_EQ(image.pixelColor(16, 16).alpha(), colour.alpha());
        EXPECT_NEAR(image.pixelColor(16, 16).red(), colour.red(), 2);
        EXPECT_NEAR(image.pixelColor(16, 16).blue(), colour.blue(), 2);
    }
}

TEST_F(IconsTest, LinesKeepTheirLeastWidth) {
    // Ink across the middle of the lone stroke, in pixels of full cover.
    const auto width = [](int pixels, qreal ratio) {
        const QImage image = painted(Icon::Minimise, pixels, Qt::white, ratio);
        double sum = 0.0;
        for (int y = 0; y < pixels; ++y) {
            sum += image.pixelColor(pixels / 2, y).alphaF();
        }
        return sum;
    };
    EXPECT_NEAR(width(10, 1.0), 1.4, 0.1);
    EXPECT_NEAR(width(16, 1.0), 1.4, 0.1);
    EXPECT_NEAR(width(48, 1.0), 3.6, 0.1) << "1.8 of 24 units";
    EXPECT_NEAR(width(32, 2.0), 2.8, 0.1) << "the least width is in device-independent pixels";
    EXPECT_NEAR(width(96, 2.0), 7.2, 0.1) << "same pixels, other scale: no rendering is taken for another";
    EXPECT_NEAR(width(96, 1.0), 7.2, 0.1);
}

TEST_F(IconsTest, StandsOnTheGridOfThePixelsWhereverItIsPut) {
    const QImage straight = painted(Icon::Lock, 22, Qt::white, 1.0, 4);
    for (const QPointF off : {QPointF(0.3, -0.4), QPointF(-0.45, 0.2)}) {
        QImage image(straight.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(off);
        paintIcon(painter, Icon::Lock, {4.0, 4.0, 22.0, 22.0}, Qt::white);
        painter.end();
        EXPECT_EQ(image, straight) << off.x() << ", " << off.y();
    }
    // Wider than high: centred, as large as the shorter side.
    QImage wide(62, 22, QImage::Format_ARGB32_Premultiplied);
    wide.fill(Qt::transparent);
    QPainter painter(&wide);
    paintIcon(painter, Icon::Lock, wide.rect(), Qt::white);
    painter.end();
    EXPECT_EQ(wide.copy(20, 0, 22, 22), straight.copy(4, 4, 22, 22));
}

} // namespace
} // namespace zpsg::ui::test
