#include "curves/CurveSource.h"

#include "power/CurveFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace zpsg::curves {
namespace {

/// No points, and `why`, when the band's are not well formed or no curve can be made of them.
LoadPoints bandPoints(const QJsonObject &document, const QString &band, QString &why) {
    LoadPoints points;
    const QJsonValue rows = document.value(QStringLiteral("points")).toObject().value(band);
    for (const auto &row : rows.toArray()) {
        const QJsonArray pair = row.toArray();
        if (pair.size() != 2 || !pair.at(0).isDouble() || !pair.at(1).isDouble()) {
            why = QStringLiteral("\"points\", \"%1\": not every element is [load, efficiency]").arg(band);
            return {};
        }
        points.push_back({pair.at(0).toDouble(), pair.at(1).toDouble()});
    }
    if (!areUsable(points)) {
        why = QStringLiteral("\"points\", \"%1\": needs two or more with loads above 0 up to 100 and "
                             "efficiencies between 0 and 100 percent; load and loss must rise")
                  .arg(band);
        return {};
    }
    return points;
}

QJsonObject members(const LossCurve &curve, int ratedWatts) {
    QJsonObject object;
    int k = 0;
    for (const double percent : entries(curve, ratedWatts)) {
        object.insert(QString::number(++k), percent);
    }
    return object;
}

/// A member's name or value as JSON text.
QByteArray leaf(const QJsonValue &value) {
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

/// Numbers come first, by value; among other names the alphabet decides.
bool comesBefore(const QString &one, const QString &other) {
    bool isNumber = false;
    bool isOtherNumber = false;
    const int number = one.toInt(&isNumber);
    const int otherNumber = other.toInt(&isOtherNumber);
    if (isNumber != isOtherNumber) {
        return isNumber;
    }
    return isNumber && number != otherNumber ? number < otherNumber : one < other;
}

QByteArray readable(const QJsonObject &object, const QByteArray &indent) {
    QStringList names = object.keys();
    std::sort(names.begin(), names.end(), comesBefore);
    const QByteArray inner = indent + "    ";
    QByteArray text("{");
    for (const QString &name : names) {
        const QJsonValue value = object.value(name);
        text += (text.size() > 1 ? ",\n" : "\n") + inner + leaf(name) + ": " +
                (value.isObject() ? readable(value.toObject(), inner) : leaf(value));
    }
    return text + (names.isEmpty() ? QByteArray("}") : "\n" + indent + "}");
}

} // namespace

std::optional<CurveSource> curveSource(const QJsonObject &document, QString &why) {
    CurveSource source;
    if (document.value(QStringLiteral("source")).toString().isEmpty()) {
        why = QStringLiteral("\"source\" does not say where the numbers come from");
        return std::nullopt;
    }
    source.ac115 = bandPoints(document, QStringLiteral("AC115"), why);
    if (source.ac115.empty()) {
        return std::nullopt;
    }
    source.ac230 = bandPoints(document, QStringLiteral("AC230"), why);
    if (source.ac230.empty()) {
        return std::nullopt;
    }
    // A name becomes a file's name: nothing in it may lead out of the folder.
    static const QRegularExpression wellFormed(QStringLiteral("\\A[A-Za-z0-9_]+\\z"));
    const QJsonObject curves = document.value(QStringLiteral("curves")).toObject();
    for (auto curve = curves.begin(); curve != curves.end(); ++curve) {
        const int ratedWatts = curve.value().toInt(0);
        if (!wellFormed.match(curve.key()).hasMatch() || ratedWatts < 1 ||
            entryCount(ratedWatts) > power::kMostCurveSteps) {
            why =
                QStringLiteral("\"curves\", \"%1\": is no name of letters, digits and \"_\" with whole rated "
                               "watts from 1 to %2")
                    .arg(curve.key())
                    .arg(power::kMostCurveSteps * 8); // 10 W an entry, up to 125 %
            return std::nullopt;
        }
        source.curves.insert(curve.key(), ratedWatts);
    }
    if (source.curves.isEmpty()) {
        why = QStringLiteral("\"curves\" names none");
        return std::nullopt;
    }
    return source;
}

QJsonObject curveDocument(const CurveSource &source, int ratedWatts) {
    const auto [ac115, ac230] = lossCurves(source.ac115, source.ac230);
    return {{QStringLiteral("dataSize"), entryCount(ratedWatts)},
            {QStringLiteral("AC115"), members(ac115, ratedWatts)},
            {QStringLiteral("AC230"), members(ac230, ratedWatts)}};
}

QByteArray readableJson(const QJsonObject &object) { return readable(object, {}) + "\n"; }

} // namespace zpsg::curves
