#include "app/UpdateFeed.h"

#include "app/Logging.h"
#include "ui/AboutPage.h"
#include "ui/MainView.h"
#include "ui/NavigationRail.h"
#include "ui/SettingsPage.h"

#include <QCoreApplication>
#include <QDesktopServices>

namespace zpsg::app {

using cloud::UpdateOutcome;
using ui::MainView;

namespace {

constexpr std::chrono::minutes kTick(1);

/// What went wrong, for whoever asked by hand.
QString failureText(UpdateOutcome outcome, const QString &host) {
    switch (outcome) {
    case UpdateOutcome::BadAddress:
        return qtTrId("UPDATE_STR_BAD_ADDRESS");
    case UpdateOutcome::Insecure:
        return qtTrId("UPDATE_STR_INSECURE").arg(host);
    case UpdateOutcome::Refused:
    case UpdateOutcome::Garbled:
        return qtTrId("UPDATE_STR_NO_VERSION").arg(host);
    default:
        return qtTrId("UPDATE_STR_UNREACHABLE").arg(host);
    }
}

} // namespace

UpdateFeed::UpdateFeed(const Parts &parts, MainView &view, QObject *parent)
    : QObject(parent)
    , parts_(parts)
    , view_(view)
    , policy_(parts.settings, QVersionNumber::fromString(QCoreApplication::applicationVersion()))
    , enabled_(parts.settings.flag(Setting::UpdateEnabled))
    , address_(parts.settings.text(Setting::UpdateAddress)) {
    view_.settings()->setAddressRule(&cloud::isSafeAddress);
    connect(view_.settings(), &ui::SettingsPage::updateCheckRequested, this, &UpdateFeed::checkNow);
    connect(view_.about(), &ui::AboutPage::updatePageRequested, this, &UpdateFeed::openPage);
    connect(&parts_.tray, &Tray::updateClicked, this, [this] { view_.showPage(MainView::Page::About); });
    connect(&check_, &cloud::UpdateCheck::finished, this, &UpdateFeed::take);
    connect(&timer_, &QTimer::timeout, this, [this] { tick(QDateTime::currentDateTimeUtc()); });
    if (parts_.automatic) {
        tick(QDateTime::currentDateTimeUtc()); // the start
        timer_.start(kTick);
    }
    show();
}

void UpdateFeed::tick(const QDateTime &now) {
    if (policy_.tick(now)) {
        check_.ask(address_);
    }
}

void UpdateFeed::checkNow() {
    byHand_ = true;
    handResult_.reset();
    check_.ask(address_); // or waits for the answer that is on its way
    showStatus();
}

void UpdateFeed::take(const cloud::UpdateResult &result) {
    const bool byHand = std::exchange(byHand_, false);
    const auto now = QDateTime::currentDateTimeUtc();
    if (result.offer) {
        policy_.takeOffer(*result.offer, now);
    } else {
        policy_.takeFailure(now);
        qCDebug(lcApp).noquote() << "no answer on new versions:" << result.why;
    }
    if (byHand) {
        handResult_ = result.outcome;
    }
    show();
    // Who has asked by hand sees the answer, and is not to be told of it later.
    if (shownOffer() != nullptr && policy_.takeNews() && !byHand) {
        parts_.tray.tellUpdate(shownOffer()->version.toString());
    }
}

void UpdateFeed::takeSettings() {
    const bool enabled = parts_.settings.flag(Setting::UpdateEnabled);
    const QString address = parts_.settings.text(Setting::UpdateAddress);
    if (address != address_) {
        policy_.forget();
    }
    if (address != address_ || (enabled_ && !enabled)) {
        check_.cancel();
        byHand_ = false;
        handResult_.reset();
    }
    enabled_ = enabled;
    address_ = address;
    show();
}

/// What the user asked for, once or for every day; null when there is nothing new.
const cloud::UpdateOffer *UpdateFeed::shownOffer() const {
    const bool asked = enabled_ || handResult_ == UpdateOutcome::Answered;
    return asked && policy_.newer() ? &*policy_.newer() : nullptr;
}

void UpdateFeed::show() {
    const auto *offer = shownOffer();
    ui::UpdateNews news;
    if (offer != nullptr) {
        news = {offer->version.toString(), offer->notes, offer->page.toString(QUrl::FullyEncoded)};
    }
    view_.about()->setUpdate(news);
    view_.navigation()->setNotice(static_cast<int>(MainView::Page::About),
                                  offer != nullptr ? QT_TRID_NOOP("NAV_UPDATE") : nullptr);
    showStatus();
}

void UpdateFeed::showStatus() {
    const bool failed = handResult_ && *handResult_ != UpdateOutcome::Answered;
    const auto *offer = shownOffer();
    QString text;
    if (byHand_) {
        text = qtTrId("UPDATE_STR_ASKING");
    } else if (failed) {
        text = failureText(*handResult_, QUrl(address_).host());
    } else if (offer != nullptr) {
        text = qtTrId("UPDATE_STR_FOUND").arg(offer->version.toString());
    } else if (handResult_) {
        text = qtTrId("UPDATE_STR_NEWEST").arg(QCoreApplication::applicationVersion());
    }
    view_.settings()->setStatus(ui::SettingStatus::Update, text, failed);
}

void UpdateFeed::openPage() const {
    if (const auto *offer = shownOffer()) {
        QDesktopServices::openUrl(offer->page);
    }
}

} // namespace zpsg::app
