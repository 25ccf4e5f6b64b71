#include "ui/SettingsSectionList.h"

#include "ui/Style.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kHeight = 34.0;
constexpr qreal kTextLeft = 14.0;
constexpr qreal kTextRight = 20.0; ///< with the mark
constexpr qreal kLeastWidth = 132.0;

} // namespace

class SettingsSectionList::Item : public QAbstractButton {
public:
    Item(const char *key, QWidget *parent) : QAbstractButton(parent), key_(key) {
        setCheckable(true);
        setAutoExclusive(true); // the arrow keys go from one to the next
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::NoFocus);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    void setMarked(bool marked) {
        marked_ = marked;
        retranslate();
        update();
    }

    void retranslate() {
        setText(qtTrId(key_));
        setAccessibleName(text());
        setAccessibleDescription(marked_ ? qtTrId("SETTING_STR_UNSAVED") : QString());
        setToolTip(accessibleDescription());
    }

    [[nodiscard]] QSize sizeHint() const override {
        const qreal scale = style::windowScale(*this);
        // As wide as the bold text needs, so that choosing moves nothing.
        const qreal words = QFontMetricsF(textFont(true)).horizontalAdvance(text());
        return QSizeF(std::max(kLeastWidth * scale, words + (kTextLeft + kTextRight) * scale),
                      kHeight * scale)
            .toSize();
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent *event) override {
        auto *list = static_cast<SettingsSectionList *>(parentWidget());
        switch (event->key()) {
        case Qt::Key_Home:
            list->items_.front()->click();
            list->takeFocus();
            return;
        case Qt::Key_End:
            list->items_.back()->click();
            list->takeFocus();
            return;
        default:
            QAbstractButton::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        const qreal radius = 8.0 * scale;
        const bool lit = isChecked() || underMouse() || isDown();
        const QRectF surface = QRectF(rect()).adjusted(0.0, 1.0, 0.0, -1.0);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(
            style::tone(colour::kText, (isChecked() ? 0.09 : 0.0) + (underMouse() ? 0.05 : 0.0)));
        painter.drawRoundedRect(surface, radius, radius);
        if (isChecked()) {
            const qreal length = 16.0 * scale;
            const QRectF bar(2.0 * scale, surface.center().y() - length / 2.0, 3.0 * scale, length);
            painter.setBrush(style::tone(colour::kAccent));
            painter.drawRoundedRect(bar, 1.5 * scale, 1.5 * scale);
        }
        if (marked_) {
            painter.setBrush(style::tone(colour::kAccent));
            painter.drawEllipse(QPointF(width() - 10.0 * scale, surface.center().y()), 3.0 * scale,
                                3.0 * scale);
        }
        if (hasFocus()) {
            painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(surface.adjusted(0.75, 0.75, -0.75, -0.75), radius, radius);
        }
        painter.setPen(style::tone(lit ? colour::kText : colour::kTextSecondary));
        painter.setFont(textFont(isChecked()));
        painter.drawText(surface.adjusted(kTextLeft * scale, 0.0, 0.0, 0.0), Qt::AlignLeft | Qt::AlignVCenter,
                         text());
    }

private:
    [[nodiscard]] QFont textFont(bool bold) const {
        return style::font(style::type::kBody * style::windowScale(*this),
                           bold ? QFont::DemiBold : QFont::Medium);
    }

    const char *key_;
    bool marked_ = false;
};

SettingsSectionList::SettingsSectionList(const std::vector<const char *> &keys, QWidget *parent)
    : QWidget(parent) {
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const char *key : keys) {
        auto *item = new Item(key, this);
        const int section = static_cast<int>(items_.size());
        items_.push_back(item);
        column->addWidget(item);
        connect(item, &QAbstractButton::clicked, this, [this, section] { choose(section); });
    }
    column->addStretch(1);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setCurrent(0);
}

void SettingsSectionList::setCurrent(int section) {
    current_ = section;
    Item *chosen = items_.at(static_cast<std::size_t>(section));
    chosen->setChecked(true);
    for (Item *item : items_) {
        // Tab leads to the chosen one; a group sees to that only once one of it has the focus.
        item->setFocusPolicy(item == chosen ? Qt::StrongFocus : Qt::NoFocus);
    }
}

void SettingsSectionList::choose(int section) {
    if (section != current_) {
        setCurrent(section);
        emit sectionChosen(section);
    }
}

void SettingsSectionList::setMarked(int section, bool marked) {
    items_.at(static_cast<std::size_t>(section))->setMarked(marked);
}

void SettingsSectionList::takeFocus() {
    items_.at(static_cast<std::size_t>(current_))->setFocus(Qt::OtherFocusReason);
}

void SettingsSectionList::retranslate() {
    setAccessibleName(qtTrId("SETTING_STR_SECTIONS"));
    for (Item *item : items_) {
        item->retranslate();
    }
}

void SettingsSectionList::applyScale(qreal scale) {
    layout()->setSpacing(qRound(2.0 * scale));
    for (Item *item : items_) {
        item->updateGeometry();
    }
    updateGeometry();
}

} // namespace zpsg::ui
