#include "power/CurveFile.h"

#include "cipher/TextCipher.h"
#include "storage/WholeFile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QSettings>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zpsg::power {
namespace {

/// A curve of kMostCurveSteps is about 80 kB.
constexpr qint64 kMostFileBytes = qint64{1024} * 1024;
constexpr double kHighestPercent = 100.0;

const QString kSize = QStringLiteral("dataSize");
const std::array kBands{QStringLiteral("AC115"), QStringLiteral("AC230")};

/// A number, or a text that is one. Nothing for what is neither, and for what a float can't hold.
std::optional<float> numberOf(const QJsonValue &member) {
    bool ok = member.isDouble();
    const double number = ok ? member.toDouble() : member.toString().toDouble(&ok);
    if (!ok || !std::isfinite(number) || std::abs(number) > std::numeric_limits<float>::max()) {
        return std::nullopt;
    }
    return static_cast<float>(number);
}

/// What is wrong with a band of `steps` entries; empty when nothing is.
QString bandProblem(const QJsonObject &members, const QString &band, int steps) {
    for (int k = 1; k <= steps; ++k) {
        const QString name = QString::number(k);
        if (!members.contains(name)) {
            return QStringLiteral("member \"%1\" of \"%2\" is missing").arg(name, band);
        }
        const auto percent = numberOf(members.value(name));
        if (!percent || *percent < 0 || *percent > kHighestPercent) {
            return QStringLiteral("member \"%1\" of \"%2\" is no percentage from 0 to 100").arg(name, band);
        }
    }
    for (auto member = members.begin(); member != members.end(); ++member) {
        bool ok = false;
        const int k = member.key().toInt(&ok);
        if (!ok || k < 1 || k > steps || QString::number(k) != member.key()) {
            return QStringLiteral("member \"%1\" of \"%2\" is none of 1 to %3, the \"dataSize\"")
                .arg(member.key(), band)
                .arg(steps);
        }
    }
    return {};
}

} // namespace

std::optional<QJsonObject> readCurveFile(const QString &path, QString &why) {
    const QFileInfo info(path);
    if (!info.isFile()) {
        why = QStringLiteral("there is no such file");
        return std::nullopt;
    }
    if (info.size() > kMostFileBytes) {
        why = QStringLiteral("is larger than a curve file can be");
        return std::nullopt;
    }
    const QSettings file(path, QSettings::IniFormat);
    // A comma in the file makes a list of the value; an enciphered text has none.
    const QStringList value = file.value(QStringLiteral("EFF/eff_value")).toStringList();
    const QByteArray text = value.join(QLatin1Char(',')).toLatin1();
    if (text.isEmpty()) {
        why = file.status() == QSettings::AccessError
                  ? QStringLiteral("can't be read")
                  : QStringLiteral("has no \"eff_value\" in the group \"EFF\"");
        return std::nullopt;
    }
    const auto plain = cipher::decipher(text);
    if (!plain) {
        why = QStringLiteral("was changed or is damaged: its \"eff_value\" can't be deciphered");
        return std::nullopt;
    }
    const auto document = QJsonDocument::fromJson(*plain);
    if (!document.isObject()) {
        why = QStringLiteral("holds no JSON object");
        return std::nullopt;
    }
    return document.object();
}

bool writeCurveFile(const QString &path, const QJsonObject &document, QString &why) {
    why = curveProblem(document);
    if (!why.isEmpty()) {
        return false;
    }
    const QByteArray text = cipher::encipher(QJsonDocument(document).toJson(QJsonDocument::Compact));
    if (text.isEmpty()) {
        why = QStringLiteral("can't be enciphered");
        return false;
    }
    // The text can hold a "=", which the INI reader takes as it is only between quotes.
    return storage::replaceFile(path, "[EFF]\neff_value=\"" + text + "\"\n", why);
}

int curveSteps(const QJsonObject &document) {
    const double size = document.value(kSize).toDouble(0);
    if (size != std::trunc(size)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(size, kLowest, kHighest));
}

std::optional<std::vector<float>> curveBand(const QJsonObject &document, const QString &band, QString &why) {
    const int steps = curveSteps(document);
    if (steps < 0 || steps > kMostCurveSteps) {
        why = QStringLiteral("\"dataSize\" is not from 0 to %1").arg(kMostCurveSteps);
        return std::nullopt;
    }
    if (!document.value(band).isObject()) {
        why = QStringLiteral("has no object \"%1\"").arg(band);
        return std::nullopt;
    }
    const QJsonObject members = document.value(band).toObject();
    std::vector<float> entries;
    entries.reserve(static_cast<std::size_t>(steps));
    for (int k = 1; k <= steps; ++k) {
        entries.push_back(numberOf(members.value(QString::number(k))).value_or(0.0F));
    }
    return entries;
}

QString curveProblem(const QJsonObject &document) {
    const int steps = curveSteps(document);
    if (steps < 1 || steps > kMostCurveSteps) {
        return QStringLiteral("\"dataSize\" is no whole number from 1 to %1").arg(kMostCurveSteps);
    }
    for (const QString &band : kBands) {
        if (!document.value(band).isObject()) {
            return QStringLiteral("\"%1\" is missing or no object").arg(band);
        }
        QString problem = bandProblem(document.value(band).toObject(), band, steps);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

} // namespace zpsg::power
