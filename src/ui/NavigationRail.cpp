#include "ui/NavigationRail.h"

#include "ui/Figures.h"
#include "ui/Style.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr int kWidth = 76;
constexpr int kButtonHeight = 60;
constexpr qreal kIconSide = 22.0;
constexpr qreal kIconTop = 10.0;
constexpr qreal kLabelTop = 36.0;
constexpr qreal kDotRadius = 5.0;

/// Ctrl and the figure, 1 for the first page.
QKeySequence shortcutOf(int page) { return {static_cast<int>(Qt::CTRL) | (Qt::Key_1 + page)}; }

} // namespace

class NavigationRail::Button : public QAbstractButton {
public:
    Button(Icon icon, const char *textKey, int page, QWidget *parent)
        : QAbstractButton(parent), icon_(icon), textKey_(textKey), page_(page) {
        setCheckable(true);
        setAutoExclusive(true); // the arrow keys go from one to the next
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::NoFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        retranslate();
    }

    void setBadge(int count) {
        if (count != badge_) {
            badge_ = count;
            retranslate();
            update();
        }
    }

    void setNotice(const char *textKey) {
        if (textKey != noticeKey_) {
            noticeKey_ = textKey;
            retranslate();
            update();
        }
    }

    void retranslate() {
        const QString name = qtTrId(textKey_);
        setText(name);
        setAccessibleName(badge_ > 0              ? qtTrId("NAV_BADGE").arg(name).arg(badge_)
                          : noticeKey_ != nullptr ? qtTrId(noticeKey_).arg(name)
                                                  : name);
        setToolTip(QStringLiteral("%1 (%2)").arg(accessibleName(),
                                                 shortcutOf(page_).toString(QKeySequence::NativeText)));
    }

    [[nodiscard]] QSize sizeHint() const override {
        return (QSizeF(kWidth, kButtonHeight) * style::windowScale(*this)).toSize();
    }

protected:
    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
            return;
        }
        QAbstractButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent * /*event*/) override {
        const qreal scale = style::windowScale(*this);
        const bool lit = isChecked() || underMouse() || isDown();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSurface(painter, scale);
        const QColor ink = style::tone(lit ? colour::kText : colour::kTextSecondary);
        const QRectF sign((width() - kIconSide * scale) / 2.0, kIconTop * scale, kIconSide * scale,
                          kIconSide * scale);
        paintIcon(painter, icon_, sign, isChecked() ? style::tone(colour::kAccent) : ink);

        const QRectF label(0.0, kLabelTop * scale, width(), style::type::kSmall * 1.5 * scale);
        painter.setPen(ink);
        painter.setFont(fittingFont(style::font(style::type::kSmall * scale, QFont::Medium), text(),
                                    width() - 10.0 * scale));
        painter.drawText(label, Qt::AlignCenter, text());
        if (badge_ > 0) {
            paintBadge(painter, scale, sign.topRight());
        } else if (noticeKey_ != nullptr) {
            paintDot(painter, scale, sign.topRight());
        }
    }

private:
    void paintSurface(QPainter &painter, qreal scale) const {
        const qreal margin = 5.0 * scale;
        const QRectF surface = QRectF(rect()).adjusted(margin, 2.0, -margin, -2.0);
        const qreal radius = 8.0 * scale;
        qreal fill = isChecked() ? 0.09 : 0.0;
        if (isDown() || underMouse()) {
            fill += isDown() ? 0.03 : 0.06;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(style::tone(colour::kText, fill));
        painter.drawRoundedRect(surface, radius, radius);
        if (isChecked()) {
            const qreal length = 24.0 * scale;
            const QRectF bar(0.0, surface.center().y() - length / 2.0, 3.0 * scale, length);
            painter.setBrush(style::tone(colour::kAccent));
            painter.drawRoundedRect(bar, 1.5 * scale, 1.5 * scale);
        }
        if (hasFocus()) {
            painter.setPen(QPen(style::tone(colour::kAccent), 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(surface.adjusted(0.75, 0.75, -0.75, -0.75), radius, radius);
        }
    }

    void paintBadge(QPainter &painter, qreal scale, const QPointF &at) const {
        const QString figure = badge_ > 9 ? QStringLiteral("9+") : QString::number(badge_);
        const FigureFont font(style::font(10.0 * scale, QFont::Bold));
        const qreal height = 15.0 * scale;
        const qreal width = std::max(height, font.width(figure) + 7.0 * scale);
        QRectF disc(0.0, 0.0, width, height);
        disc.moveCenter(at + QPointF(1.0, 3.0) * scale);
        painter.setPen(QPen(style::tone(colour::kWindowTop), 2.0 * scale));
        painter.setBrush(style::tone(colour::kDanger));
        painter.drawRoundedRect(disc, height / 2.0, height / 2.0);
        painter.setPen(style::tone(colour::kWindowBottom));
        font.drawCentred(painter, disc.center() + QPointF(0.0, font.digitHeight() / 2.0), figure);
    }

    static void paintDot(QPainter &painter, qreal scale, const QPointF &at) {
        const qreal radius = kDotRadius * scale;
        painter.setPen(QPen(style::tone(colour::kWindowTop), 2.0 * scale));
        painter.setBrush(style::tone(colour::kAccent));
        painter.drawEllipse(at + QPointF(0.0, 2.0) * scale, radius, radius);
    }

    Icon icon_;
    const char *textKey_;
    int page_;
    int badge_ = 0;
    const char *noticeKey_ = nullptr;
};

NavigationRail::NavigationRail(QWidget *parent) : QWidget(parent), layout_(new QVBoxLayout(this)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    layout_->addStretch(1);
}

QSize NavigationRail::sizeHint() const {
    const int rows = static_cast<int>(buttons_.size());
    return (QSizeF(kWidth, kButtonHeight * rows) * style::windowScale(*this)).toSize();
}

int NavigationRail::addPage(Icon icon, const char *textKey) {
    const int page = static_cast<int>(buttons_.size());
    auto *button = new Button(icon, textKey, page, this);
    buttons_.push_back(button);
    layout_->insertWidget(page, button);
    connect(button, &QAbstractButton::clicked, this, [this, page] { choose(page); });
    auto *shortcut = new QShortcut(shortcutOf(page), this);
    connect(shortcut, &QShortcut::activated, this, [this, page] { choose(page); });
    if (page == 0) {
        setCurrent(page);
    }
    return page;
}

void NavigationRail::setCurrent(int page) {
    current_ = page;
    Button *current = buttons_.at(static_cast<std::size_t>(page));
    current->setChecked(true);
    for (Button *button : buttons_) {
        // Tab leads to the current page's; a group sees to that only once one of it has the focus.
        button->setFocusPolicy(button == current ? Qt::TabFocus : Qt::NoFocus);
    }
}

void NavigationRail::setBadge(int page, int count) {
    buttons_.at(static_cast<std::size_t>(page))->setBadge(count);
}

void NavigationRail::setNotice(int page, const char *textKey) {
    buttons_.at(static_cast<std::size_t>(page))->setNotice(textKey);
}

void NavigationRail::choose(int page) {
    if (page != current_) {
        setCurrent(page);
        emit pageChosen(page);
    }
}

void NavigationRail::fitToWindow() {
    const qreal scale = style::windowScale(*this);
    if (scale != scale_) {
        scale_ = scale;
        updateGeometry();
        for (Button *button : buttons_) {
            button->updateGeometry();
        }
    }
}

void NavigationRail::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        for (Button *button : buttons_) {
            button->retranslate();
        }
    }
}

} // namespace zpsg::ui
