#include "app/Languages.h"

#include <algorithm>

namespace zpsg::app {
namespace {

/// Both are read by the same readers: the two ways to write Chinese are languages of their own here.
bool sameLanguage(const QLocale &one, const QLocale &other) {
    return one.language() == other.language() &&
           (one.language() != QLocale::Chinese || one.script() == other.script());
}

} // namespace

const Language &languageFor(const QString &chosen, const QLocale &system) {
    const auto named = std::find_if(kLanguages.begin(), kLanguages.end(), [&chosen](const Language &each) {
        return chosen == QLatin1String(each.code);
    });
    if (named != kLanguages.end()) {
        return *named;
    }
    for (const QString &wanted : system.uiLanguages()) {
        const auto spoken =
            std::find_if(kLanguages.begin(), kLanguages.end(), [&wanted](const Language &each) {
                return sameLanguage(QLocale(wanted), QLocale(QLatin1String(each.locale)));
            });
        if (spoken != kLanguages.end()) {
            return *spoken;
        }
    }
    return kLanguages.front();
}

QLocale localeFor(const Language &language, const QLocale &system) {
    const QLocale own(QLatin1String(language.locale));
    return sameLanguage(own, system) ? system : own;
}

} // namespace zpsg::app
