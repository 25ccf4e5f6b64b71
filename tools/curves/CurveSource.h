// The plain source of a family's curves (data/curves/*.json):
//     { "source": "where the numbers come from",
//       "points": { "AC115": [[load, efficiency], ...], "AC230": [...] },   both in percent, load rising
//       "curves": { "NAME": rated watts, ... } }                            one curve file each
// Further members are remarks.
#pragma once

#include "curves/CurveMaths.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

#include <optional>

namespace zpsg::curves {

struct CurveSource {
    LoadPoints ac115;
    LoadPoints ac230;
    QMap<QString, int> curves; ///< rated watts by curve name
};

/// Nothing, and `why` naming the member that is wrong.
[[nodiscard]] std::optional<CurveSource> curveSource(const QJsonObject &document, QString &why);

/// The document of a curve file (see power/CurveFile.h) for a supply of `ratedWatts`.
[[nodiscard]] QJsonObject curveDocument(const CurveSource &source, int ratedWatts);

/// The object as JSON text with its members in an order for people: numbered ones by their number.
[[nodiscard]] QByteArray readableJson(const QJsonObject &object);

} // namespace zpsg::curves
