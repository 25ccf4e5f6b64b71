#include "ui/PcView.h"

#include "ui/Temperature.h"
#include "UiFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace zpsg::ui::test {
namespace {

sensors::PcReading someReading() {
    sensors::PcReading reading;
    reading.cpuName = QStringLiteral("Ryzen 9");
    reading.cpuCelsius = 61.4;
    reading.cpuWatts = 88.42;
    reading.cpuVolts = 1.2375;
    reading.gpuCelsius = 54.0;
    reading.gpuAmps = 17.06;
    return reading;
}

class PcViewTest : public UiTest {
public:
    ~PcViewTest() override { setTemperatureUnit(TemperatureUnit::Celsius); }

protected:
    PcViewTest() {
        view_.resize(960, 220);
        view_.show();
    }
    [[nodiscard]] bool offers() const { return view_.findChild<QPushButton *>()->isVisible(); }

    PcView view_;
};

TEST_F(PcViewTest, WordsStandWhereThereAreNoFigures) {
    const auto *problem = view_.findChild<QLabel *>(QStringLiteral("lblPcProblem"));
    EXPECT_TRUE(offers());
    view_.showReading(someReading());
    EXPECT_TRUE(offers()) << "one that was on its way";
    view_.setProblem(QStringLiteral("Install the sensors"));
    EXPECT_FALSE(view_.readoutText().contains(QStringLiteral("Install"))) << "nothing is wrong yet";
    view_.setEnabledState(true);
    EXPECT_FALSE(offers());
    view_.showReading({});
    EXPECT_TRUE(view_.readoutText().endsWith(QStringLiteral("Install the sensors")));
    EXPECT_TRUE(problem->isVisible());
    view_.showReading(someReading());
    EXPECT_FALSE(problem->isVisible());
    view_.setEnabledState(false);
    EXPECT_TRUE(offers());
    EXPECT_FALSE(view_.readoutValue());
    view_.setEnabledState(true);
    EXPECT_FALSE(view_.readoutText().contains(QStringLiteral("Ryzen"))) << "figures from before are gone";
}

TEST_F(PcViewTest, ShowsAnEnDashForWhatNoSensorGives) {
    view_.setEnabledState(true);
    view_.showReading(someReading());
    EXPECT_EQ(view_.readoutText(), QString::fromUtf8("Processor Ryzen 9: 61 °C, 88.4 W, 1.238 V, – A; "
                                                     "Graphics card: 54 °C, – W, – V, 17.1 A"));
    setTemperatureUnit(TemperatureUnit::Fahrenheit);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&view_, &change);
    EXPECT_TRUE(view_.readoutText().contains(QString::fromUtf8("143 °F")));
    EXPECT_TRUE(view_.readoutText().contains(QString::fromUtf8("129 °F")));
}

TEST_F(PcViewTest, PaintsOnlyWhatShowsAnotherFigure) {
    view_.setEnabledState(true);
    view_.showReading(someReading());
    settle();
    const PaintCounter counter(&view_);
    sensors::PcReading reading = someReading();
    reading.cpuCelsius = 60.9;
    reading.cpuWatts = 88.44;
    view_.showReading(reading);
    settle();
    EXPECT_EQ(counter.paints, 0) << "the same, rounded";
    reading.gpuAmps.reset();
    view_.showReading(reading);
    settle();
    EXPECT_GT(counter.paints, 0);
}

TEST_F(PcViewTest, OffersToReadAtAnySize) {
    auto *button = view_.findChild<QPushButton *>();
    const QSignalSpy requests(&view_, &PcView::enableRequested);
    for (const QSize size : {QSize(480, 112), QSize(854, 124), QSize(1000, 240), QSize(3600, 760)}) {
        view_.resize(size);
        settle();
        const QRect place(button->mapTo(&view_, QPoint()), button->size());
        EXPECT_TRUE(view_.rect().contains(place)) << size.width();
    }
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(requests.count(), 2);
}

} // namespace
} // namespace zpsg::ui::test
