// Carries what the PC's own sensors say to the dashboard.
#pragma once

#include "app/SensorThread.h"
#include "records/RecordRow.h"

#include <QObject>

namespace zpsg::ui {
class PcView;
}

namespace zpsg::app {

/// The last eight fields of a minute's row; 0 for what no sensor gives.
[[nodiscard]] records::PcSensors rowFields(const sensors::PcReading &reading);
/// The temperatures in a line.
[[nodiscard]] QString pcSummary(const sensors::PcReading &reading);
/// What to install so that there is something to read.
[[nodiscard]] QString pcRemedy();

/// GUI thread only. What it is given outlives it.
class PcFeed : public QObject {
    Q_OBJECT

public:
    PcFeed(SensorThread &sensors, ui::PcView &view, QObject *parent = nullptr);

    /// Reading was switched on or off.
    void showState();
    /// Nothing can be read.
    void fail();

signals:
    /// The user wants the sensors to be read.
    void enableRequested();

private:
    SensorThread &sensors_;
    ui::PcView &view_;
};

} // namespace zpsg::app
