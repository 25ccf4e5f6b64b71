#include "app/UpdatePolicy.h"

namespace zpsg::app {
namespace {

/// So far a clock may be set back without a check for it.
constexpr std::chrono::seconds kSlack = std::chrono::hours(1);

} // namespace

UpdatePolicy::UpdatePolicy(Settings &settings, const QVersionNumber &running)
    : settings_(settings), running_(running) {
    const QString found = settings_.text(Setting::UpdateFound);
    if (!found.isEmpty()) {
        QString why;
        keep(cloud::parseUpdateOffer(found.toUtf8(), why));
    }
}

bool UpdatePolicy::tick(const QDateTime &now) {
    if (!started_.isValid() || now < started_) {
        started_ = now;
    }
    if (started_.secsTo(now) < kAfterStart.count() || !settings_.flag(Setting::UpdateEnabled) ||
        settings_.text(Setting::UpdateAddress).isEmpty()) {
        return false;
    }
    const auto next = QDateTime::fromString(settings_.text(Setting::UpdateNext), Qt::ISODate);
    const qint64 wait = next.isValid() ? now.secsTo(next) : 0;
    // Further away than it was ever put: the clock was set back.
    return wait <= 0 || wait > (kBetween + kSlack).count();
}

void UpdatePolicy::takeOffer(const cloud::UpdateOffer &offer, const QDateTime &now) {
    askAgain(now.addSecs(kBetween.count()));
    keep(offer);
    settings_.write({{Setting::UpdateFound, QString::fromUtf8(cloud::toJson(offer))}});
}

void UpdatePolicy::takeFailure(const QDateTime &now) { askAgain(now.addSecs(kAfterFailure.count())); }

void UpdatePolicy::forget() {
    newer_.reset();
    settings_.write({{Setting::UpdateNext, QString()},
                     {Setting::UpdateTold, QString()},
                     {Setting::UpdateFound, QString()}});
}

bool UpdatePolicy::takeNews() {
    const auto told = QVersionNumber::fromString(settings_.text(Setting::UpdateTold));
    if (!newer_ || (!told.isNull() && !cloud::isNewer(*newer_, told))) {
        return false;
    }
    settings_.write({{Setting::UpdateTold, newer_->version.toString()}});
    return true;
}

void UpdatePolicy::keep(std::optional<cloud::UpdateOffer> offer) {
    newer_ = offer && cloud::isNewer(*offer, running_) ? std::move(offer) : std::nullopt;
}

void UpdatePolicy::askAgain(const QDateTime &then) {
    settings_.write({{Setting::UpdateNext, then.toUTC().toString(Qt::ISODate)}});
}

} // namespace zpsg::app
