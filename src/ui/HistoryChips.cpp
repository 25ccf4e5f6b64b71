#include "ui/HistoryChips.h"

#include "ui/Style.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kHeight = 24.0;
constexpr qreal kSample = 22.0;
constexpr qreal kPadding = 9.0;
constexpr qreal kGap = 6.0;

} // namespace

/// A check box, for what it is to the keyboard and to assistive programs; nothing of its looks.
class HistoryChips::Chip : public QCheckBox {
public:
    Chip(HistoryQuantity quantity, QWidget *parent) : QCheckBox(parent), quantity_(quantity) {
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    void retranslate() {
        setText(nameOf(quantity_));
        setAccessibleName(QStringLiteral("%1 (%2)").arg(text(), unitOf(quantity_)));
        setToolTip(qtTrId("HISTORY_CHIPS_HINT"));
        updateGeometry();
    }

    void showUnit(bool shown) {
        unitShown_ = shown;
        updateGeometry();
        update();
    }

    [[nodiscard]] QSize sizeHint() const override {
        const qreal scale = style::windowScale(*this);
        const QFontMetricsF metrics(textFont());
        qreal words = metrics.horizontalAdvance(text());
        if (unitShown_) {
            words +=
                metrics.horizontalAdvance(QLatin1Char(' ')) + metrics.horizontalAdvance(unitOf(quantity_));
        }
        return {qRound(words + (kSample + kGap + 2.0 * kPadding) * scale), qRound(kHeight * scale)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint &at) const override { return rect().contains(at); }

    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
            return;
        }
        QCheckBox::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        const QColor ink = isChecked() ? inkOf(quantity_) : style::tone(colour::kTextTertiary);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF face = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
        QColor edge = isChecked() ? ink : style::tone(colour::kText, 0.14);
        edge.setAlphaF(isChecked() ? 0.7 : edge.alphaF());
        painter.setPen(QPen(hasFocus() ? style::tone(colour::kAccent) : edge, hasFocus() ? 1.5 : 1.0));
        const qreal fill = (isChecked() ? 0.11 : 0.0) + (underMouse() ? 0.06 : 0.0);
        painter.setBrush(style::tone(colour::kText, fill));
        painter.drawRoundedRect(face, face.height() / 2.0, face.height() / 2.0);

        QRectF sample(kPadding * scale, 0.0, kSample * scale, 9.0 * scale);
        sample.moveCenter({sample.center().x(), height() / 2.0});
        drawSample(painter, quantity_, curvesOf(quantity_).front(), sample, ink);
        painter.setFont(textFont());
        QRectF words(sample.right() + kGap * scale, 0.0, width(), height());
        painter.setPen(style::tone(isChecked() || underMouse() ? colour::kText : colour::kTextSecondary));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, text());
        if (!unitShown_) {
            return;
        }
        words.setLeft(words.left() + QFontMetricsF(textFont()).horizontalAdvance(text() + QLatin1Char(' ')));
        painter.setPen(style::tone(isChecked() ? colour::kTextSecondary : colour::kTextTertiary));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, unitOf(quantity_));
    }

private:
    [[nodiscard]] QFont textFont() const {
        return style::font(style::type::kLabel * style::windowScale(*this), QFont::Medium);
    }

    HistoryQuantity quantity_;
    bool unitShown_ = true;
};

HistoryChips::HistoryChips(QWidget *parent) : QWidget(parent), on_{HistoryQuantity::Power} {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const HistoryQuantity quantity : kHistoryQuantities) {
        auto *chip = new Chip(quantity, this);
        chips_.at(static_cast<std::size_t>(quantity)) = chip;
        chip->setChecked(quantity == on_.front());
        layout->addWidget(chip);
        connect(chip, &QCheckBox::clicked, this, [this, quantity] { toggle(quantity); });
    }
    layout->addStretch(1);
    retranslate();
}

std::vector<HistoryQuantity> HistoryChips::shown() const {
    std::vector<HistoryQuantity> shown = on_;
    std::sort(shown.begin(), shown.end());
    return shown;
}

void HistoryChips::toggle(HistoryQuantity quantity) {
    const auto at = std::find(on_.begin(), on_.end(), quantity);
    if (at == on_.end()) {
        if (on_.size() == 2) {
            on_.erase(on_.begin());
        }
        on_.push_back(quantity);
    } else if (on_.size() > 1) {
        on_.erase(at);
    }
    for (const HistoryQuantity each : kHistoryQuantities) {
        chips_.at(static_cast<std::size_t>(each))
            ->setChecked(std::find(on_.begin(), on_.end(), each) != on_.end());
    }
    emit changed();
}

void HistoryChips::retranslate() {
    for (Chip *chip : chips_) {
        chip->retranslate();
    }
}

void HistoryChips::applyScale(int room) {
    layout()->setSpacing(qRound(style::space::kS * style::windowScale(*this)));
    for (const bool units : {true, false}) {
        for (Chip *chip : chips_) {
            chip->showUnit(units);
        }
        layout()->invalidate();
        if (layout()->sizeHint().width() <= room) {
            return;
        }
    }
}

QSize HistoryChips::sizeHint() const { return layout()->sizeHint(); }

} // namespace zpsg::ui
