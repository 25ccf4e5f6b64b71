// When to ask for a newer version, and what of the answers is still news. It has no clock and no network.
#pragma once

#include "app/Settings.h"
#include "cloud/UpdateOffer.h"

#include <QDateTime>

#include <chrono>

namespace zpsg::app {

/// GUI thread only. What it has to remember stands in the settings, so that a restart neither asks nor tells
/// again.
class UpdatePolicy {
public:
    static constexpr std::chrono::seconds kAfterStart = std::chrono::minutes(3);
    static constexpr std::chrono::seconds kBetween = std::chrono::hours(24);
    static constexpr std::chrono::seconds kAfterFailure = std::chrono::hours(4);

    /// `settings` outlives this.
    UpdatePolicy(Settings &settings, const QVersionNumber &running);

    /// Whether to ask now; to be called every minute or so. The first call counts as the program's start.
    [[nodiscard]] bool tick(const QDateTime &now);
    void takeOffer(const cloud::UpdateOffer &offer, const QDateTime &now);
    void takeFailure(const QDateTime &now);
    /// Another address is to be asked: what the former one said counts no more.
    void forget();

    /// The last offer, while it is of a later version than the running one.
    [[nodiscard]] const std::optional<cloud::UpdateOffer> &newer() const { return newer_; }
    /// True once a version: the user is to be told of newer(). Earlier versions than one that was told are no
    /// news, since a publisher's servers may for a time not agree.
    [[nodiscard]] bool takeNews();

private:
    void keep(std::optional<cloud::UpdateOffer> offer);
    void askAgain(const QDateTime &then);

    Settings &settings_;
    QVersionNumber running_;
    QDateTime started_; ///< invalid before the first tick
    std::optional<cloud::UpdateOffer> newer_;
};

} // namespace zpsg::app
