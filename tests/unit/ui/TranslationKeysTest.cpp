// Every key that the program asks for has an English text, and the texts of all languages take what the
// program puts into them.

#include "lighting/Effects.h"
#include "lighting/LightingState.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace zpsg::ui::test {
namespace {

QString contents(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

/// Keys and texts of a language; a key that is there twice is a failure.
QMap<QString, QString> textsOf(const QString &language) {
    QMap<QString, QString> texts;
    QXmlStreamReader xml(contents(QStringLiteral(ZPSG_SOURCE_DIR "/data/translations/%1.ts").arg(language)));
    QString id;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("message")) {
            id = xml.attributes().value(QStringLiteral("id")).toString();
            EXPECT_FALSE(texts.contains(id)) << qPrintable(id) << " twice";
        } else if (xml.name() == QLatin1String("translation")) {
            EXPECT_FALSE(xml.attributes().hasAttribute(QStringLiteral("type")))
                << qPrintable(id) << " unfinished";
            texts.insert(id, xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return texts;
}

QMap<QString, QString> englishTexts() { return textsOf(QStringLiteral("en")); }

/// The places for figures, "%1" and on, each as often as it is there.
QStringList placesIn(const QString &text) {
    static const QRegularExpression place(QStringLiteral("%[0-9]"));
    QStringList places;
    auto matches = place.globalMatch(text);
    while (matches.hasNext()) {
        places << matches.next().captured();
    }
    places.sort();
    return places;
}

QSet<QString> keysInSources() {
    static const QRegularExpression call(QStringLiteral("(?:qtTrId|QT_TRID_NOOP)\\(\\s*\"([^\"]+)\""));
    QSet<QString> keys;
    QDirIterator files(QStringLiteral(ZPSG_SOURCE_DIR "/src"),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        auto matches = call.globalMatch(contents(files.next()));
        while (matches.hasNext()) {
            keys.insert(matches.next().captured(1));
        }
    }
    return keys;
}

TEST(TranslationKeys, EveryKeyHasAnEnglishText) {
    const auto texts = englishTexts();
    const QSet<QString> keys = keysInSources();
    ASSERT_GT(keys.size(), 20) << "the search finds the calls";
    static const QRegularExpression shape(QStringLiteral("^[A-Z]+(_[A-Za-z0-9]+)+$"));
    for (const QString &key : keys) {
        EXPECT_TRUE(shape.match(key).hasMatch()) << qPrintable(key);
        EXPECT_FALSE(texts.value(key).isEmpty()) << qPrintable(key);
    }
    for (const char *key : {"TRAYICON_NAME", "TRAYICON_LAUNCH", "TRAYICON_EXIT"}) {
        EXPECT_FALSE(texts.value(QString::fromLatin1(key)).isEmpty()) << key;
    }
}

TEST(TranslationKeys, EveryNameOfALightModeHasAnEnglishText) {
    const auto texts = englishTexts();
    const auto expectTexts = [&texts](const auto &rows) {
        for (const auto &row : rows) {
            if (row.textKey != nullptr) {
                EXPECT_FALSE(texts.value(QString::fromLatin1(row.textKey)).isEmpty()) << row.textKey;
            }
        }
    };
    expectTexts(lighting::kSingleLightModes);
    expectTexts(lighting::kPlusLightModes);
    expectTexts(lighting::kSpeeds);
    expectTexts(lighting::duoEffects());
}

TEST(TranslationKeys, EveryLanguageIsComplete) {
    const auto english = englishTexts();
    for (const char *language : {"tc", "sc", "fr", "de", "jp", "ru", "sh"}) {
        SCOPED_TRACE(language);
        const auto texts = textsOf(QString::fromLatin1(language));
        EXPECT_EQ(texts.keys(), english.keys());
        int same = 0;
        for (auto text = texts.constBegin(); text != texts.constEnd(); ++text) {
            const QString original = english.value(text.key());
            EXPECT_FALSE(text->isEmpty()) << qPrintable(text.key());
            EXPECT_EQ(placesIn(*text), placesIn(original)) << qPrintable(text.key());
            same += *text == original ? 1 : 0;
        }
        EXPECT_LT(same, english.size() / 8) << "texts that were not translated";
    }
}

TEST(TranslationKeys, TextsHaveThePlacesForTheirFigures) {
    const auto texts = englishTexts();
    for (const char *key : {"MAIN_STR_LOAD", "MAIN_STR_TRACE_SUMMARY"}) {
        EXPECT_TRUE(texts.value(QString::fromLatin1(key)).contains(QStringLiteral("%1"))) << key;
        EXPECT_TRUE(texts.value(QString::fromLatin1(key)).contains(QStringLiteral("%2"))) << key;
    }
    EXPECT_TRUE(texts.value(QStringLiteral("MAIN_STR_MINUTES_AGO")).contains(QStringLiteral("%1")));
}

} // namespace
} // namespace zpsg::ui::test
