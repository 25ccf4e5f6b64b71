#include "psu/SupplyMonitor.h"
#include "ui/Temperature.h"
#include "ui/TrayShown.h"
#include "UiFixture.h"

#include <QImage>

#include <array>
#include <set>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

constexpr std::array kSizes{16, 22, 24, 32, 48, 64};

class TrayIconTest : public UiTest {
public:
    ~TrayIconTest() override { setTemperatureUnit(TemperatureUnit::Celsius); }

protected:
    static TrayShown live(double watts = 412.0, double celsius = 41.0) {
        TrayShown shown;
        shown.state = LinkState::Live;
        shown.model = QStringLiteral("MODEL-1000");
        shown.watts = watts;
        shown.ratedWatts = 1000.0;
        shown.efficiency = 92.4;
        shown.celsius = celsius;
        shown.rpm = 960.0;
        return shown;
    }
};

/// How light each pixel is on a grey panel, 0 to 255: what is left without colour.
std::vector<int> greys(const TrayFace &face, int pixels) {
    const QImage image = trayPixmap(face, pixels).toImage().convertToFormat(QImage::Format_ARGB32);
    std::vector<int> result;
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            const QRgb pixel = image.pixel(x, y);
            result.push_back((qGray(pixel) * qAlpha(pixel) + 96 * (255 - qAlpha(pixel))) / 255);
        }
    }
    return result;
}

/// The mean difference of two icons.
double apart(const std::vector<int> &a, const std::vector<int> &b) {
    double sum = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        sum += std::abs(a.at(i) - b.at(i));
    }
    return sum / static_cast<double>(a.size());
}

TEST_F(TrayIconTest, TheFaceSaysWhatTheSettingAsksForAndHowItIs) {
    struct Case {
        const char *what;
        TrayShown shown;
        const char *figure;
        double share;
        TrayLevel level;
    };
    const auto with = [](TrayShown shown, auto change) {
        change(shown);
        return shown;
    };
    const std::array cases{
        Case{"load", live(), "41", 0.4, TrayLevel::Normal},
        Case{"high load", live(905.0), "91", 0.9, TrayLevel::NearLimit},
        Case{"more than rated", live(1204.0), "120", 1.0, TrayLevel::NearLimit},
        Case{"warm, whatever is shown", live(412.0, 56.0), "41", 0.4, TrayLevel::NearLimit},
        Case{"rating unknown", with(live(), [](auto &s) { s.ratedWatts = 0.0; }), "", 0.75,
             TrayLevel::Normal},
        Case{"temperature", with(live(), [](auto &s) { s.figure = TrayFigure::Temperature; }), "41", 0.5,
             TrayLevel::Normal},
        Case{"no temperature",
             with(live(),
                  [](auto &s) {
                      s.figure = TrayFigure::Temperature;
                      s.celsius.reset();
                  }),
             "", 0.75, TrayLevel::Normal},
        Case{"nothing", with(live(950.0), [](auto &s) { s.figure = TrayFigure::None; }), "", 0.75,
             TrayLevel::NearLimit},
        Case{"alarm", with(live(), [](auto &s) { s.alarm = QStringLiteral("Fan"); }), "41", 0.4,
             TrayLevel::Alarm},
        Case{"silent: old values are no values",
             with(live(),
                  [](auto &s) {
                      s.state = LinkState::Silent;
                      s.alarm = QStringLiteral("Fan");
                  }),
             "", 0.0, TrayLevel::NotConnected},
    };
    for (const Case &c : cases) {
        const TrayFace face = trayFace(c.shown);
        EXPECT_EQ(face.figure, QString::fromLatin1(c.figure)) << c.what;
        EXPECT_DOUBLE_EQ(face.share, c.share) << c.what;
        EXPECT_EQ(face.level, c.level) << c.what;
    }
    setTemperatureUnit(TemperatureUnit::Fahrenheit);
    TrayShown shown = live();
    shown.figure = TrayFigure::Temperature;
    EXPECT_EQ(trayFace(shown).figure, QStringLiteral("106"));
}

TEST_F(TrayIconTest, TheFaceStaysWhileThereIsNothingNewToSee) {
    EXPECT_EQ(trayFace(live(412.0)), trayFace(live(413.9, 44.0)));
    EXPECT_FALSE(trayFace(live(412.0)) == trayFace(live(418.0)));
}

TEST_F(TrayIconTest, LevelsAndFiguresDifferWithoutColourAtEverySize) {
    for (const int pixels : kSizes) {
        for (const char *figure : {"41", "100", ""}) {
            std::vector<std::vector<int>> icons;
            for (const TrayLevel level :
                 {TrayLevel::Normal, TrayLevel::NearLimit, TrayLevel::Alarm, TrayLevel::NotConnected}) {
                icons.push_back(greys({QString::fromLatin1(figure), 0.5, level}, pixels));
                for (std::size_t i = 0; i + 1 < icons.size(); ++i) {
                    EXPECT_GT(apart(icons.at(i), icons.back()), 10.0)
                        << figure << " at " << pixels << ": " << i << " and " << icons.size() - 1;
                }
            }
        }
        std::set<std::vector<int>> figures;
        for (int figure = 0; figure <= 199; ++figure) {
            figures.insert(greys({QString::number(figure), 0.5, TrayLevel::Normal}, pixels));
        }
        EXPECT_EQ(figures.size(), 200U) << pixels;
    }
}

TEST_F(TrayIconTest, FiguresStayInsideThePlate) {
    const auto columns = [](const std::vector<int> &icon, int pixels, int x) {
        int lit = 0;
        for (int y = 0; y < pixels; ++y) {
            lit += icon.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(pixels) +
                           static_cast<std::size_t>(x)) > 140
                       ? 1
                       : 0;
        }
        return lit;
    };
    for (const int pixels : kSizes) {
        for (const char *figure : {"4", "88", "100", "444"}) {
            const auto icon = greys({QString::fromLatin1(figure), 1.0, TrayLevel::Normal}, pixels);
            EXPECT_EQ(columns(icon, pixels, 0) + columns(icon, pixels, pixels - 1), 0)
                << figure << " at " << pixels;
            int lit = 0;
            for (int x = 1; x + 1 < pixels; ++x) {
                lit += columns(icon, pixels, x);
            }
            EXPECT_GT(lit, pixels * pixels / 12) << figure << " at " << pixels << " is large enough to read";
        }
    }
    EXPECT_EQ(trayIcon({}).availableSizes().size(), static_cast<int>(kSizes.size()));
}

TEST_F(TrayIconTest, TheTipHasTheReadingsOnLinesAndNoneThatIsNotKnown) {
    TrayShown shown = live();
    EXPECT_EQ(trayTip(shown),
              QStringLiteral("ZPS G \u00B7 MODEL-1000\n412 W, load 41 %\nEfficiency 92.4\u00A0%\n"
                             "Temperature 41\u00A0\u00B0C\nFan 960\u00A0rpm"));
    shown.alarm = QStringLiteral("Fan has stopped");
    EXPECT_TRUE(trayTip(shown).endsWith(QStringLiteral("\n\u25B2 Fan has stopped")));
    shown.efficiency.reset();
    shown.rpm.reset();
    shown.ratedWatts = 0.0;
    EXPECT_EQ(trayTip(shown).count(QLatin1Char('\n')), 3);
    shown.state = LinkState::NoDevice;
    EXPECT_EQ(trayTip(shown), QStringLiteral("ZPS G \u00B7 MODEL-1000\nNo power supply found"));
    EXPECT_EQ(trayTip({}), QStringLiteral("ZPS G\nNo power supply found"));
}

TEST_F(TrayIconTest, ATipThatIsTooLongLosesWholeLinesAndNeverTheAlarm) {
    TrayShown shown = live(98412.0);
    for (int length = 1; length <= 200; length += 9) {
        shown.model = QString(length, QLatin1Char('M'));
        shown.alarm = QString(std::min(length, 100), QLatin1Char('A'));
        const QString tip = trayTip(shown);
        EXPECT_LE(tip.size(), 127) << length;
        EXPECT_TRUE(tip.endsWith(shown.alarm)) << length;
        EXPECT_FALSE(tip.contains(QStringLiteral("\n\n")));
    }
}

} // namespace
} // namespace zpsg::ui::test
