#include "curves/CurveTool.h"
#include "curves/CurveMaths.h"
#include "power/CurveFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cmath>

using namespace zpsg::curves;

namespace {

const LoadPoints kLow{{2, 70}, {10, 90}, {20, 92}, {50, 94}, {100, 90}};
const LoadPoints kHigh{{2, 70}, {10, 90}, {20, 94}, {50, 96}, {100, 94}};

TEST(CurveMaths, GoesThroughItsPointsSmoothlyAndRises) {
    const auto [low, high] = lossCurves(kLow, kHigh);
    for (const auto &[curve, points] : {std::pair(low, kLow), std::pair(high, kHigh)}) {
        for (const LoadPoint &point : points) {
            EXPECT_NEAR(curve.efficiencyPercent(point.loadPercent / 100), point.efficiencyPercent, 1e-9);
        }
        EXPECT_GT(curve.loss(0), 0);
        EXPECT_EQ(curve.efficiencyPercent(0), 0);
        // A step of the loss, or of its slope, would stay as large however short the step of the load is.
        constexpr double kStep = 1e-5;
        for (int i = 1; i < 125000; ++i) {
            const double load = i * kStep;
            const double before = curve.loss(load) - curve.loss(load - kStep);
            const double after = curve.loss(load + kStep) - curve.loss(load);
            ASSERT_GT(after, 0) << load;
            ASSERT_LT(after, kStep) << load;
            ASSERT_LT(std::abs(after - before) / kStep, 1e-4) << load;
            ASSERT_GE(low.loss(load), high.loss(load)) << load;
        }
    }
}

TEST(CurveMaths, AnyUsablePointsGiveARisingLoss) {
    for (const LoadPoints &points :
         {LoadPoints{{20, 80}, {100, 90}}, LoadPoints{{1, 99}, {2, 98}, {100, 97}},
          LoadPoints{{2, 60}, {3, 40}, {100, 90}}, LoadPoints{{50, 94}, {51, 90}, {100, 89}},
          LoadPoints{{20, 80}, {50, 90}, {60, 70}, {100, 75}}}) {
        ASSERT_TRUE(areUsable(points));
        const auto [curve, same] = lossCurves(points, points);
        EXPECT_GT(curve.loss(0), 0);
        for (int i = 1; i <= 1250; ++i) {
            ASSERT_GE(curve.loss(i / 1000.0), curve.loss((i - 1) / 1000.0)) << i;
        }
    }
    for (const LoadPoints &points :
         {LoadPoints{}, LoadPoints{{50, 90}}, LoadPoints{{0, 90}, {50, 91}}, LoadPoints{{20, 100}, {50, 90}},
          LoadPoints{{50, 90}, {20, 90}}, LoadPoints{{20, 90}, {101, 90}}, LoadPoints{{20, 60}, {50, 95}}}) {
        EXPECT_FALSE(areUsable(points));
    }
}

TEST(CurveMaths, EntriesAreTheMiddlesOfTheirSteps) {
    const auto [low, high] = lossCurves(kLow, kHigh);
    const auto list = entries(low, 750);
    EXPECT_EQ(list.size(), 94U); // 125 % of 750 W is 937.5 W
    EXPECT_EQ(list.at(7), 90);   // 70 to 80 W, and 10 % of 750 W is 75 W
    EXPECT_EQ(entryCount(1000), 125);
}

class CurveToolTest : public ::testing::Test {
protected:
    QString put(const char *name, const QByteArray &content) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path(name);
    }

    [[nodiscard]] QByteArray content(const char *name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    [[nodiscard]] QString path(const char *name) const { return dir.filePath(QLatin1String(name)); }

    ExitCode run(const QStringList &arguments) {
        QBuffer out(&printed);
        QBuffer err(&complaint);
        out.open(QIODevice::WriteOnly | QIODevice::Truncate);
        err.open(QIODevice::WriteOnly | QIODevice::Truncate);
        return runTool(arguments, out, err);
    }

    QTemporaryDir dir;
    QByteArray printed;
    QByteArray complaint;
};

const QString kMake = QStringLiteral("make");
const QString kDecipher = QStringLiteral("decipher");
const QString kEncipher = QStringLiteral("encipher");

const QByteArray kSource(R"({"source": "a data sheet", "points": {"AC115": [[20, 87], [100, 87]],
 "AC230": [[20, 90], [100, 90]]}, "curves": {"ONE": 100, "TWO": 200}})");

TEST_F(CurveToolTest, ACurveGoesFromSourceToFileAndBack) {
    ASSERT_EQ(run({kMake, put("source.json", kSource), path("new/BOX")}), Done) << complaint.constData();
    EXPECT_EQ(QDir(path("new/BOX")).entryList(QDir::Files),
              QStringList({QStringLiteral("ONE.ini"), QStringLiteral("TWO.ini")}));
    ASSERT_EQ(run({kDecipher, path("new/BOX/ONE.ini")}), Done) << complaint.constData();
    EXPECT_LT(printed.indexOf(R"("9")"), printed.indexOf(R"("10")")) << "in the order of the watts";
    EXPECT_EQ(zpsg::power::curveProblem(QJsonDocument::fromJson(printed).object()), QString());
    ASSERT_EQ(run({kDecipher, path("new/BOX/ONE.ini"), path("one.json")}), Done) << complaint.constData();
    ASSERT_EQ(run({kEncipher, path("one.json"), path("again.ini")}), Done) << complaint.constData();
    EXPECT_EQ(content("again.ini"), content("new/BOX/ONE.ini"));
}

TEST_F(CurveToolTest, BadInputIsNamedAndKeepsTheOldFile) {
    struct Case {
        QString command;
        QByteArray input;
        const char *complaint;
    };
    const auto changed = [](const char *from, const char *to) {
        return QByteArray(kSource).replace(from, to);
    };
    put("out", "as before");
    for (const auto &[command, input, expected] :
         {Case{kEncipher, "{\n\"dataSize\": 2,\n}", "line 3"}, Case{kEncipher, "[]", "no JSON object"},
          Case{kEncipher, R"({"dataSize": 1, "AC115": {"1": 101}, "AC230": {"1": 1}})", R"("1" of "AC115")"},
          Case{kDecipher, "[EFF]\neff_value=1234\n", "deciphered"}, Case{kMake, "{}", R"("source")"},
          Case{kMake, changed("[100, 90]", "[100]"), R"("points", "AC230")"},
          Case{kMake, changed("[20, 87]", "[100, 87]"), R"("points", "AC115")"},
          Case{kMake, changed("TWO", "../TWO"), R"("curves", "../TWO")"},
          Case{kMake, changed("200", "16001"), R"("curves", "TWO")"},
          Case{kMake, changed("curves", "curve"), R"("curves")"}, Case{kMake, kSource, "out: "}}) {
        EXPECT_EQ(run({command, put("in", input), path("out")}), Failed) << input.constData();
        EXPECT_THAT(complaint.toStdString(), ::testing::MatchesRegex("zpsg-curve: .*\n"))
            << input.constData();
        EXPECT_THAT(complaint.toStdString(), ::testing::HasSubstr(expected)) << input.constData();
        EXPECT_EQ(content("out"), "as before") << input.constData();
        QFile::remove(path("in"));
    }
    EXPECT_EQ(run({kEncipher, path("none"), path("out")}), Failed);
    EXPECT_EQ(run({kMake, path("none"), path("out")}), Failed);
}

TEST_F(CurveToolTest, WrongUseIsToldFromFailure) {
    for (const QStringList &arguments :
         {QStringList(), QStringList{QStringLiteral("show")}, QStringList{kMake, path("in")},
          QStringList{kDecipher}, QStringList{kEncipher, path("in"), path("out"), path("more")}}) {
        EXPECT_EQ(run(arguments), WrongUse);
        EXPECT_THAT(complaint.toStdString(), ::testing::MatchesRegex("zpsg-curve: .*\n"));
    }
    EXPECT_EQ(run({QStringLiteral("--help")}), Done);
    EXPECT_TRUE(printed.contains("decipher"));
}

} // namespace
