#include "ui/PowerCountdown.h"

#include "ui/Style.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QWindow>

#include <algorithm>
#include <array>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;
using namespace std::chrono_literals;

constexpr int kRingSide = 132;
constexpr qreal kStroke = 7.0;
constexpr int kWordsWidth = 300;
constexpr int kButtonHeight = 40;
constexpr auto kTick = 100ms; // the ring shrinks without a jerk that is seen

struct Texts {
    const char *title;
    const char *doNow;
};

/// By action.
constexpr std::array kTexts{
    Texts{QT_TRID_NOOP("POWER_SHUTDOWN_TITLE"), QT_TRID_NOOP("POWER_SHUTDOWN_NOW")},
    Texts{QT_TRID_NOOP("POWER_RESTART_TITLE"), QT_TRID_NOOP("POWER_RESTART_NOW")},
    Texts{QT_TRID_NOOP("POWER_SLEEP_TITLE"), QT_TRID_NOOP("POWER_SLEEP_NOW")},
};

QPushButton *addButton(QWidget *parent, const char *name) {
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setFont(style::font(style::type::kTitle, QFont::DemiBold));
    button->setCursor(Qt::PointingHandCursor);
    button->setFixedHeight(kButtonHeight);
    button->setAutoDefault(false);
    return button;
}

} // namespace

/// The seconds, in a ring that shrinks.
class CountdownRing final : public QWidget {
public:
    explicit CountdownRing(QWidget *parent) : QWidget(parent) { setFixedSize(kRingSide, kRingSide); }

    void show(int seconds, qreal share) {
        seconds_ = seconds;
        share_ = share;
        setAccessibleName(qtTrId("POWER_SECONDS_LEFT").arg(seconds));
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        const QRectF circle = QRectF(rect()).adjusted(kStroke, kStroke, -kStroke, -kStroke);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(style::tone(colour::kTrack), kStroke));
        painter.drawEllipse(circle);
        painter.setPen(QPen(style::tone(colour::kCaution), kStroke, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(circle, 90 * 16, qRound(share_ * 360.0 * 16.0)); // the end moves clockwise
        painter.setPen(style::tone(colour::kText));
        painter.setFont(style::font(46, QFont::DemiBold));
        painter.drawText(rect().adjusted(0, -8, 0, -8), Qt::AlignCenter, QString::number(seconds_));
        painter.setPen(style::tone(colour::kTextSecondary));
        painter.setFont(style::font(style::type::kLabel));
        painter.drawText(rect().adjusted(0, 58, 0, 0), Qt::AlignCenter, qtTrId("POWER_SECONDS_UNIT"));
    }

private:
    int seconds_ = 0;
    qreal share_ = 0.0;
};

PowerCountdown::PowerCountdown(Action action, Now now)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , action_(action)
    , now_(std::move(now))
    , ring_(new CountdownRing(this))
    , title_(new QLabel(this))
    , words_(new QLabel(this))
    , doNow_(addButton(this, "btnPowerNow"))
    , cancel_(addButton(this, "btnPowerCancel")) {
    // The program goes on in the tray after its last window is closed, so this one must not end it either.
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(style::sheet());
    layOut();
    retranslate();
    connect(doNow_, &QPushButton::clicked, this, &PowerCountdown::accept);
    connect(cancel_, &QPushButton::clicked, this, &PowerCountdown::reject);
    connect(this, &QDialog::finished, &timer_, &QTimer::stop);
    connect(this, &QDialog::accepted, this, &PowerCountdown::confirmed);
    connect(this, &QDialog::rejected, this, &PowerCountdown::cancelled);
    connect(&timer_, &QTimer::timeout, this, &PowerCountdown::tick);
}

void PowerCountdown::layOut() {
    title_->setFont(style::font(20, QFont::DemiBold));
    words_->setFont(style::font(style::type::kBody));
    words_->setProperty("tone", QStringLiteral("secondary"));
    for (QLabel *label : {title_, words_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(kWordsWidth);
    }
    // Who is typing something else when this appears must not agree by accident.
    cancel_->setProperty("primary", true);
    cancel_->setDefault(true);
    cancel_->setFocus();

    auto *texts = new QVBoxLayout;
    texts->setSpacing(style::space::kS);
    texts->addStretch(1);
    texts->addWidget(title_);
    texts->addWidget(words_);
    texts->addStretch(1);
    auto *upper = new QHBoxLayout;
    upper->setSpacing(style::space::kXl);
    upper->addWidget(ring_);
    upper->addLayout(texts);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(style::space::kM);
    buttons->addWidget(doNow_);
    buttons->addWidget(cancel_, 1);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(style::space::kXl, style::space::kXl, style::space::kXl, style::space::kXl);
    all->setSpacing(style::space::kXl);
    all->addLayout(upper);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void PowerCountdown::retranslate() {
    const Texts &texts = kTexts.at(static_cast<std::size_t>(action_));
    const QString title = qtTrId(texts.title);
    setWindowTitle(title);
    title_->setText(title);
    words_->setText(action_ == Action::Sleep ? qtTrId("POWER_WORDS_SLEEP") : qtTrId("POWER_WORDS"));
    doNow_->setText(qtTrId(texts.doNow));
    cancel_->setText(qtTrId("POWER_CANCEL"));
}

void PowerCountdown::begin() {
    end_ = now_() + std::chrono::seconds(kSeconds);
    tick();
    timer_.start(kTick);
    show();
    raise();
    activateWindow();
}

int PowerCountdown::secondsLeft() const {
    const auto left = std::chrono::ceil<std::chrono::seconds>(end_ - now_()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, kSeconds));
}

void PowerCountdown::tick() {
    const std::chrono::duration<qreal> left = end_ - now_();
    ring_->show(secondsLeft(), std::clamp(left.count() / kSeconds, 0.0, 1.0));
    if (left.count() <= 0.0 && isVisible()) {
        accept();
    }
}

void PowerCountdown::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

// It may lie on what the user wants to save.
void PowerCountdown::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr) {
        windowHandle()->startSystemMove();
    }
}

void PowerCountdown::paintEvent(QPaintEvent * /*event*/) {
    QLinearGradient ground(0.0, 0.0, 0.0, height());
    ground.setColorAt(0.0, style::tone(colour::kWindowTop));
    ground.setColorAt(1.0, style::tone(colour::kWindowBottom));
    QPainter painter(this);
    painter.setPen(style::tone(colour::kWindowEdge));
    painter.setBrush(ground);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace zpsg::ui
