#include "ui/TrayShown.h"

#include "psu/AlarmEntry.h"
#include "psu/SupplyMonitor.h"
#include "ui/ConnectionBanner.h"
#include "ui/Figures.h"
#include "ui/Temperature.h"

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

using psu::LinkState;

constexpr int kTipLimit = 127; ///< UTF-16 units; Windows keeps one of 128 for the end
constexpr double kShareSteps = 20.0;
/// From here on the load is near the rating.
constexpr double kHighLoad = 0.9;
/// From so many degrees below the alarm on it is near.
constexpr double kWarmBelowHot = 5.0;
/// The end of the temperature's bar, degrees Celsius, as of its gauge.
constexpr double kTemperatureEnd = 80.0;
/// Of the sign's arc while no figure is wanted: as on the program's own icon.
constexpr double kSignShare = 0.75;
constexpr int kModelLimit = 40; ///< characters of a model's name in the tip

struct Line {
    QString text;
    int weight; ///< the least goes first when there is no room
};

QString named(const QString &name, const QString &value) { return name + QLatin1Char(' ') + value; }

QString outputText(double watts, double ratedWatts) {
    const QString figure = formatFigure(watts, 0);
    return ratedWatts > 0.0
               ? qtTrId("TRAYICON_OUTPUT").arg(figure, formatFigure(100.0 * watts / ratedWatts, 0))
               : figure + QStringLiteral("\u00A0W");
}

std::vector<Line> linesOf(const TrayShown &shown) {
    QString head = qtTrId("TRAYICON_NAME");
    if (!shown.model.isEmpty()) {
        head += QStringLiteral(" \u00B7 ") + shown.model.left(kModelLimit);
    }
    std::vector<Line> lines{{head, 5}};
    if (shown.state != LinkState::Live) {
        lines.push_back({linkHeadline(shown.state), 4});
        return lines;
    }
    if (shown.watts) {
        lines.push_back({outputText(*shown.watts, shown.ratedWatts), 4});
    }
    if (shown.efficiency) {
        const QString percent = formatFigure(*shown.efficiency, 1) + QStringLiteral("\u00A0%");
        lines.push_back({named(qtTrId("MAIN_STR_EFFICIENCY"), percent), 1});
    }
    if (shown.celsius) {
        lines.push_back({named(qtTrId("MAIN_STR_TEMPERATURE"), degreesText(*shown.celsius)), 3});
    }
    if (shown.rpm) {
        const QString speed = formatFigure(*shown.rpm, 0) + QChar(QChar::Nbsp) + qtTrId("FAN_RPM");
        lines.push_back({named(qtTrId("MAIN_STR_FAN"), speed), 2});
    }
    if (!shown.alarm.isEmpty()) {
        lines.push_back({QStringLiteral("\u25B2 ") + shown.alarm, 6});
    }
    return lines;
}

QString joined(const std::vector<Line> &lines) {
    QStringList texts;
    for (const Line &line : lines) {
        texts << line.text;
    }
    return texts.join(QLatin1Char('\n'));
}

} // namespace

TrayFace trayFace(const TrayShown &shown) {
    const bool live = shown.state == LinkState::Live;
    const auto load = shown.watts && shown.ratedWatts > 0.0
                          ? std::optional(std::max(0.0, *shown.watts / shown.ratedWatts))
                          : std::nullopt;
    TrayFace face;
    if (!live) {
        return face;
    }
    const bool close =
        load.value_or(0.0) >= kHighLoad || shown.celsius.value_or(0.0) >= psu::kHotCelsius - kWarmBelowHot;
    face.level = close ? TrayLevel::NearLimit : TrayLevel::Normal;
    if (!shown.alarm.isEmpty()) {
        face.level = TrayLevel::Alarm;
    }
    double share = kSignShare;
    if (shown.figure == TrayFigure::Load && load) {
        face.figure = QString::number(qRound(100.0 * *load));
        share = *load;
    } else if (shown.figure == TrayFigure::Temperature && shown.celsius) {
        face.figure = QString::number(std::max(0, qRound(degrees(*shown.celsius))));
        share = *shown.celsius / kTemperatureEnd;
    }
    face.share = std::round(std::clamp(share, 0.0, 1.0) * kShareSteps) / kShareSteps;
    return face;
}

QString trayTip(const TrayShown &shown) {
    std::vector<Line> lines = linesOf(shown);
    QString tip = joined(lines);
    while (tip.size() > kTipLimit && lines.size() > 1) {
        lines.erase(std::min_element(lines.begin(), lines.end(),
                                     [](const Line &a, const Line &b) { return a.weight < b.weight; }));
        tip = joined(lines);
    }
    return tip.left(kTipLimit);
}

} // namespace zpsg::ui
