// The first page: what the supply delivers, what it takes, how it feels.
#pragma once

#include <QWidget>

#include <array>

class QGridLayout;

namespace zpsg::psu {
class TelemetryRecord;
enum class LinkState;
} // namespace zpsg::psu

namespace zpsg::ui {

class ArcGauge;
class ConnectionBanner;
class PowerTrace;
class RailCard;

/// Shows figures only of readings: a record taken in while the supply is not live is looked at for nothing,
/// since it holds the start values of a fresh record or what was read earlier.
class DashboardPage : public QWidget {
    Q_OBJECT

public:
    explicit DashboardPage(QWidget *parent = nullptr);

    /// To be called once a second, whatever the state: while the supply is not live the trace gets a gap.
    void showReading(const psu::TelemetryRecord &record, qint64 msSinceEpoch);
    /// Without a supply, or without access to it, no value is shown; a silent one's last values stay, in
    /// grey.
    void showLinkState(psu::LinkState state, const QString &modelText);
    /// The supply is a simulated one.
    void setDemo(bool demo);
    /// The command that gives this user access to the device.
    void setRemedy(const QString &command);
    /// Rated output of the identified model; 0 or less when it is not known.
    void setRatedWatts(double watts);
    /// Disables everything but the banner.
    void setContentEnabled(bool enabled);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void retranslate();
    void scaleOutput();
    void setStale(bool stale);
    void clearValues();
    void noteLoad(double watts);

    psu::LinkState state_{}; ///< no device until told otherwise
    double ratedWatts_ = 0.0;
    ConnectionBanner *banner_;
    QWidget *content_;
    QGridLayout *figures_; ///< of the gauges and rails
    ArcGauge *output_;
    ArcGauge *input_;
    ArcGauge *temperature_;
    ArcGauge *fan_;
    std::array<RailCard *, 3> rails_{};
    PowerTrace *trace_;
};

} // namespace zpsg::ui
