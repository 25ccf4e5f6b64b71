#include "ui/SegmentedControl.h"

#include "ui/Style.h"

#include <QPainter>
#include <QRadioButton>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// Height in a window of the usual size, pixels.
constexpr double kHeight = 24.0;

/// Tab stops at the chosen segment only.
Qt::FocusPolicy policy(bool chosen) { return chosen ? Qt::StrongFocus : Qt::ClickFocus; }

} // namespace

/// A radio button, for its keys and for what it is to assistive programs; nothing of its looks.
class SegmentedControl::Segment : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    [[nodiscard]] QSize sizeHint() const override {
        const qreal scale = style::windowScale(*this);
        // As wide as the bold text needs, so that choosing moves nothing.
        const qreal text = QFontMetricsF(textFont(true)).horizontalAdvance(this->text());
        return {qRound(text + 22.0 * scale), qRound(kHeight * scale)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint &at) const override { return rect().contains(at); }

    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal inset = 2.0 * scale;
        const QRectF face = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        const qreal radius = face.height() / 2.0;
        if (isChecked() || hasFocus()) {
            const QRgb edge = hasFocus() ? colour::kAccent : colour::kText;
            painter.setPen(QPen(style::tone(edge, hasFocus() ? 1.0 : 0.16), hasFocus() ? 1.5 : 1.0));
            painter.setBrush(isChecked() ? style::tone(colour::kText, 0.16) : QColor(Qt::transparent));
            painter.drawRoundedRect(face.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        }
        const bool lit = isChecked() || underMouse();
        painter.setPen(style::tone(!isEnabled() ? colour::kStale
                                   : lit        ? colour::kText
                                                : colour::kTextSecondary));
        painter.setFont(textFont(isChecked()));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    [[nodiscard]] QFont textFont(bool bold) const {
        return style::font(style::type::kLabel * style::windowScale(*this),
                           bold ? QFont::DemiBold : QFont::Medium);
    }
};

SegmentedControl::SegmentedControl(QWidget *parent) : QWidget(parent) {}

void SegmentedControl::setTexts(const QStringList &texts) {
    while (segments_.size() < static_cast<std::size_t>(texts.size())) {
        auto *segment = new Segment(this);
        const int index = static_cast<int>(segments_.size());
        segment->setAttribute(Qt::WA_Hover);
        segment->setChecked(segments_.empty());
        segment->setFocusPolicy(policy(segments_.empty()));
        connect(segment, &QRadioButton::toggled, this, [this, segment, index](bool checked) {
            segment->setFocusPolicy(policy(checked));
            if (checked) {
                emit currentChanged(index);
            }
        });
        segments_.push_back(segment);
    }
    for (int i = 0; i < texts.size(); ++i) {
        Segment &segment = *segments_.at(static_cast<std::size_t>(i));
        segment.setText(texts.at(i));
        segment.setAccessibleName(texts.at(i));
    }
}

QSize SegmentedControl::sizeHint() const {
    QSize sum(0, 0);
    for (const Segment *segment : segments_) {
        const QSize needed = segment->sizeHint();
        sum = QSize(sum.width() + needed.width(), std::max(sum.height(), needed.height()));
    }
    return sum;
}

void SegmentedControl::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    int left = 0;
    for (Segment *segment : segments_) {
        const int wide = segment->sizeHint().width();
        segment->setGeometry(left, 0, wide, height());
        left += wide;
    }
}

int SegmentedControl::current() const {
    const auto checked = std::find_if(segments_.begin(), segments_.end(),
                                      [](const Segment *segment) { return segment->isChecked(); });
    return static_cast<int>(checked - segments_.begin());
}

void SegmentedControl::setCurrent(int index) {
    if (index >= 0 && index < static_cast<int>(segments_.size())) {
        segments_.at(static_cast<std::size_t>(index))->setChecked(true);
    }
}

void SegmentedControl::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::tone(colour::kCardEdge), 1.0));
    painter.setBrush(style::tone(colour::kCard));
    const qreal radius = height() / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace zpsg::ui
