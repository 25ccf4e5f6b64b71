// Every key that the program asks for has an English text, and the texts take what the program puts into
// them.

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

/// Keys and texts; a key that is there twice is a failure.
QMap<QString, QString> englishTexts() {
    QMap<QString, QString> texts;
    QXmlStreamReader xml(contents(QStringLiteral(ZPSG_SOURCE_DIR "/data/translations/en.ts")));
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
