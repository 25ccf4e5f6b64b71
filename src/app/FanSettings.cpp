#include "app/FanSettings.h"

namespace zpsg::app {

using fan::CurvePoint;
using fan::CurveSource;
using fan::FanCurve;

namespace {

/// "30:30 40:40.5": at and percent of each point.
QString asText(const std::vector<CurvePoint> &points) {
    QStringList texts;
    for (const auto &point : points) {
        texts << QStringLiteral("%1:%2").arg(point.at, 0, 'g', 6).arg(point.percent, 0, 'g', 6);
    }
    return texts.join(QLatin1Char(' '));
}

std::vector<CurvePoint> fromText(const QString &text, CurveSource source) {
    std::vector<CurvePoint> points;
    for (const auto &part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList numbers = part.split(QLatin1Char(':'));
        bool hasAt = false;
        bool hasPercent = false;
        const CurvePoint point{numbers.value(0).toDouble(&hasAt), numbers.value(1).toDouble(&hasPercent)};
        if (hasAt && hasPercent) {
            points.push_back(point);
        }
    }
    return fan::fittedPoints(std::move(points), source);
}

} // namespace

void writeFanDefaultsOnce(Settings &settings) {
    if (!settings.flag(Setting::FanDataWritten)) {
        settings.write({{Setting::FanDataWritten, true}, {Setting::CustomFanPercent, fan::kFirstPercent}});
    }
}

FanCurve loadFanCurve(const Settings &settings) {
    return {static_cast<CurveSource>(settings.integer(Setting::FanCurveSource)),
            fromText(settings.text(Setting::FanCurveTemperature), CurveSource::Temperature),
            fromText(settings.text(Setting::FanCurveLoad), CurveSource::Load)};
}

bool saveFanCurve(Settings &settings, const FanCurve &curve) {
    return settings.write({{Setting::FanCurveSource, static_cast<int>(curve.source)},
                           {Setting::FanCurveTemperature, asText(curve.temperature)},
                           {Setting::FanCurveLoad, asText(curve.load)}});
}

fan::GovernorTuning loadGovernorTuning(const Settings &settings) {
    return {settings.integer(Setting::FanCurveHysteresis), settings.integer(Setting::FanCurveMinSeconds)};
}

} // namespace zpsg::app
