#include "ui/TitleBar.h"

#include "ui/Style.h"
#include "ui/TitleButton.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

namespace zpsg::ui {
namespace {

constexpr int kHeight = 44;
constexpr int kIconSide = 22;

} // namespace

TitleBar::TitleBar(QWidget *parent)
    : QWidget(parent)
    , icon_(new QLabel(this))
    , title_(new QLabel(this))
    , version_(new QLabel(this))
    , minimise_(new TitleButton(Icon::Minimise, style::tone(qRgba(255, 255, 255, 34)), this))
    , close_(new TitleButton(Icon::Close, QColor(200, 52, 52), this)) {
    version_->setProperty("tone", QStringLiteral("tertiary"));
    minimise_->setObjectName(QStringLiteral("Min_Window"));
    close_->setObjectName(QStringLiteral("Close_Window"));

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(icon_);
    layout->addWidget(title_);
    layout->addStretch(1);
    layout->addWidget(version_);
    layout->addWidget(minimise_);
    layout->addWidget(close_);

    connect(minimise_, &QAbstractButton::clicked, this, &TitleBar::minimiseReleased);
    connect(close_, &QAbstractButton::clicked, this, &TitleBar::closeReleased);
    if (parent != nullptr) {
        parent->installEventFilter(this);
    }
    retranslate();
    applyScale();
}

void TitleBar::applyScale() {
    const qreal scale = style::windowScale(*this);
    if (scale == scale_) {
        return;
    }
    scale_ = scale;
    setFixedHeight(qRound(kHeight * scale));
    title_->setFont(style::font(style::type::kTitle * scale, QFont::DemiBold));
    version_->setFont(style::font(style::type::kSmall * scale));
    layout()->setContentsMargins(qRound(style::space::kL * scale), 0, qRound(style::space::kS * scale), 0);
    layout()->setSpacing(qRound(style::space::kS * scale));
    minimise_->updateGeometry();
    close_->updateGeometry();
    takeWindowIcon();
}

void TitleBar::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    applyScale();
}

// The scale may change with the window's height alone, of which the bar itself is not told.
bool TitleBar::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        applyScale();
    }
    return QWidget::eventFilter(watched, event);
}

void TitleBar::setVersionText(const QString &text) { version_->setText(text.trimmed()); }

void TitleBar::setTrayAvailable(bool available) {
    if (available != trayAvailable_) {
        trayAvailable_ = available;
        retranslate();
    }
}

void TitleBar::retranslate() {
    title_->setText(qtTrId("TRAYICON_NAME"));
    minimise_->setToolTip(qtTrId("MAIN_STR_MINIMISE"));
    minimise_->setAccessibleName(qtTrId("MAIN_STR_MINIMISE"));
    const QString closing =
        trayAvailable_ ? qtTrId("MAIN_STR_CLOSE_TO_TRAY") : qtTrId("MAIN_STR_CLOSE_MINIMISES");
    close_->setToolTip(closing);
    close_->setAccessibleName(closing);
}

void TitleBar::takeWindowIcon() {
    const int side = qRound(kIconSide * scale_);
    const QPixmap pixmap = window()->windowIcon().pixmap(window()->windowHandle(), QSize(side, side));
    icon_->setPixmap(pixmap);
    icon_->setVisible(!pixmap.isNull());
}

void TitleBar::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    takeWindowIcon();
}

void TitleBar::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void TitleBar::mousePressEvent(QMouseEvent *event) {
    pressed_ = event->button() == Qt::LeftButton;
    pressedAt_ = event->pos();
}

void TitleBar::mouseMoveEvent(QMouseEvent *event) {
    if (!pressed_ || (event->pos() - pressedAt_).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    pressed_ = false;
    if (QWindow *handle = window()->windowHandle()) {
        handle->startSystemMove();
    }
}

void TitleBar::mouseReleaseEvent(QMouseEvent * /*event*/) { pressed_ = false; }

void TitleBar::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

} // namespace zpsg::ui
