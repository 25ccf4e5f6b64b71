// What is known of the identified model: its profile, and the efficiency curve for the mains voltage at hand.
#pragma once

#include "power/ModelTable.h"
#include "psu/TelemetryRecord.h"

#include <QStringList>

#include <vector>

namespace zpsg::power {

/// Written by the rows of the model table; a column that a row leaves out keeps its value.
struct EfficiencyProfile {
    float ratedWatts = 0.0F; ///< 350 to 1500; 0 while no model was identified
    QString efficiencyFile;  ///< base name of the curve file; empty while none was named
    bool fanLighting = false;
    bool customFanSpeed = false;
    bool addressableLeds = false;
    std::int32_t seriesCode = 0; ///< 0 single ring, 1 ring of 12 LEDs, 2 Duo set
    std::int32_t seriesNumber = 0;
};

/// Where a model was found.
enum class ModelKind { Unknown, CurveBacked, Enhanced };

/// The mains voltage above which the 230 V band of a curve applies, volts.
inline constexpr float kBandBoundVolts = 130.0F;

/// The curve whose file stands in for one that is missing.
inline constexpr const char *kFallbackCurve = "ZPSG_DUO_100";

/// GUI thread only.
class EfficiencyTable {
public:
    /// Curve files are looked for as "BOX/NAME.ini" below each of `folders`, the first first.
    explicit EfficiencyTable(QStringList folders) : folders_(std::move(folders)) {}

    /// Applies the row whose code the text is or continues. False, with the debug line "no such file" and
    /// nothing changed, when there is none.
    bool selectEfficiencyProfile(const QString &modelCode);
    /// The same among the supplies that measure their own efficiency: rated watts and flags only.
    bool selectEnhancedProfile(const QString &modelCode);

    /// Takes in an identified model. `modelCode` may contain "-". For a curve-backed one it applies the row
    /// and loads the curve for the record's "VIN"; a missing file is replaced by kFallbackCurve, and what
    /// can't be read leaves the list as it was, with a debug line that says why.
    void loadEfficiencyTable(const QString &modelCode, ModelKind kind, const psu::TelemetryRecord &record);

    /// The last step of a reading: "WATTS" from the rails in single precision, and "EFF" from the curve.
    /// Beyond the curve's end its last entry counts; without a curve "EFF" keeps its value. A curve that was
    /// loaded before the mains voltage had been measured is loaded again here when it was the other band's.
    void complete(psu::TelemetryRecord &record);

    [[nodiscard]] const EfficiencyProfile &profile() const { return profile_; }
    [[nodiscard]] ModelKind kind() const { return kind_; }
    /// Percent, one entry for each 10 W of output power. Each load lengthens the list by its number of
    /// entries and writes its curve over the front.
    [[nodiscard]] const std::vector<float> &CWTwattsValueList() const { return CWTwattsValueList_; }
    /// The front part of the list that the last load filled; empty without a curve.
    [[nodiscard]] std::vector<float> curve() const;
    /// "AC115" or "AC230"; empty before the first load.
    [[nodiscard]] const QString &bandKey() const { return bandKey_; }
    /// Changes whenever the profile or the curve may have changed.
    [[nodiscard]] int revision() const { return revision_; }

private:
    void apply(const ModelRow &row);
    [[nodiscard]] QString curvePath() const;
    void loadCurve();

    QStringList folders_;
    EfficiencyProfile profile_;
    ModelKind kind_ = ModelKind::Unknown;
    QString modelCode_;
    QString bandKey_;
    bool bandIsProvisional_ = false; ///< chosen before the mains voltage was measured
    std::vector<float> CWTwattsValueList_;
    std::size_t steps_ = 0; ///< of the curve in front
    int revision_ = 0;
};

} // namespace zpsg::power
