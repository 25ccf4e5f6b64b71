// Carries the settings to their page, and what the user sets there to what it is for.
#pragma once

#include "app/Alarms.h"
#include "app/RemoteServices.h"
#include "app/SensorThread.h"
#include "app/Settings.h"
#include "ui/SettingField.h"

#include <QObject>

namespace zpsg::remote {
class SocketHelper;
}
namespace zpsg::ui {
class SettingsPage;
}

namespace zpsg::app {

/// GUI thread only. A change takes effect at once; what the window itself has to do for it is told by a
/// signal.
class SettingsFeed : public QObject {
    Q_OBJECT

public:
    /// All of it outlives the feed.
    struct Parts {
        Settings &settings;
        Alarms &alarms;
        FanControl &fan;
        Lighting &lighting;
        Usage &usage;
        SensorThread &sensors;
        RemoteServices &remote;
        remote::SocketHelper &socket;
        QString dataDir;
        std::string executable; ///< what the system is to start; empty: leave the system alone
    };

    SettingsFeed(Parts parts, ui::SettingsPage &page, QObject *parent = nullptr);

    /// Shows everything as the settings have it.
    void showAll();
    /// The same for the switches that stand on the alarms page as well.
    void showWarnings();
    /// Once a second: how things are now, while somebody looks.
    void tick(const QDateTime &now);
    /// Brings the system's autostart entry in line.
    void alignAutostart();
    /// The same when the program starts: an entry that starts this program switches the setting on, as the
    /// setup makes one where the user wants it.
    void takeUpAutostart();
    /// The sensors are read from now on, or not any more.
    void readSensors(bool on);
    void sensorsFailed();

signals:
    void languageChosen();
    /// Unit of temperature or size of text; the parameter is the unit's number.
    void unitsChosen(const QStringList &unit);
    void ratesRequested();
    void alarmsRequested();
    /// Any of them has changed.
    void changed();

private:
    void take(ui::SettingField field, const QVariant &value);
    void apply(ui::SettingField field);
    void applyAll();
    void exportTo(const QString &path);
    void importFrom(const QString &path);
    void reset();
    void showSocket();
    void showMqtt();
    void showMetrics();
    void showSensors();
    void showRate(const QDateTime &now);

    Parts parts_;
    ui::SettingsPage &page_;
    bool sensorsFailed_ = false;
};

} // namespace zpsg::app
