#include "power/EfficiencyTable.h"

#include "power/CurveFile.h"
#include "power/Logging.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace zpsg::power {
namespace {

const QString kMains = QStringLiteral("VIN");

QString bandFor(const psu::TelemetryRecord &record) {
    return record.text(kMains).toFloat() > kBandBoundVolts ? QStringLiteral("AC230")
                                                           : QStringLiteral("AC115");
}

/// Output power, watts, from the rails' texts.
float outputWatts(const psu::TelemetryRecord &record) {
    const auto number = [&record](const char *key) { return record.text(QLatin1String(key)).toFloat(); };
    return number("VVOut33") * number("VIOut33") + number("VVOut5") * number("VIOut5") +
           number("VVOut12") * number("VIOut12");
}

} // namespace

void EfficiencyTable::apply(const ModelRow &row) {
    profile_.ratedWatts = static_cast<float>(row.ratedWatts);
    if (!row.curve.empty()) {
        profile_.efficiencyFile = QString::fromLatin1(row.curve.data(), static_cast<int>(row.curve.size()));
    }
    profile_.fanLighting = row.fanLighting.value_or(profile_.fanLighting);
    profile_.customFanSpeed = row.customFanSpeed.value_or(profile_.customFanSpeed);
    profile_.addressableLeds = row.addressableLeds.value_or(profile_.addressableLeds);
    profile_.seriesCode = row.seriesCode.value_or(profile_.seriesCode);
    profile_.seriesNumber = row.seriesNumber.value_or(profile_.seriesNumber);
    ++revision_;
}

bool EfficiencyTable::selectEfficiencyProfile(const QString &modelCode) {
    const ModelRow *row = findCurveModel(modelCode);
    if (row == nullptr) {
        qCDebug(lcPower) << "no such file";
        return false;
    }
    apply(*row);
    return true;
}

bool EfficiencyTable::selectEnhancedProfile(const QString &modelCode) {
    const ModelRow *row = findEnhancedModel(modelCode);
    if (row == nullptr) {
        qCDebug(lcPower) << "no such file";
        return false;
    }
    apply(*row);
    return true;
}

void EfficiencyTable::loadEfficiencyTable(const QString &modelCode, ModelKind kind,
                                          const psu::TelemetryRecord &record) {
    modelCode_ = modelCode;
    kind_ = kind;
    const QString key = normalisedModel(modelCode);
    if (kind == ModelKind::CurveBacked) {
        qCDebug(lcPower) << "VinValue:" << record.text(kMains).toFloat();
        bandKey_ = bandFor(record);
        bandIsProvisional_ = !record.measured(kMains);
        selectEfficiencyProfile(key);
        loadCurve();
    } else if (kind == ModelKind::Enhanced) {
        selectEnhancedProfile(key);
    }
}

QString EfficiencyTable::curvePath() const {
    for (const QString &name : {profile_.efficiencyFile, QString::fromLatin1(kFallbackCurve)}) {
        for (const QString &folder : folders_) {
            QString path = folder + QStringLiteral("/BOX/") + name + QStringLiteral(".ini");
            if (QFileInfo::exists(path)) {
                return path;
            }
        }
        qCDebug(lcPower).noquote() << "there is no curve file" << name;
    }
    return {};
}

void EfficiencyTable::loadCurve() {
    const QString path = curvePath();
    if (path.isEmpty()) {
        return;
    }
    QString why;
    const auto document = readCurveFile(path, why);
    if (!document) {
        qCDebug(lcPower).noquote() << path << why;
        return;
    }
    qCDebug(lcPower) << "dataSize:" << curveSteps(*document);
    const auto band = curveBand(*document, bandKey_, why);
    if (!band) {
        qCDebug(lcPower).noquote() << path << why;
        return;
    }
    if (band->empty()) {
        return;
    }
    CWTwattsValueList_.resize(CWTwattsValueList_.size() + band->size());
    std::copy(band->begin(), band->end(), CWTwattsValueList_.begin());
    steps_ = band->size();
    ++revision_;
    qCDebug(lcPower) << "CWTwattsValueList:" << CWTwattsValueList_;
}

void EfficiencyTable::complete(psu::TelemetryRecord &record) {
    if (bandIsProvisional_ && record.measured(kMains)) {
        bandIsProvisional_ = false;
        if (bandFor(record) != bandKey_) {
            loadEfficiencyTable(modelCode_, kind_, record);
        }
    }
    const QString wattsKey = QStringLiteral("WATTS");
    const float watts = outputWatts(record);
    if (!record.measured(wattsKey) || !std::isfinite(watts)) {
        return; // the rails are still those of a fresh record
    }
    record.store(wattsKey, watts);
    if (steps_ > 0) {
        const auto last = static_cast<float>(steps_ - 1);
        const auto index = static_cast<std::size_t>(std::clamp(watts / kCurveStepWatts, 0.0F, last));
        record.store(QStringLiteral("EFF"), CWTwattsValueList_.at(index));
    }
}

std::vector<float> EfficiencyTable::curve() const {
    return {CWTwattsValueList_.begin(), CWTwattsValueList_.begin() + static_cast<std::ptrdiff_t>(steps_)};
}

} // namespace zpsg::power
