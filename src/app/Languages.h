// The languages that the program speaks.
#pragma once

#include <QLocale>
#include <QString>

#include <array>

namespace zpsg::app {

struct Language {
    const char *code;   ///< the name of its file in Language/, and its value among the settings
    const char *locale; ///< for numbers and dates, where the system's own locale speaks another language
};

inline constexpr std::array kLanguages{
    Language{"en", "en_GB"}, Language{"tc", "zh_TW"}, Language{"sc", "zh_CN"}, Language{"fr", "fr_FR"},
    Language{"de", "de_DE"}, Language{"jp", "ja_JP"}, Language{"ru", "ru_RU"}, Language{"sh", "es_ES"},
};

/// The language that is meant: `chosen` when it is the code of one, else the first of the user's languages in
/// `system` that the program speaks, else English.
[[nodiscard]] const Language &languageFor(const QString &chosen, const QLocale &system);

/// How numbers, dates and money are written in it: the system's own way where that is of the same language.
[[nodiscard]] QLocale localeFor(const Language &language, const QLocale &system);

} // namespace zpsg::app
