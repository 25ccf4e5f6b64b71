// The first page: what the supply delivers, what it takes, how it feels.
#pragma once

#include <QWidget>

#include <array>
#include <optional>
#include <vector>

class QBoxLayout;

namespace zpsg::psu {
class TelemetryRecord;
enum class LinkState;
} // namespace zpsg::psu

namespace zpsg::ui {

class ArcGauge;
class ConnectionBanner;
class RailCard;
class TrendPanel;

/// Shows figures only of readings: a record taken in while the supply is not live is looked at for nothing,
/// since it holds the start values of a fresh record or what was read earlier.
class DashboardPage : public QWidget {
    Q_OBJECT

public:
    /// What is shown beside the record's own values.
    struct Shown {
        /// As supervised, volts, in the order 12 V, 5 V, 3.3 V.
        std::array<double, 3> railVolts{};
        /// Percent; nothing when it is not known.
        std::optional<double> efficiency;
    };

    explicit DashboardPage(QWidget *parent = nullptr);

    /// To be called once a second, whatever the state: while the supply is not live the trace gets a gap.
    void showReading(const psu::TelemetryRecord &record, const Shown &shown, qint64 msSinceEpoch);
    /// Without a supply, or without access to it, no value is shown; a silent one's last values stay, in
    /// grey.
    void showLinkState(psu::LinkState state, const QString &modelText);
    /// The supply is a simulated one.
    void setDemo(bool demo);
    /// The command that gives this user access to the device.
    void setRemedy(const QString &command);
    /// Rated output of the identified model; 0 or less when it is not known.
    void setRatedWatts(double watts);
    /// See EfficiencyView::setCurve().
    void setCurve(const std::vector<float> &percentPerTenWatts, double ratedWatts, bool band230);
    /// See DayView::showDay().
    void showDay(const std::vector<float> &bucketWatts, int usageMinutes, int bucketNow);
    [[nodiscard]] TrendPanel *trends() const { return trends_; }
    /// Puts a banner between the connection's and the figures; the page owns it then. To be called once.
    void setAlarmBanner(QWidget *banner);
    /// Disables the figures of the supply while it is not there.
    void setContentEnabled(bool enabled);

signals:
    /// See ConnectionBanner.
    void demoRequested();
    void demoEndRequested();

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
    void showTemperature();
    void showFan(const psu::TelemetryRecord &record);
    void showEfficiency(std::optional<double> watts, std::optional<double> percent);

    psu::LinkState state_{}; ///< no device until told otherwise
    double ratedWatts_ = 0.0;
    std::optional<double> celsius_; ///< as shown
    ConnectionBanner *banner_;
    QWidget *content_;
    std::array<QBoxLayout *, 4> spaced_{}; ///< those with a gap between cards
    ArcGauge *output_;
    ArcGauge *efficiency_;
    ArcGauge *temperature_;
    ArcGauge *fan_;
    ArcGauge *input_;
    std::array<RailCard *, 3> rails_{};
    TrendPanel *trends_;
};

} // namespace zpsg::ui
