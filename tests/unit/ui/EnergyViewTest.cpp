#include "ui/EnergyView.h"

#include "UiFixture.h"

#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace zpsg::ui::test {
namespace {

EnergyShown someEnergy() {
    EnergyShown shown;
    shown.today = {372, 3.98, 4.21, 1.2853};
    shown.month = {9000, 61.2, 64.9, 19.83};
    shown.year = {90000, 512.1, 540.64, 165.1};
    shown.thisRun = {134, 0.79, 0.84, 0.26};
    shown.total = {200000, 1903, 2010, 1612.5};
    shown.projectedYear = EnergyShown::Figures{0, 0, 1023.4, 312.51};
    shown.rateKnown = true;
    shown.currency = QStringLiteral("EUR");
    return shown;
}

class EnergyViewTest : public UiTest {
protected:
    EnergyViewTest() { view_.resize(960, 220); }
    [[nodiscard]] QStringList spoken(const EnergyShown &shown) {
        view_.showEnergy(shown);
        return view_.readoutText().replace(QChar(QChar::Nbsp), QLatin1Char(' ')).split(QStringLiteral("; "));
    }

    EnergyView view_;
};

TEST_F(EnergyViewTest, SaysEveryFigureInTheUsersFormat) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QStringList parts = spoken(someEnergy());
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    ASSERT_EQ(parts.size(), 7);
    EXPECT_EQ(parts.at(0), text("Today: 1,29 €, 4,21 kWh from the wall, 3,98 kWh output"));
    EXPECT_EQ(parts.at(2), text("This year: 165,10 €, 540,6 kWh from the wall, 512,1 kWh output"));
    EXPECT_EQ(parts.at(3), text("Projected year: 312,51 €, 1023 kWh from the wall")) << "without output";
    EXPECT_EQ(parts.at(4), text("This run: 2 h 14 min · 0,84 kWh · 0,26 €"));
    EXPECT_EQ(parts.at(5), text("Last run: –")) << "there was none";
    EXPECT_EQ(parts.at(6), text("Since the first start: 3333 h · 2010 kWh · 1.612,50 €"));
    EXPECT_EQ(view_.readoutValue(), 1.2853);
}

TEST_F(EnergyViewTest, TellsWhatItDoesNotKnow) {
    EnergyShown shown = someEnergy();
    shown.rateKnown = false;
    QStringList parts = spoken(shown);
    EXPECT_EQ(parts.at(0), QStringLiteral("Today: 4.21 kWh, 3.98 kWh output"));
    EXPECT_EQ(parts.at(3), QStringLiteral("Projected year: 1023 kWh"));
    EXPECT_EQ(parts.at(4), QString::fromUtf8("This run: 2 h 14 min · 0.84 kWh"));
    EXPECT_EQ(view_.readoutValue(), 4.21);

    shown.projectedYear.reset();
    shown.efficiencyKnown = false;
    parts = spoken(shown);
    EXPECT_EQ(parts.at(0), QStringLiteral("Today: 4.21 kWh")) << "the output would be the same";
    EXPECT_EQ(parts.at(3), QString::fromUtf8("Projected year: –, after one day"));
    EXPECT_FALSE(view_.summaryText().isEmpty());
    EXPECT_EQ(parts.constLast(), view_.summaryText());
}

TEST_F(EnergyViewTest, PaintsOnlyWhatShowsAnotherFigure) {
    view_.show();
    view_.showEnergy(someEnergy());
    settle();
    const PaintCounter counter(&view_);
    EnergyShown shown = someEnergy();
    shown.today.cost += 0.0001;
    shown.today.wallKwh += 0.001;
    shown.thisRun.minutes += 0.5;
    view_.showEnergy(shown);
    settle();
    EXPECT_EQ(counter.paints, 0) << "the same, rounded";
    shown.thisRun.minutes += 1.0;
    view_.showEnergy(shown);
    settle();
    EXPECT_GT(counter.paints, 0);
}

TEST_F(EnergyViewTest, AsksForARateByMouseAndKeyboard) {
    view_.show();
    auto *button = view_.findChild<QPushButton *>();
    const QSignalSpy requests(&view_, &EnergyView::rateRequested);
    const QString urgent = button->text();
    QTest::mouseClick(button, Qt::LeftButton);
    view_.showEnergy(someEnergy());
    EXPECT_NE(button->text(), urgent);
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(requests.count(), 2);
}

TEST_F(EnergyViewTest, TheButtonIsWithinTheCardAtAnySize) {
    view_.showEnergy({});
    view_.show();
    const auto *button = view_.findChild<QPushButton *>();
    for (const QSize size : {QSize(640, 112), QSize(854, 124), QSize(1000, 240), QSize(3600, 760)}) {
        view_.resize(size);
        settle();
        EXPECT_TRUE(view_.rect().contains(button->geometry())) << size.width();
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()));
    }
}

} // namespace
} // namespace zpsg::ui::test
