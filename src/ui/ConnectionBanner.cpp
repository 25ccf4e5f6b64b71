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

QString headlineOf(LinkState state) {
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

constexpr int kConfirmMs = 2000;

} // namespace

/// The state's sign: small while all is well.
class ConnectionBanner::Sign : public QWidget {
public:
    explicit Sign(QWidget *parent) : QWidget(parent) { setAccessibleName(QString()); }

    void show(const Look &look, qreal scale) {
        look_ = look;
        const int side = qRound((look.icon == Icon::Dot ? 14 : 26) * scale);
        setFixedSize(side, side);
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
    , command_(new QWidget(this))
    , remedy_(new QLabel(command_))
    , copy_(new QPushButton(command_)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    demo_->setObjectName(QStringLiteral("lblDemo"));
    remedy_->setObjectName(QStringLiteral("lblRemedy"));
    copy_->setObjectName(QStringLiteral("btnCopyRemedy"));
    headline_->setTextFormat(Qt::PlainText);
    detail_->setProperty("tone", QStringLiteral("secondary"));
    detail_->setWordWrap(true);
    demo_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    remedy_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    remedy_->setTextFormat(Qt::PlainText);
    remedy_->setWordWrap(true);
    copy_->setCursor(Qt::PointingHandCursor);
    copied_.setSingleShot(true);
    copied_.setInterval(kConfirmMs);
    connect(copy_, &QPushButton::clicked, this, &ConnectionBanner::copyRemedy);
    connect(&copied_, &QTimer::timeout, this, &ConnectionBanner::update);
    layOut();
    setDemo(false);
}

void ConnectionBanner::layOut() {
    // In a widget of its own: an empty layout would hold the words to their least width.
    auto *command = new QHBoxLayout(command_);
    command->setContentsMargins(0, style::space::kXs, 0, 0);
    command->setSpacing(style::space::kS);
    command->addWidget(remedy_, 1);
    command->addWidget(copy_, 0, Qt::AlignTop);

    auto *words = new QVBoxLayout;
    words->setSpacing(style::space::kXs);
    words->addWidget(headline_);
    words->addWidget(detail_);
    words->addWidget(command_);

    auto *row = new QHBoxLayout(this);
    row->setSpacing(style::space::kM);
    row->addWidget(sign_, 0, Qt::AlignVCenter);
    row->addLayout(words, 1);
    row->addWidget(demo_, 0, Qt::AlignVCenter);
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
    demo_->setVisible(demo);
    update();
}

void ConnectionBanner::setRemedy(const QString &command) {
    remedyCommand_ = command;
    update();
}

QString ConnectionBanner::spokenText() const {
    QStringList parts{headline_->text()};
    for (const QLabel *label : {detail_, remedy_, demo_}) {
        if (label->isVisibleTo(this)) {
            parts << label->text();
        }
    }
    return parts.join(QStringLiteral(". "));
}

void ConnectionBanner::update() {
    const bool quiet = state_ == LinkState::Live;
    const bool withRemedy = state_ == LinkState::NoPermission && !remedyCommand_.isEmpty();
    applyScale();
    sign_->show(lookOf(state_), scale_);
    QString headline = headlineOf(state_);
    if (quiet && !modelText_.isEmpty()) {
        headline += QStringLiteral("  \u00B7  ") + modelText_;
    }
    headline_->setText(headline);
    detail_->setText(detailOf(state_, withRemedy));
    detail_->setVisible(!quiet);
    demo_->setText(qtTrId("MAIN_STR_DEMO"));
    remedy_->setText(remedyCommand_);
    command_->setVisible(withRemedy);
    copy_->setText(copied_.isActive() ? qtTrId("MAIN_STR_COPIED") : qtTrId("MAIN_STR_COPY"));
    const int side = qRound((quiet ? style::space::kXs : style::space::kL) * scale_);
    const int edge = qRound((quiet ? 0 : style::space::kM) * scale_);
    layout()->setContentsMargins(side, edge, side, edge);
    setAccessibleName(spokenText());
    QWidget::update();
}

void ConnectionBanner::applyScale() {
    scale_ = style::windowScale(*this);
    const bool quiet = state_ == LinkState::Live;
    headline_->setFont(style::font((quiet ? style::type::kBody : style::type::kTitle) * scale_,
                                   quiet ? QFont::Medium : QFont::DemiBold));
    detail_->setFont(style::font(style::type::kBody * scale_));
    demo_->setFont(style::font(style::type::kLabel * scale_, QFont::DemiBold));
    remedy_->setFont(style::monospace(style::type::kLabel * scale_));
    copy_->setFont(style::font(style::type::kBody * scale_, QFont::Medium));
    layout()->setSpacing(qRound(style::space::kM * scale_));
}

void ConnectionBanner::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (scale_ != style::windowScale(*this)) {
        update();
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
