#include "app/PcFeed.h"

#include "sensors/pcInfoReader.h"
#include "ui/PcView.h"
#include "ui/Temperature.h"

namespace zpsg::app {

records::PcSensors rowFields(const sensors::PcReading &reading) {
    records::PcSensors fields{};
    const std::array values{reading.cpuVolts, reading.cpuAmps, reading.cpuWatts, reading.cpuCelsius,
                            reading.gpuVolts, reading.gpuAmps, reading.gpuWatts, reading.gpuCelsius};
    static_assert(std::tuple_size_v<decltype(values)> == std::tuple_size_v<records::PcSensors>);
    for (std::size_t i = 0; i < values.size(); ++i) {
        fields.at(i) = static_cast<float>(values.at(i).value_or(0.0));
    }
    return fields;
}

QString pcSummary(const sensors::PcReading &reading) {
    QStringList parts;
    if (reading.cpuCelsius) {
        parts << qtTrId("PC_STR_PROCESSOR_AT").arg(ui::degreesText(*reading.cpuCelsius));
    }
    if (reading.gpuCelsius) {
        parts << qtTrId("PC_STR_GRAPHICS_AT").arg(ui::degreesText(*reading.gpuCelsius));
    }
    return parts.isEmpty() ? qtTrId("PC_STR_READ") : parts.join(QStringLiteral("   \u00B7   "));
}

QString pcRemedy() {
    return sensors::pcInfoReader::source() == sensors::PcSensorSource::Hwinfo
               ? qtTrId("PC_STR_INSTALL_HWINFO")
               : qtTrId("PC_STR_INSTALL_HWMON");
}

PcFeed::PcFeed(SensorThread &sensors, ui::PcView &view, QObject *parent)
    : QObject(parent), sensors_(sensors), view_(view) {
    connect(&sensors_, &SensorThread::readingTaken, &view_, &ui::PcView::showReading);
    connect(&view_, &ui::PcView::enableRequested, this, &PcFeed::enableRequested);
    showState();
}

void PcFeed::showState() { view_.setEnabledState(sensors_.running()); }

void PcFeed::fail() {
    view_.setProblem(pcRemedy());
    view_.showReading({});
}

} // namespace zpsg::app
