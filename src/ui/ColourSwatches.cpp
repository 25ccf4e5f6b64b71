#include "ui/ColourSwatches.h"

#include "ui/Icons.h"
#include "ui/Style.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

/// Two rows, in a window of the usual size.
constexpr std::size_t kColumns = 7;
constexpr qreal kLeastSide = 30.0;
constexpr qreal kMostSide = 42.0;
/// In shares of the side.
constexpr qreal kGap = 0.07;

struct Preset {
    QRgb rgb;
    const char *textKey;
};
constexpr std::array<Preset, kSwatches> kPresets{{
    {qRgb(255, 0, 0), QT_TRID_NOOP("COLOUR_RED")},
    {qRgb(255, 127, 0), QT_TRID_NOOP("COLOUR_ORANGE")},
    {qRgb(255, 255, 0), QT_TRID_NOOP("COLOUR_YELLOW")},
    {qRgb(127, 255, 0), QT_TRID_NOOP("COLOUR_LIME")},
    {qRgb(0, 255, 0), QT_TRID_NOOP("COLOUR_GREEN")},
    {qRgb(0, 255, 127), QT_TRID_NOOP("COLOUR_MINT")},
    {qRgb(0, 255, 255), QT_TRID_NOOP("COLOUR_CYAN")},
    {qRgb(0, 127, 255), QT_TRID_NOOP("COLOUR_AZURE")},
    {qRgb(0, 0, 255), QT_TRID_NOOP("COLOUR_BLUE")},
    {qRgb(127, 0, 255), QT_TRID_NOOP("COLOUR_VIOLET")},
    {qRgb(255, 0, 255), QT_TRID_NOOP("COLOUR_MAGENTA")},
    {qRgb(255, 0, 127), QT_TRID_NOOP("COLOUR_ROSE")},
    {qRgb(255, 255, 255), QT_TRID_NOOP("COLOUR_WHITE")},
}};

} // namespace

class ColourSwatches::Swatch : public QAbstractButton {
public:
    Swatch(std::size_t place, ColourSwatches *parent)
        : QAbstractButton(parent), swatches_(parent), place_(place), colour_(kPresets.at(place).rgb) {
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(place == 0 ? Qt::TabFocus : Qt::NoFocus);
    }

    [[nodiscard]] QColor colour() const { return colour_; }

    void retranslate() {
        const QString name = qtTrId(kPresets.at(place_).textKey);
        setAccessibleName(name);
        setToolTip(name);
    }

protected:
    /// What is marked follows from the colour alone.
    void nextCheckState() override {}

    void keyPressEvent(QKeyEvent *event) override {
        switch (event->key()) {
        case Qt::Key_Left:
            swatches_->moveFocus(place_, -1);
            break;
        case Qt::Key_Right:
            swatches_->moveFocus(place_, 1);
            break;
        case Qt::Key_Up:
            swatches_->moveFocus(place_, -static_cast<int>(kColumns));
            break;
        case Qt::Key_Down:
            swatches_->moveFocus(place_, static_cast<int>(kColumns));
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            break;
        default:
            QAbstractButton::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF face = QRectF(rect()).adjusted(3.0, 3.0, -3.0, -3.0);
        const qreal radius = 5.0 * scale;
        painter.setOpacity(isEnabled() ? 1.0 : 0.25);
        painter.setPen(
            QPen(style::tone(underMouse() ? style::colour::kText : style::colour::kCardEdge), 1.0));
        painter.setBrush(colour_);
        painter.drawRoundedRect(face, radius, radius);
        if (isChecked()) {
            const qreal inset = 0.2 * face.width();
            // Black or white, whichever is seen on it.
            const bool light = qGray(colour_.rgb()) > 110;
            paintIcon(painter, Icon::Tick, face.adjusted(inset, inset, -inset, -inset),
                      light ? Qt::black : Qt::white);
        }
        if (hasFocus()) {
            painter.setPen(QPen(style::tone(style::colour::kAccent), 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), radius + 2.0,
                                    radius + 2.0);
        }
    }

private:
    ColourSwatches *swatches_;
    std::size_t place_;
    QColor colour_;
};

ColourSwatches::ColourSwatches(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (std::size_t place = 0; place < kSwatches; ++place) {
        auto *swatch = new Swatch(place, this);
        swatches_.at(place) = swatch;
        connect(swatch, &QAbstractButton::clicked, this,
                [this, swatch] { emit colourPicked(swatch->colour()); });
    }
    fitTo(0);
    retranslate();
}

void ColourSwatches::setColour(const QColor &colour) {
    for (Swatch *swatch : swatches_) {
        swatch->setChecked(swatch->colour().rgb() == colour.rgb());
    }
}

void ColourSwatches::retranslate() {
    setAccessibleName(qtTrId("LIGHTING_SWATCHES"));
    for (Swatch *swatch : swatches_) {
        swatch->retranslate();
    }
}

QSize ColourSwatches::sizeHint() const {
    const qreal gap = kGap * side_;
    return QSizeF(kColumns * side_ - gap, 2.0 * side_ - gap).toSize();
}

void ColourSwatches::fitTo(int width) {
    const qreal scale = style::windowScale(*this);
    const qreal side = std::clamp((width + kGap * side_) / kColumns, kLeastSide * scale, kMostSide * scale);
    if (side != side_) {
        side_ = side;
        updateGeometry();
    }
}

void ColourSwatches::moveFocus(std::size_t from, int by) {
    const int to = static_cast<int>(from) + by;
    if (to < 0 || to >= static_cast<int>(kSwatches)) {
        return;
    }
    swatches_.at(from)->setFocusPolicy(Qt::NoFocus);
    Swatch *next = swatches_.at(static_cast<std::size_t>(to));
    next->setFocusPolicy(Qt::TabFocus);
    next->setFocus();
}

void ColourSwatches::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const int face = qRound(side_ * (1.0 - kGap));
    for (std::size_t place = 0; place < kSwatches; ++place) {
        const auto column = static_cast<qreal>(place % kColumns);
        const auto row = std::floor(static_cast<qreal>(place) / kColumns);
        swatches_.at(place)->setGeometry(qRound(column * side_), qRound(row * side_), face, face);
    }
}

} // namespace zpsg::ui
