#include "app/Supply.h"

#include "app/Logging.h"
#include "app/Settings.h"

namespace zpsg::app {

Supply::Supply(std::unique_ptr<psu::HidBackend> backend, psu::MonitorTiming timing, QStringList folders,
               QObject *parent)
    : QObject(parent), efficiency_(std::move(folders)), monitor_(std::move(backend), timing) {
    monitor_.onSample([this](psu::TelemetryRecord &record) {
        const int before = efficiency_.revision();
        efficiency_.complete(record);
        if (efficiency_.revision() != before) {
            emit profileChanged();
        }
    });
    connect(&monitor_, &psu::SupplyMonitor::identityTaken, this, &Supply::recognise);
}

bool Supply::identifyModel() {
    if (!monitor_.openAtStart()) {
        return false;
    }
    monitor_.readModelText();
    return identified_ || monitor_.rawPathPresent();
}

bool Supply::connectPsu() {
    const bool opened = monitor_.connectPsu();
    if (opened && !monitor_.identityKnown()) {
        monitor_.readModelText();
    }
    if (opened) {
        emit reopened();
    }
    return opened;
}

std::optional<double> Supply::fresh(const char *key) const {
    const QString name = QString::fromLatin1(key);
    if (!monitor_.hasReading() || monitor_.state() != psu::LinkState::Live ||
        !monitor_.record().measured(name)) {
        return std::nullopt;
    }
    return monitor_.record().number(name);
}

std::optional<double> Supply::freshLoad() const {
    const auto watts = fresh("WATTS");
    const double rated = profile().ratedWatts;
    return watts && rated > 0.0 ? std::optional(*watts / rated) : std::nullopt;
}

void Supply::recognise() {
    using power::ModelKind;
    const QString &text = monitor_.modelText();
    qCDebug(lcApp) << "MFRModel" << text;
    const QString normalised = power::normalisedModel(text);
    // The raw device measures its own efficiency, so its model needs no curve.
    const auto kind = monitor_.rawPathPresent() ? ModelKind::Enhanced : ModelKind::CurveBacked;
    identified_ = (kind == ModelKind::Enhanced ? power::findEnhancedModel(normalised)
                                               : power::findCurveModel(normalised)) != nullptr;
    if (!identified_) {
        return;
    }
    qCDebug(lcApp).noquote() << QStringLiteral("success 應該是在這邊做就好");
    efficiency_.loadEfficiencyTable(text, kind, monitor_.record());
    const auto &profile = efficiency_.profile();
    qCDebug(lcApp).noquote() << "profile" << profile.ratedWatts << profile.efficiencyFile
                             << profile.fanLighting << profile.customFanSpeed << profile.addressableLeds
                             << profile.seriesCode << profile.seriesNumber;
    emit profileChanged();
}

QString serialNumber(const Supply &supply, const Settings &settings) {
    const auto &monitor = supply.monitor();
    return monitor.noSerial() ? settings.text(Setting::SelfFilledInSerial) : monitor.serialText();
}

} // namespace zpsg::app
