#include "app/Settings.h"

#include "app/Logging.h"
#include "storage/IniFile.h"

#include <QDateTime>
#include <QFile>
#include <QSettings>

#include <algorithm>

namespace zpsg::app {
namespace {

constexpr const char *kIniCodec = "UTF-8";

/// The value as its row's type, within its row's range; the default when it is not of that type.
QVariant fitted(const SettingRow &row, const QVariant &value) {
    QVariant fallback(QString::fromLatin1(row.fallback));
    bool ok = true;
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
    case SettingType::Real: {
        double number = value.toDouble(&ok);
        if (!ok || number != number) {
            number = fallback.toDouble();
        }
        number = std::clamp(number, row.lowest, row.highest);
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

bool Settings::write(std::initializer_list<std::pair<Setting, QVariant>> values) {
    const SettingsFile where = row(values.begin()->first).file;
    for (const auto &[id, value] : values) {
        Q_ASSERT(row(id).file == where);
        unwritten_[id] = fitted(row(id), value);
    }
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
