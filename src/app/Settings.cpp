#include "app/Settings.h"

#include "app/Logging.h"
#include "storage/IniFile.h"

#include <QDateTime>
#include <QFile>
#include <QSettings>

#include <algorithm>
#include <cmath>

namespace zpsg::app {
namespace {

constexpr const char *kIniCodec = "UTF-8";

/// A number within the row's range; `fallback` stands in for none. What had to be mended is told.
double fittedNumber(const SettingRow &row, const QString &text, double fallback) {
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    double fitting = fallback;
    if (isNumber && std::isfinite(number)) {
        const double inside = std::clamp(number, row.lowest, row.highest);
        fitting = row.type == SettingType::Choice && inside != number ? fallback : inside;
    }
    if (!isNumber || fitting != number) {
        qCDebug(lcApp).noquote() << row.key << "holds" << text << "and is taken as" << fitting;
    }
    return row.type == SettingType::Real ? fitting : std::trunc(fitting);
}

/// What a list in a file comes as: a text of entries, or, without quotes, a list of texts.
QStringList entriesOf(const QVariant &value) {
    const QStringList parts = value.toStringList();
    return parts.join(QLatin1Char(',')).split(QLatin1Char(','));
}

QString fittedEntries(const SettingRow &row, const QVariant &value) {
    const QStringList given = entriesOf(value);
    const QStringList fallback = QString::fromLatin1(row.fallback).split(QLatin1Char(','));
    if (given.size() != row.entries) {
        qCDebug(lcApp) << row.key << "has" << given.size() << "entries instead of" << row.entries;
    }
    QStringList entries;
    for (int i = 0; i < row.entries; ++i) {
        const double instead = fallback.at(i).toDouble();
        entries << QString::number(fittedNumber(row, given.value(i), instead), 'g', 6);
    }
    return entries.join(QLatin1Char(','));
}

/// The value as its row's type, within its row's range; the default when it is not of that type.
QVariant fitted(const SettingRow &row, const QVariant &value) {
    QVariant fallback(QString::fromLatin1(row.fallback));
    if (row.entries > 0) {
        return fittedEntries(row, value);
    }
    switch (row.type) {
    case SettingType::Flag: {
        const QString word = value.toString().trimmed().toLower();
        if (word == QLatin1String("true") || word == QLatin1String("1")) {
            return true;
        }
        if (word == QLatin1String("false") || word == QLatin1String("0")) {
            return false;
        }
        return fallback.toBool();
    }
    case SettingType::Integer:
    case SettingType::Choice:
    case SettingType::Real: {
        const double number = fittedNumber(row, value.toString(), fallback.toDouble());
        return row.type == SettingType::Real ? QVariant(number) : QVariant(static_cast<int>(number));
    }
    case SettingType::List:
        return value.toString().isEmpty() && value.type() != QVariant::StringList ? QStringList()
                                                                                  : value.toStringList();
    case SettingType::Text:
        // A comma in the file makes a list of it; no text setting holds one.
        return value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(','))
                                                    : value.toString();
    }
    return fallback;
}

QString keyOf(const SettingRow &row) { return QString::fromLatin1(row.key).mid(1); }

} // namespace

Settings::Settings(QString dataDir) : dataDir_(std::move(dataDir)) {
    for (std::size_t i = 0; i < kSettingsFileNames.size(); ++i) {
        keepIfDamaged(static_cast<SettingsFile>(i));
    }
}

QString Settings::path(SettingsFile file) const {
    return dataDir_ + QLatin1String(kSettingsFileNames.at(static_cast<std::size_t>(file)));
}

void Settings::keepIfDamaged(SettingsFile file) const {
    const QString name = path(file);
    QSettings parsed(name, QSettings::IniFormat);
    parsed.setIniCodec(kIniCodec); // what is parsed here is kept for later readers
    parsed.allKeys();              // sections are parsed when they are first looked at
    if (parsed.status() != QSettings::FormatError) {
        return;
    }
    const QString copy = name + QStringLiteral(".damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QFile::copy(name, copy);
    qCWarning(lcApp).noquote() << name << "is damaged: what can be read is kept, the file as it was is"
                               << copy;
}

QVariant Settings::value(Setting id) const {
    const SettingRow &entry = row(id);
    if (const auto kept = unwritten_.constFind(id); kept != unwritten_.constEnd()) {
        return fitted(entry, *kept);
    }
    QSettings file(path(entry.file), QSettings::IniFormat);
    file.setIniCodec(kIniCodec);
    return fitted(entry, file.value(keyOf(entry), QString::fromLatin1(entry.fallback)));
}

bool Settings::flag(Setting id) const { return value(id).toBool(); }

int Settings::integer(Setting id) const { return value(id).toInt(); }

double Settings::real(Setting id) const { return value(id).toDouble(); }

QString Settings::text(Setting id) const { return value(id).toString(); }

QStringList Settings::list(Setting id) const { return value(id).toStringList(); }

std::vector<double> Settings::numbers(Setting id) const {
    const QStringList entries = text(id).split(QLatin1Char(','));
    std::vector<double> numbers;
    std::transform(entries.begin(), entries.end(), std::back_inserter(numbers),
                   [](const QString &entry) { return entry.toDouble(); });
    return numbers;
}

bool Settings::write(std::initializer_list<std::pair<Setting, QVariant>> values) {
    const SettingsFile where = row(values.begin()->first).file;
    for (const auto &[id, value] : values) {
        Q_ASSERT(row(id).file == where);
        unwritten_[id] = fitted(row(id), value);
    }
    return writeFile(where);
}

bool Settings::writeAll(const QMap<Setting, QVariant> &values) {
    QMap<SettingsFile, bool> files;
    for (auto each = values.constBegin(); each != values.constEnd(); ++each) {
        unwritten_[each.key()] = fitted(row(each.key()), *each);
        files.insert(row(each.key()).file, true);
    }
    bool written = true;
    for (const SettingsFile file : files.keys()) {
        written = writeFile(file) && written;
    }
    return written;
}

// Everything of this file that is not written yet.
bool Settings::writeFile(SettingsFile where) {
    const bool written = storage::changeIniFile(path(where), [this, where](QSettings &file) {
        file.setIniCodec(kIniCodec);
        for (auto kept = unwritten_.constBegin(); kept != unwritten_.constEnd(); ++kept) {
            if (row(kept.key()).file == where) {
                file.setValue(keyOf(row(kept.key())), *kept);
            }
        }
        return true;
    });
    if (!written) {
        if (!std::exchange(warned_[where], true)) {
            qCWarning(lcApp).noquote()
                << path(where) << "can't be written; its settings are kept until the program ends";
        }
        return false;
    }
    warned_[where] = false;
    for (auto kept = unwritten_.begin(); kept != unwritten_.end();) {
        kept = row(kept.key()).file == where ? unwritten_.erase(kept) : std::next(kept);
    }
    return true;
}

} // namespace zpsg::app
