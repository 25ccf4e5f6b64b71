// Reads the PC's own sensors on a thread of its own.
#pragma once

#include <QObject>

namespace zpsg::sensors {

/// Lives in the sensor thread; its results and failures reach the main window by queued signals.
class pcInfoReader : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

public slots:
    /// Once a second, in the sensor thread.
    void refreshInfo() {}

signals:
    /// The sensors can't be read; `reason` names what is missing.
    void openFail(const QString &reason);
};

} // namespace zpsg::sensors
