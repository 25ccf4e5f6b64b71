#include "ui/ElectricityRateDays.h"

#include "power/Tariff.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// In a window of the usual size, pixels.
constexpr qreal kWidth = 32.0;
constexpr qreal kHeight = 26.0;
constexpr qreal kGap = 2.0;

class DayButton final : public QAbstractButton {
public:
    explicit DayButton(QWidget *parent) : QAbstractButton(parent) {
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF face = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
        const qreal radius = 5.0 * scale;
        const bool on = isChecked();
        QPen edge(style::tone(colour::kText, underMouse() ? 0.4 : on ? 0.2 : 0.14), 1.0);
        if (hasFocus()) {
            edge = QPen(style::tone(colour::kAccent), 1.5);
        }
        painter.setPen(edge);
        painter.setBrush(on ? style::tone(colour::kAccentDeep) : style::tone(colour::kText, 0.03));
        painter.drawRoundedRect(face, radius, radius);
        // The line above the name tells the chosen days from the others without their colour.
        if (on) {
            painter.fillRect(QRectF(face.left() + radius, face.top() + 2.0 * scale,
                                    face.width() - 2.0 * radius, 1.5 * scale),
                             style::tone(colour::kText));
        }
        painter.setPen(style::tone(on ? colour::kText : colour::kTextTertiary));
        painter.setFont(
            fittingFont(style::font(style::type::kSmall * scale, on ? QFont::DemiBold : QFont::Normal),
                        text(), face.width() - 4.0 * scale));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

} // namespace

std::array<int, 7> daysInOrder() {
    std::array<int, 7> days{};
    int day = QLocale().firstDayOfWeek();
    for (int &each : days) {
        each = day;
        day = day % 7 + 1;
    }
    return days;
}

ElectricityRateDays::ElectricityRateDays(QWidget *parent) : QWidget(parent) {
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QAbstractButton *&button : buttons_) {
        button = new DayButton(this);
        button->setFocusPolicy(button == buttons_.front() ? Qt::StrongFocus : Qt::ClickFocus);
        button->installEventFilter(this);
        row->addWidget(button);
        connect(button, &QAbstractButton::toggled, this, &ElectricityRateDays::changed);
    }
    setFocusProxy(buttons_.front());
}

void ElectricityRateDays::setDays(unsigned days) {
    const auto order = daysInOrder();
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_.at(i)->setChecked((days & power::dayBit(order.at(i))) != 0U);
    }
}

unsigned ElectricityRateDays::days() const {
    const auto order = daysInOrder();
    unsigned days = 0;
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        days |= buttons_.at(i)->isChecked() ? power::dayBit(order.at(i)) : 0U;
    }
    return days;
}

void ElectricityRateDays::retranslate(const QString &name) {
    setAccessibleName(name);
    const QLocale locale;
    const auto order = daysInOrder();
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const QString day = locale.standaloneDayName(order.at(i), QLocale::LongFormat);
        buttons_.at(i)->setText(locale.standaloneDayName(order.at(i), QLocale::ShortFormat));
        buttons_.at(i)->setAccessibleName(QStringLiteral("%1: %2").arg(name, day));
        buttons_.at(i)->setToolTip(day);
    }
}

void ElectricityRateDays::applyScale(qreal scale) {
    layout()->setSpacing(qRound(kGap * scale));
    for (QAbstractButton *button : buttons_) {
        button->setFixedSize((QSizeF(kWidth, kHeight) * scale).toSize());
    }
}

void ElectricityRateDays::focusDay(int index) {
    if (index >= 0 && index < static_cast<int>(buttons_.size())) {
        buttons_.at(static_cast<std::size_t>(index))->setFocus(Qt::TabFocusReason);
    }
}

bool ElectricityRateDays::eventFilter(QObject *watched, QEvent *event) {
    const auto *button = std::find(buttons_.begin(), buttons_.end(), watched);
    if (button == buttons_.end()) {
        return QWidget::eventFilter(watched, event);
    }
    const int index = static_cast<int>(button - buttons_.begin());
    if (event->type() == QEvent::FocusIn) {
        // Tab comes back to where it left.
        for (QAbstractButton *each : buttons_) {
            each->setFocusPolicy(each == *button ? Qt::StrongFocus : Qt::ClickFocus);
        }
        setFocusProxy(*button);
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const int step = key == Qt::Key_Left ? -1 : key == Qt::Key_Right ? 1 : 0;
        if (step != 0) {
            focusDay(index + (layoutDirection() == Qt::RightToLeft ? -step : step));
            return true;
        }
        if (key == Qt::Key_Home || key == Qt::Key_End) {
            focusDay(key == Qt::Key_Home ? 0 : static_cast<int>(buttons_.size()) - 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zpsg::ui
