#include "ui/AlarmBanner.h"

#include "UiFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using psu::AlarmEntry;
using psu::AlarmKind;

class AlarmBannerTest : public UiTest {
protected:
    AlarmBannerTest() {
        window_.resize(900, 720);
        banner_.resize(860, 60);
        banner_.fitToWindow();
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }
    [[nodiscard]] static AlarmEntry alarm(AlarmKind kind, double value) {
        return {kind, value, QDateTime(QDate::currentDate(), QTime(14, 3)), {}, true};
    }
    [[nodiscard]] QStringList visibleTexts() const {
        QStringList texts;
        for (const QLabel *label : banner_.findChildren<QLabel *>()) {
            if (label->isVisible()) {
                texts << label->text();
            }
        }
        return texts;
    }

    const std::vector<AlarmEntry> five_{alarm(AlarmKind::Rail12, 11.214), alarm(AlarmKind::Fan, 0.0),
                                        alarm(AlarmKind::Temperature, 63.0), alarm(AlarmKind::Rail5, 5.3),
                                        alarm(AlarmKind::Rail33, 3.101)};
    QWidget window_;
    AlarmBanner banner_{&window_};
};

TEST_F(AlarmBannerTest, ShowsWhatThereIsRoomForAndSpeaksOfAll) {
    struct Case {
        std::size_t holding;
        int windowHeight;
        QString first, last; ///< of what is seen
        int labels;
    };
    const QString advice = QStringLiteral("It must stay above 11.28\u00A0V and below 12.72\u00A0V; check the "
                                          "supply\u2019s cables and reduce the load.");
    const QString rail = QStringLiteral("+12 V rail out of range");
    const std::array cases{
        Case{1, 720, rail, advice, 4},
        Case{1, 620, rail, QStringLiteral("since 14:03:00"), 3},
        Case{2, 720, rail, QStringLiteral("since 14:03:00"), 6},
        Case{3, 720, rail, QStringLiteral("since 14:03:00"), 9},
        Case{4, 720, rail, QStringLiteral("and 3 more"), 4},
        Case{5, 620, rail, QStringLiteral("and 4 more"), 4},
        Case{1, 720, rail, advice, 4},
    };
    EXPECT_TRUE(banner_.isHidden()) << "nothing holds at first";
    for (const Case &c : cases) {
        window_.resize(900, c.windowHeight);
        banner_.fitToWindow();
        banner_.showAlarms({five_.begin(), five_.begin() + static_cast<std::ptrdiff_t>(c.holding)});
        ASSERT_TRUE(banner_.isVisible());
        const QStringList texts = visibleTexts();
        ASSERT_EQ(texts.size(), c.labels) << c.holding;
        EXPECT_EQ(texts.front(), c.first);
        EXPECT_EQ(texts.back(), c.last);
        EXPECT_EQ(banner_.accessibleName(), banner_.spokenText());
        const std::array values{"11.21 V", "0 rpm", "63\u00A0\u00B0C", "5.30 V", "3.101 V"};
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_EQ(banner_.spokenText().contains(QString::fromUtf8(values.at(i))), i < c.holding)
                << values.at(i) << " of " << c.holding;
        }
        EXPECT_TRUE(banner_.spokenText().contains(advice)) << "whatever there is room for";
    }
    banner_.showAlarms({});
    EXPECT_TRUE(banner_.isHidden());
    EXPECT_TRUE(banner_.accessibleName().isEmpty());
}

TEST_F(AlarmBannerTest, TheSameAgainPaintsNothing) {
    banner_.showAlarms({five_.front()});
    settle();
    const PaintCounter counter(&banner_);
    banner_.showAlarms({five_.front()});
    banner_.fitToWindow();
    settle();
    EXPECT_EQ(counter.paints, 0);
    banner_.showAlarms({five_[1]});
    settle();
    EXPECT_GT(counter.paints, 0) << "another alarm in its place is news";
}

TEST_F(AlarmBannerTest, CountsAndLeadsToTheLog) {
    const QSignalSpy counts(&banner_, &AlarmBanner::countChanged);
    const QSignalSpy requests(&banner_, &AlarmBanner::logRequested);
    banner_.showAlarms(five_);
    banner_.showAlarms(five_);
    banner_.findChild<QPushButton *>(QStringLiteral("btnShowAlarms"))->click();
    EXPECT_EQ(requests.count(), 1);
    banner_.showAlarms({});
    ASSERT_EQ(counts.count(), 2);
    EXPECT_EQ(counts.at(0).at(0).toInt(), 5);
    EXPECT_EQ(counts.at(1).at(0).toInt(), 0);
}

} // namespace
} // namespace zpsg::ui::test
