// Reads and writes the settings files. Each write opens its file, sets its keys and closes it; the file is
// replaced as a whole or stays as it was, also when the disk is full or the process dies.
#pragma once

#include "app/SettingsTable.h"

#include <QStringList>
#include <QVariant>

#include <initializer_list>
#include <utility>
#include <vector>

namespace zpsg::app {

/// GUI thread only.
class Settings {
public:
    /// `dataDir` must exist. A file that can't be understood is copied to "NAME.damaged-TIME" before anything
    /// is written over it, with a warning.
    explicit Settings(QString dataDir);

    [[nodiscard]] bool flag(Setting id) const;
    [[nodiscard]] int integer(Setting id) const;
    [[nodiscard]] double real(Setting id) const;
    [[nodiscard]] QString text(Setting id) const;
    [[nodiscard]] QStringList list(Setting id) const;
    /// Of a row with entries: that many numbers, each within the row's range.
    [[nodiscard]] std::vector<double> numbers(Setting id) const;

    /// All values go into the file of the first, which must be the file of them all. False, with a warning
    /// once a file, when it can't be written; reading then still gives the new values until the program ends.
    bool write(std::initializer_list<std::pair<Setting, QVariant>> values);
    /// The same for values of any files; each file is written once.
    bool writeAll(const QMap<Setting, QVariant> &values);

    /// As its row's type; see the getters above.
    [[nodiscard]] QVariant value(Setting id) const;

    [[nodiscard]] QString path(SettingsFile file) const;

private:
    bool writeFile(SettingsFile where);
    void keepIfDamaged(SettingsFile file) const;

    QString dataDir_;
    QMap<Setting, QVariant> unwritten_; // what could not be written yet
    QMap<SettingsFile, bool> warned_;
};

} // namespace zpsg::app
