#include "app/CommandLine.h"

#include <gmock/gmock.h>

using namespace zpsg::app;

namespace {

std::optional<CommandLine> parse(const char *words, QString *why = nullptr) {
    QString error;
    auto line = parseCommandLine(QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts), error);
    EXPECT_NE(line.has_value(), !error.isEmpty()) << words;
    EXPECT_FALSE(error.contains(QLatin1Char('\n')));
    if (why != nullptr) {
        *why = error;
    }
    return line;
}

TEST(CommandLine, StartsHiddenOnlyForTheExactFirstWord) {
    EXPECT_TRUE(parse("open")->startHidden);
    EXPECT_TRUE(parse("open --demo")->startHidden);
    for (const char *words : {"", "opened", "Open", "ope", "--demo open"}) {
        EXPECT_FALSE(parse(words)->startHidden) << words;
    }
    EXPECT_EQ(parse("opened")->ignored, QStringList(QStringLiteral("opened")));
}

TEST(CommandLine, UnderstandsItsOptions) {
    EXPECT_TRUE(parse("--demo")->demo);
    EXPECT_EQ(parse("--demo=CVA-0750-G")->demoModel, QStringLiteral("CVA-0750-G"));
    EXPECT_EQ(*parse("--data-dir /a/b")->dataDir, QStringLiteral("/a/b"));
    EXPECT_EQ(*parse("--data-dir=/a=b")->dataDir, QStringLiteral("/a=b"));
    const auto both = parse("--headless --json");
    EXPECT_TRUE(both->headless && both->json);
    EXPECT_FALSE(parse("")->dataDir);
}

TEST(CommandLine, RefusesWhatItDoesNotUnderstand) {
    const std::string longModel = "--demo=" + std::string(63, 'X');
    for (const char *words : {"--nonsense", "-x", "--data-dir", "--data-dir=", "--demo=", longModel.c_str(),
                              "--json", "--headless=1", "--demo=\xC3\x84"}) {
        QString error;
        EXPECT_FALSE(parse(words, &error)) << words;
    }
}

TEST(CommandLine, HelpFitsATerminalAndNamesEveryOption) {
    const auto lines = helpText().split(QLatin1Char('\n'));
    for (const auto &line : lines) {
        EXPECT_LE(line.size(), 80) << line.toStdString();
    }
    for (const char *option :
         {"open", "--demo", "--data-dir", "--headless", "--json", "--list-models", "--version", "--help"}) {
        EXPECT_TRUE(helpText().contains(QLatin1String(option))) << option;
    }
}

} // namespace
