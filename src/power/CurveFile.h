// A curve file: the efficiency of one supply family over its output power, for both mains voltage bands. An
// INI file whose group "EFF" has one key "eff_value", an enciphered JSON object:
//     { "dataSize": N, "AC115": { "1": percent, ..., "N": percent }, "AC230": { ... } }
// Member k of a band is the efficiency from 10*(k-1) up to (not including) 10*k watts of output power.
#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

namespace zpsg::power {

/// Watts of output power that one entry of a curve covers.
inline constexpr float kCurveStepWatts = 10.0F;
/// More entries than any supply needs (20 kW); a "dataSize" beyond it is taken for damage.
inline constexpr int kMostCurveSteps = 2000;

/// The document in the file at `path`. Nothing, and `why` in plain words, when the file is missing or larger
/// than a curve file can be, has no "eff_value", was changed, or holds no JSON object.
[[nodiscard]] std::optional<QJsonObject> readCurveFile(const QString &path, QString &why);

/// Writes the file whole or not at all; false and `why` when it can't be written or the document is no curve
/// (see curveProblem()).
bool writeCurveFile(const QString &path, const QJsonObject &document, QString &why);

/// The number of entries, "dataSize"; 0 when it is missing or no whole number.
[[nodiscard]] int curveSteps(const QJsonObject &document);

/// The entries of the band "AC115" or "AC230", percent, as many as "dataSize" says: a member may be a number
/// or a numeric text; a missing or unreadable one counts as 0. Nothing, and `why`, when "dataSize" is
/// negative or above kMostCurveSteps, or the band is missing or no object.
[[nodiscard]] std::optional<std::vector<float>> curveBand(const QJsonObject &document, const QString &band,
                                                          QString &why);

/// What is wrong with a document that is to be written, empty when nothing is: "dataSize" must be 1 to
/// kMostCurveSteps, and each member of both bands a percentage from 0 to 100.
[[nodiscard]] QString curveProblem(const QJsonObject &document);

} // namespace zpsg::power
