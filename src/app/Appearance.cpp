#include "app/Appearance.h"

#include "app/Languages.h"
#include "app/Logging.h"
#include "ui/Style.h"
#include "ui/Temperature.h"

#include <QCoreApplication>
#include <QResizeEvent>
#include <QWidget>

namespace zpsg::app {

Appearance::Appearance(const Settings &settings, QString folder)
    : settings_(settings), folder_(std::move(folder)) {
    // English lies below every language, so that a text which a translation lacks is readable all the same.
    if (english_.load(QStringLiteral("en.qm"), folder_)) {
        QCoreApplication::installTranslator(&english_);
    } else {
        qCWarning(lcApp).noquote() << "no translation file" << folder_ + QStringLiteral("/en.qm");
    }
    changeLanguage();
    takeUnits();
}

Appearance::~Appearance() {
    QCoreApplication::removeTranslator(&translator_);
    QCoreApplication::removeTranslator(&english_);
}

void Appearance::changeLanguage() {
    const Language &language = languageFor(settings_.text(Setting::Language), system_);
    QLocale::setDefault(localeFor(language, system_));
    QCoreApplication::removeTranslator(&translator_);
    const QString name = QLatin1String(language.code) + QStringLiteral(".qm");
    if (translator_.load(name, folder_)) {
        QCoreApplication::installTranslator(&translator_);
    } else {
        qCWarning(lcApp).noquote() << "no translation file" << folder_ + QLatin1Char('/') + name;
    }
}

void Appearance::takeUnits() const {
    ui::setTemperatureUnit(static_cast<ui::TemperatureUnit>(settings_.integer(Setting::TempType)));
    ui::style::setLargeText(settings_.integer(Setting::TextSize) == 1);
}

void Appearance::changeUnits(QWidget &view) {
    takeUnits();
    QEvent texts(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&view, &texts);
    for (QWidget *widget : view.findChildren<QWidget *>()) {
        QResizeEvent sizes(widget->size(), widget->size());
        QCoreApplication::sendEvent(widget, &sizes);
    }
    QResizeEvent size(view.size(), view.size());
    QCoreApplication::sendEvent(&view, &size);
}

} // namespace zpsg::app
