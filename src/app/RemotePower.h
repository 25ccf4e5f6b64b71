// Remote commands that end or pause the PC's work, after the user had a minute to cancel.
#pragma once

#include "app/Settings.h"
#include "platform/PowerAction.h"
#include "ui/PowerCountdown.h"

#include <QObject>

#include <memory>

namespace zpsg::app {

/// How it is done and by which clock the minute is counted.
struct PowerMeans {
    std::function<bool(platform::PowerAction, std::string &)> act = platform::requestPower;
    ui::PowerCountdown::Now now = ui::PowerCountdown::Clock::now;
};

/// GUI thread only. `settings` outlives it.
class RemotePower : public QObject {
    Q_OBJECT

public:
    explicit RemotePower(const Settings &settings, QObject *parent = nullptr, PowerMeans means = {});
    ~RemotePower() override;

    /// "shutdown", "restart" or "sleep"; anything else is ignored, as is everything while the user's setting
    /// doesn't allow it and while an earlier request counts down.
    void request(const QString &word);
    /// Null while nothing counts down.
    [[nodiscard]] ui::PowerCountdown *countdown() const { return countdown_.get(); }

signals:
    /// The system refused; `why` in plain words.
    void failed(const QString &why);

private:
    void carryOut(platform::PowerAction action);
    void putAway();

    const Settings &settings_;
    const PowerMeans means_;
    std::unique_ptr<ui::PowerCountdown> countdown_;
};

} // namespace zpsg::app
