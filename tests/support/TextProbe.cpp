#include "support/TextProbe.h"

#include <QAbstractScrollArea>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QScrollBar>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace zpsg::test {
namespace {

/// Rounding and the soft edges of letters, pixels.
constexpr qreal kTolerance = 1.25;
/// Between two texts side by side, pixels.
constexpr qreal kApart = 2.0;
constexpr qreal kLeastPixels = 8.0;
/// Far more than any window has.
constexpr qreal kBoundless = 1e6;

const QChar kEllipsis(0x2026);

/// A piece of text as the engine gets it; in the device's coordinates.
struct Item {
    QString text;
    QFont font;
    QPointF base;
    qreal width;
    QRectF ink;
    QRectF clip; ///< of the painter; without limits when it has none
};

class Engine : public QPaintEngine {
public:
    Engine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice * /*device*/) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }
    void updateState(const QPaintEngineState & /*state*/) override {}
    void drawPixmap(const QRectF & /*to*/, const QPixmap & /*pixmap*/, const QRectF & /*from*/) override {}
    void drawImage(const QRectF & /*to*/, const QImage & /*image*/, const QRectF & /*from*/,
                   Qt::ImageConversionFlags /*flags*/) override {}
    void drawPath(const QPainterPath & /*path*/) override {}
    void drawPolygon(const QPointF * /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    using QPaintEngine::drawPolygon;

    void drawTextItem(const QPointF &at, const QTextItem &item) override {
        if (painter()->pen().color().alpha() == 0 || item.text().trimmed().isEmpty()) {
            return;
        }
        const QTransform transform = painter()->deviceTransform();
        // Across by the advances, which the font engine rounds when it is asked for the letters' bounds.
        const QFontMetricsF metrics(item.font());
        const QString text = item.text();
        QRectF ink = metrics.tightBoundingRect(text).translated(at);
        ink.setLeft(at.x() + metrics.leftBearing(text.front()));
        ink.setRight(at.x() + item.width() - metrics.rightBearing(text.back()));
        const QRectF clip = painter()->hasClipping()
                                ? transform.mapRect(painter()->clipBoundingRect())
                                : QRectF(-kBoundless, -kBoundless, 2 * kBoundless, 2 * kBoundless);
        items.push_back(
            {item.text(), item.font(), transform.map(at), item.width(), transform.mapRect(ink), clip});
    }

    std::vector<Item> items;
};

class Device : public QPaintDevice {
public:
    explicit Device(const QWidget &widget) : widget_(widget) {}
    [[nodiscard]] QPaintEngine *paintEngine() const override { return &engine_; }
    [[nodiscard]] const std::vector<Item> &items() const { return engine_.items; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return widget_.width();
        case PdmHeight:
            return widget_.height();
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return widget_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return widget_.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    const QWidget &widget_;
    mutable Engine engine_;
};

/// Digits stand in cells of their own, a word's next word after a space.
bool goesOn(const Item &before, const Item &item) {
    const qreal gap = item.base.x() - before.base.x() - before.width;
    return before.font == item.font && before.clip == item.clip &&
           std::abs(item.base.y() - before.base.y()) < 0.5 && gap > -kTolerance &&
           gap < 0.5 * item.font.pixelSize();
}

std::vector<Item> joined(const std::vector<Item> &items) {
    std::vector<Item> whole;
    for (const Item &item : items) {
        if (whole.empty() || !goesOn(whole.back(), item)) {
            whole.push_back(item);
            continue;
        }
        Item &before = whole.back();
        before.text += item.text;
        before.width = item.base.x() + item.width - before.base.x();
        before.ink |= item.ink;
    }
    return whole;
}

bool inside(const QRectF &outer, const QRectF &inner) {
    return outer.adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance).contains(inner);
}

bool scrolls(const QScrollBar *bar) { return bar != nullptr && bar->maximum() > bar->minimum(); }

/// The limits of a widget and of all above it, without those that can be scrolled over.
struct Limits {
    Limits(const QWidget &widget, const QWidget &root) : hard(root.rect()), soft(root.rect()) {
        for (const QWidget *at = &widget; at != &root; at = at->parentWidget()) {
            const QRectF place(at->mapTo(&root, QPoint(0, 0)), at->size());
            soft &= place;
            QRectF limit = place;
            const auto *area = qobject_cast<const QAbstractScrollArea *>(at->parentWidget());
            if (area != nullptr && area->viewport() == at) {
                if (scrolls(area->verticalScrollBar())) {
                    limit.adjust(0.0, -kBoundless, 0.0, kBoundless);
                }
                if (scrolls(area->horizontalScrollBar())) {
                    limit.adjust(-kBoundless, 0.0, kBoundless, 0.0);
                }
                scrollable = scrollable || limit != place;
            }
            if (!scrollable) {
                hard &= limit;
            }
        }
    }
    QRectF hard;
    QRectF soft; ///< with them
    bool scrollable = false;
};

/// What can be asked of a widget that shows text.
QString wholeText(const QWidget &widget) {
    QStringList texts{widget.accessibleName()};
    for (const char *property : {"text", "currentText", "placeholderText", "title"}) {
        texts << widget.property(property).toString();
    }
    return texts.join(QLatin1Char('\n'));
}

QString named(const PaintedText &text) {
    const auto place = [](const QRectF &rect) {
        const auto number = [](qreal value) { return QString::number(value, 'f', 1); };
        return QStringLiteral("%1,%2 %3x%4")
            .arg(number(rect.x()), number(rect.y()), number(rect.width()), number(rect.height()));
    };
    QString owner = QString::fromLatin1(text.widget->metaObject()->className());
    if (!text.widget->objectName().isEmpty()) {
        owner += QLatin1Char('#') + text.widget->objectName();
    }
    return QStringLiteral("\"%1\" of %2 at %3 within %4")
        .arg(text.text, owner, place(text.ink), place(text.clip));
}

/// Whether `upper` is within a widget that hides all that `lower` is within, as a pop-up's cover does.
bool hides(const QWidget &upper, const QWidget &lower) {
    const QWidget *cover = &upper;
    while (cover != nullptr && cover->parentWidget() != nullptr &&
           !cover->parentWidget()->isAncestorOf(&lower)) {
        cover = cover->parentWidget();
    }
    if (cover == nullptr || cover == &lower || cover->isAncestorOf(&lower) ||
        cover->parentWidget() == nullptr || cover->parentWidget() == &lower) {
        return false;
    }
    const QWidget *covered = &lower;
    while (covered->parentWidget() != cover->parentWidget()) {
        covered = covered->parentWidget();
    }
    const QObjectList &siblings = cover->parentWidget()->children();
    return siblings.indexOf(const_cast<QWidget *>(cover)) >
               siblings.indexOf(const_cast<QWidget *>(covered)) &&
           cover->geometry().contains(covered->geometry());
}

/// Side by side as well, when nothing tells where the one ends and the other begins.
bool overlap(const PaintedText &a, const PaintedText &b) {
    const QRectF letters = a.ink.intersected(a.clip).adjusted(-kApart, 0.0, kApart, 0.0);
    const QRectF common = letters & b.ink.intersected(b.clip);
    if (common.width() <= kTolerance || common.height() <= kTolerance) {
        return false;
    }
    const bool outlined = a.widget == b.widget && a.text == b.text;
    return !outlined && !hides(*a.widget, *b.widget) && !hides(*b.widget, *a.widget);
}

} // namespace

TextProbe::TextProbe(QWidget &root) : root_(root) {
    collect(root);
    for (QWidget *widget : root.findChildren<QWidget *>()) {
        if (!widget->isWindow() && widget->isVisible()) {
            collect(*widget);
        }
    }
}

void TextProbe::collect(QWidget &widget) {
    const Limits limits(widget, root_);
    Device device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    const QPointF place = widget.mapTo(&root_, QPoint(0, 0));
    for (const Item &item : joined(device.items())) {
        const QRectF ink = item.ink.translated(place);
        if (limits.scrollable && !inside(limits.soft, ink)) {
            continue;
        }
        texts_.push_back({item.text, &widget, ink, limits.hard & item.clip.translated(place),
                          static_cast<qreal>(QFontInfo(item.font).pixelSize())});
    }
}

QStringList TextProbe::faults(const QStringList &names) const {
    QStringList faults;
    for (auto text = texts_.begin(); text != texts_.end(); ++text) {
        if (!inside(text->clip, text->ink)) {
            faults << QStringLiteral("cut off: ") + named(*text);
        }
        if (text->text.contains(kEllipsis) && !wholeText(*text->widget).contains(text->text) &&
            !names.contains(text->widget->objectName())) {
            faults << QStringLiteral("elided: ") + named(*text);
        }
        if (text->pixels < kLeastPixels) {
            faults << QStringLiteral("too small: ") + named(*text);
        }
        for (auto other = texts_.begin(); other != text; ++other) {
            if (overlap(*text, *other)) {
                faults << QStringLiteral("overlap: ") + named(*text) + QStringLiteral(" and ") +
                              named(*other);
            }
        }
    }
    return faults;
}

} // namespace zpsg::test
