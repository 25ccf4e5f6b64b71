#include "ui/ConnectionBanner.h"

#include "psu/SupplyMonitor.h"
#include "ui/Icons.h"
#include "ui/Style.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>

#include <algorithm>
#include <array>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;
using psu::LinkState;

/// How a state presents itself.
struct Look {
    Icon icon;
    QRgb tint;
};

Look lookOf(LinkState state) {
    switch (state) {
    case LinkState::Live:
        return {Icon::Dot, colour::kGood};
    case LinkState::NoPermission:
        return {Icon::Lock, colour::kCaution};
    case LinkState::Silent:
        return {Icon::Warning, colour::kCaution};
    case LinkState::NoDevice:
        break;
    }
    return {Icon::Unplugged, colour::kTextSecondary};
}

QString detailOf(LinkState state, bool withRemedy) {
    switch (state) {
    case LinkState::Live:
        return {};
    case LinkState::NoPermission:
        return withRemedy ? qtTrId("MAIN_STR_LINK_NO_PERMISSION_REMEDY")
                          : qtTrId("MAIN_STR_LINK_NO_PERMISSION_HINT");
    case LinkState::Silent:
        return qtTrId("MAIN_STR_LINK_SILENT_HINT");
    case LinkState::NoDevice:
        break;
    }
    return qtTrId("MAIN_STR_LINK_NO_DEVICE_HINT");
}

/// No supply can be reached, so that a simulated one is worth an offer.
bool isAlone(LinkState state) { return state == LinkState::NoDevice || state == LinkState::NoPermission; }

constexpr int kConfirmMs = 2000;

// In a window of the usual size, device-independent pixels.
constexpr int kHeadPixels = 18; ///< of the model's name, as the titles of the other pages
constexpr qreal kSignSide = 26.0;
constexpr qreal kDotSide = 14.0;
constexpr qreal kSlimHeight = 22.0; ///< of the button that ends the demo, as of the mark beside it

} // namespace

QString linkHeadline(LinkState state) {
    switch (state) {
    case LinkState::Live:
        return qtTrId("MAIN_STR_LINK_LIVE");
    case LinkState::NoPermission:
        return qtTrId("MAIN_STR_LINK_NO_PERMISSION");
    case LinkState::Silent:
        return qtTrId("MAIN_STR_LINK_SILENT");
    case LinkState::NoDevice:
        break;
    }
    return qtTrId("MAIN_STR_LINK_NO_DEVICE");
}

class ConnectionBanner::Sign : public QWidget {
public:
    explicit Sign(QWidget *parent) : QWidget(parent) { setAccessibleName(QString()); }

    void show(const Look &look, qreal side) {
        look_ = look;
        setFixedSize(qRound(side), qRound(side));
        QWidget::update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        paintIcon(painter, look_.icon, rect(), style::tone(look_.tint));
    }

private:
    Look look_{Icon::Unplugged, colour::kTextSecondary};
};

ConnectionBanner::ConnectionBanner(QWidget *parent)
    : QWidget(parent)
    , sign_(new Sign(this))
    , headline_(new QLabel(this))
    , detail_(new QLabel(this))
    , demo_(new QLabel(this))
    , look_(new QPushButton(this))
    , leave_(new QPushButton(this))
    , command_(new QWidget(this))
    , remedy_(new QLabel(command_))
    , copy_(new QPushButton(command_)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    demo_->setObjectName(QStringLiteral("lblDemo"));
    remedy_->setObjectName(QStringLiteral("lblRemedy"));
    copy_->setObjectName(QStringLiteral("btnCopyRemedy"));
    look_->setObjectName(QStringLiteral("btnDemo"));
    leave_->setObjectName(QStringLiteral("btnLeaveDemo"));
    headline_->setTextFormat(Qt::PlainText);
    detail_->setProperty("tone", QStringLiteral("secondary"));
    demo_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    remedy_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    remedy_->setTextFormat(Qt::PlainText);
    remedy_->setWordWrap(true);
    leave_->setProperty("slim", true);
    for (QPushButton *button : {copy_, look_, leave_}) {
        button->setCursor(Qt::PointingHandCursor);
    }
    copied_.setSingleShot(true);
    copied_.setInterval(kConfirmMs);
    connect(copy_, &QPushButton::clicked, this, &ConnectionBanner::copyRemedy);
    connect(look_, &QPushButton::clicked, this, &ConnectionBanner::demoRequested);
    connect(leave_, &QPushButton::clicked, this, &ConnectionBanner::demoEndRequested);
    connect(&copied_, &QTimer::timeout, this, &ConnectionBanner::update);
    layOut();
    update();
}

void ConnectionBanner::layOut() {
    // In a widget of its own: an empty layout would hold the words to their least width.
    auto *command = new QHBoxLayout(command_);
    command->setContentsMargins(0, style::space::kXs, 0, 0);
    command->setSpacing(style::space::kS);
    command->addWidget(remedy_, 1);
    command->addWidget(copy_, 0, Qt::AlignTop);

    words_ = new QBoxLayout(QBoxLayout::TopToBottom);
    words_->addWidget(headline_);
    words_->addWidget(detail_, 1);

    row_ = new QHBoxLayout;
    row_->addWidget(sign_, 0, Qt::AlignVCenter);
    auto *centred = new QVBoxLayout;
    centred->addStretch(1);
    centred->addLayout(words_);
    centred->addStretch(1);
    row_->addLayout(centred, 1);
    row_->addWidget(demo_, 0, Qt::AlignVCenter);
    row_->addWidget(look_, 0, Qt::AlignVCenter);
    row_->addWidget(leave_, 0, Qt::AlignVCenter);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addLayout(row_, 1);
    layout->addWidget(command_);
}

void ConnectionBanner::showState(LinkState state, const QString &modelText) {
    if (state != state_ || modelText != modelText_) {
        state_ = state;
        modelText_ = modelText;
        copied_.stop();
        update();
    }
}

void ConnectionBanner::setDemo(bool demo) {
    isDemo_ = demo;
    update();
}

void ConnectionBanner::setRemedy(const QString &command) {
    remedyCommand_ = command;
    update();
}

QString ConnectionBanner::spokenText() const {
    QStringList parts{headline_->text()};
    for (const QLabel *label : {detail_, remedy_, demo_}) {
        if (label->isVisibleTo(this) && !label->text().isEmpty()) {
            parts << label->text();
        }
    }
    return parts.join(QStringLiteral(". "));
}

void ConnectionBanner::update() {
    const bool quiet = state_ == LinkState::Live;
    showWords();
    applyScale();
    command_->setVisible(state_ == LinkState::NoPermission && !remedyCommand_.isEmpty());
    demo_->setVisible(isDemo_);
    leave_->setVisible(isDemo_);
    look_->setVisible(!isDemo_ && isAlone(state_));
    const int side = quiet ? 0 : qRound(style::space::kL * scale_);
    const int edge = quiet ? 0 : qRound(style::space::kS * scale_);
    layout()->setContentsMargins(side, edge, side, edge);
    setAccessibleName(spokenText());
    reserve();
    QWidget::update();
}

void ConnectionBanner::showWords() {
    const bool quiet = state_ == LinkState::Live;
    const bool named = quiet && !modelText_.isEmpty();
    const bool withRemedy = state_ == LinkState::NoPermission && !remedyCommand_.isEmpty();
    headline_->setText(named ? modelText_ : linkHeadline(state_));
    detail_->setText(named ? linkHeadline(state_) : detailOf(state_, withRemedy));
    demo_->setText(qtTrId("MAIN_STR_DEMO"));
    look_->setText(qtTrId("MAIN_STR_DEMO_LOOK"));
    leave_->setText(qtTrId("MAIN_STR_DEMO_LEAVE"));
    remedy_->setText(remedyCommand_);
    copy_->setText(copied_.isActive() ? qtTrId("MAIN_STR_COPIED") : qtTrId("MAIN_STR_COPY"));
}

void ConnectionBanner::applyScale() {
    scale_ = style::windowScale(*this);
    const bool quiet = state_ == LinkState::Live;
    headline_->setFont(style::font((quiet ? kHeadPixels : style::type::kTitle) * scale_, QFont::DemiBold));
    detail_->setFont(style::font(style::type::kBody * scale_));
    demo_->setFont(style::font(style::type::kLabel * scale_, QFont::DemiBold));
    remedy_->setFont(style::monospace(style::type::kLabel * scale_));
    for (QPushButton *button : {copy_, look_, leave_}) {
        button->setFont(style::font(style::type::kBody * scale_, QFont::Medium));
    }
    sign_->show(lookOf(state_), (quiet ? kDotSide : kSignSide) * scale_);
    leave_->setFixedHeight(qRound(kSlimHeight * scale_));
    row_->setSpacing(qRound((quiet ? style::space::kS : style::space::kM) * scale_));
    // One line while all is well: there may be alarms below that need the room.
    words_->setDirection(quiet ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    words_->setSpacing(qRound(quiet ? style::space::kM * scale_ : style::space::kXs / 2.0 * scale_));
    detail_->setWordWrap(!quiet);
}

void ConnectionBanner::reserve() {
    int height = 0;
    for (const LinkState state :
         {LinkState::Live, LinkState::NoDevice, LinkState::NoPermission, LinkState::Silent}) {
        height = std::max(height, heightOf(state));
    }
    if (height != reserved_) {
        reserved_ = height;
        updateGeometry();
    }
    setMinimumHeight(state_ == LinkState::Live ? 0 : reserved_);
}

QSize ConnectionBanner::sizeHint() const { return QWidget::sizeHint().expandedTo({0, reserved_}); }

/// What a state needs at the present width, without a remedy.
int ConnectionBanner::heightOf(LinkState state) const {
    const int gap = qRound(style::space::kM * scale_);
    QSize actions(0, 0);
    if (isDemo_) {
        const QSize mark = demo_->sizeHint();
        const QSize leave = leave_->sizeHint();
        actions = {gap + mark.width() + gap + leave.width(),
                   std::max(mark.height(), leave_->minimumHeight())};
    } else if (isAlone(state)) {
        const QSize look = look_->sizeHint();
        actions = {gap + look.width(), look.height()};
    }
    const auto lineOf = [](qreal pixels) {
        return QFontMetrics(style::font(pixels, QFont::DemiBold)).height();
    };
    if (state == LinkState::Live) {
        return std::max(lineOf(kHeadPixels * scale_), actions.height());
    }
    const int sign = qRound(kSignSide * scale_);
    const int edges = 2 * qRound(style::space::kS * scale_);
    QLabel detail(detailOf(state, state == LinkState::NoPermission && !remedyCommand_.isEmpty()));
    detail.setWordWrap(true);
    detail.setFont(detail_->font());
    const int room = width() - 2 * qRound(style::space::kL * scale_) - sign - gap - actions.width();
    const int words = lineOf(style::type::kTitle * scale_) + qRound(style::space::kXs / 2.0 * scale_) +
                      detail.heightForWidth(std::max(1, room));
    return edges + std::max({words, actions.height(), sign});
}

void ConnectionBanner::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (scale_ != style::windowScale(*this)) {
        update();
    } else if (event->size().width() != event->oldSize().width()) {
        reserve();
    }
}

void ConnectionBanner::copyRemedy() {
    QGuiApplication::clipboard()->setText(remedyCommand_);
    copied_.start();
    update();
}

void ConnectionBanner::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        update();
    } else if (event->type() == QEvent::StyleChange) {
        reserve(); // a button's room is the sheet's matter
    }
}

void ConnectionBanner::paintEvent(QPaintEvent * /*event*/) {
    if (state_ == LinkState::Live) {
        return;
    }
    QPainter painter(this);
    style::paintCard(painter, *this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::tone(lookOf(state_).tint));
    painter.drawRoundedRect(QRectF(0.0, style::space::kM, 3.0, height() - 2.0 * style::space::kM), 1.5, 1.5);
}

} // namespace zpsg::ui
