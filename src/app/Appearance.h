// How the program speaks to its user: language, number format, unit of temperature, size of text.
#pragma once

#include "app/Settings.h"

#include <QLocale>
#include <QTranslator>

class QWidget;

namespace zpsg::app {

/// GUI thread only; there is one. Everything it sets is the whole program's.
class Appearance {
public:
    /// Reads the translations from `folder`. `settings` outlive it.
    Appearance(const Settings &settings, QString folder);
    ~Appearance();
    Appearance(const Appearance &) = delete;
    Appearance &operator=(const Appearance &) = delete;

    /// Brings the program in line with the settings; what is on the screen is told as it is by the system.
    void changeLanguage();
    /// The same for unit and text size, and tells `view` and all below it.
    void changeUnits(QWidget &view);

private:
    void takeUnits() const;

    const Settings &settings_;
    QString folder_;
    QLocale system_ = QLocale::system();
    QTranslator english_;
    QTranslator translator_;
};

} // namespace zpsg::app
