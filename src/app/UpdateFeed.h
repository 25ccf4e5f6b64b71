// Asks for a newer version of the program and tells the user of one: on the about page, in the navigation, in
// the tray. It never downloads anything; a button leads the user's browser to the publisher's page.
#pragma once

#include "app/Tray.h"
#include "app/UpdatePolicy.h"
#include "cloud/UpdateCheck.h"

#include <QObject>
#include <QTimer>

namespace zpsg::ui {
class MainView;
}

namespace zpsg::app {

/// GUI thread only. What it is given outlives it.
class UpdateFeed : public QObject {
    Q_OBJECT

public:
    struct Parts {
        Settings &settings;
        Tray &tray;
        bool automatic = true; ///< else only what the user asks for by hand is asked
    };

    UpdateFeed(const Parts &parts, ui::MainView &view, QObject *parent = nullptr);

    /// Asks when it is time to; what its own timer calls every minute.
    void tick(const QDateTime &now);
    /// Any of the settings may be another one now, the language too.
    void takeSettings();

private:
    void checkNow();
    void take(const cloud::UpdateResult &result);
    void openPage() const;
    void show();
    void showStatus();
    [[nodiscard]] const cloud::UpdateOffer *shownOffer() const;

    Parts parts_;
    ui::MainView &view_;
    UpdatePolicy policy_;
    cloud::UpdateCheck check_;
    QTimer timer_;
    bool enabled_;
    QString address_;
    bool byHand_ = false;                            ///< somebody waits for the answer
    std::optional<cloud::UpdateOutcome> handResult_; ///< of the last check by hand
};

} // namespace zpsg::app
