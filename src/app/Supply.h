// The supply and what is known of its model: the link, the identification, the profile and the curve.
#pragma once

#include "power/EfficiencyTable.h"
#include "psu/SupplyMonitor.h"

#include <QObject>

#include <optional>

namespace zpsg::app {

class Settings;

/// GUI thread only.
class Supply : public QObject {
    Q_OBJECT

public:
    /// Curve files are looked for below each of `folders`, the first first.
    Supply(std::unique_ptr<psu::HidBackend> backend, psu::MonitorTiming timing, QStringList folders,
           QObject *parent = nullptr);

    /// Opens the supply for the first time and identifies it. True when its model is supported (main path) or
    /// the raw device was found; a supply that takes longer to tell its model is identified when it has.
    bool identifyModel();

    /// Reopens the supply; see psu::SupplyMonitor::connectPsu(). One that has never told its model is asked
    /// for it; a model that is known is not asked again.
    bool connectPsu();

    [[nodiscard]] psu::SupplyMonitor &monitor() { return monitor_; }
    [[nodiscard]] const psu::SupplyMonitor &monitor() const { return monitor_; }
    [[nodiscard]] const power::EfficiencyTable &efficiency() const { return efficiency_; }
    [[nodiscard]] const power::EfficiencyProfile &profile() const { return efficiency_.profile(); }
    /// A quantity of the latest sample, by its key in the record; nothing while the supply does not answer,
    /// or has never told it.
    [[nodiscard]] std::optional<double> fresh(const char *key) const;
    /// Output power as a fraction of the rated watts; nothing likewise, or while the model is not known.
    [[nodiscard]] std::optional<double> freshLoad() const;
    /// A supply is connected, by either path.
    [[nodiscard]] bool present() const { return monitor_.mainPathPresent() || monitor_.rawPathPresent(); }
    /// The model is one of the lists'.
    [[nodiscard]] bool identified() const { return identified_; }

signals:
    /// The model was identified, or its curve loaded for the other mains voltage.
    void profileChanged();
    /// The supply was opened again: what it is to do has to be sent again.
    void reopened();

private:
    void recognise();

    power::EfficiencyTable efficiency_;
    psu::SupplyMonitor monitor_;
    bool identified_ = false;
};

/// The supply's own serial number, or the one that its owner has filled in where it tells none.
[[nodiscard]] QString serialNumber(const Supply &supply, const Settings &settings);

} // namespace zpsg::app
