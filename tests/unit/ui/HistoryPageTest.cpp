#include "ui/HistoryPage.h"

#include "PlotPlace.h"
#include "ui/HistoryChips.h"
#include "ui/HistoryDaysView.h"
#include "ui/HistoryDayView.h"
#include "ui/SegmentedControl.h"
#include "UiFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QFileDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

namespace zpsg::ui::test {
namespace {

const QDate kToday(2026, 7, 16);

class HistoryPageTest : public UiTest {
protected:
    HistoryPageTest() {
        page_.setToday(kToday);
        page_.resize(900, 560);
    }
    void open() {
        page_.show();
        QApplication::setActiveWindow(&page_);
        settle();
    }
    /// A bar for every other day of the range, and the minutes of the last.
    void answer() {
        const HistoryRange range = asked();
        std::vector<HistoryDay> days;
        for (QDate day = range.from; day <= std::min(range.to, kToday); day = day.addDays(2)) {
            days.push_back({day, 1.0 + day.day() / 10.0, 200.0, 90.0, 300});
        }
        page_.showDays(range.from, range.to, days);
        if (!minutesAsked_.isEmpty()) {
            page_.showMinutes(minutesAsked_.constLast().constFirst().toDate(), minutes());
        }
        settle();
    }
    [[nodiscard]] HistoryRange asked() const {
        const QList<QVariant> &last = daysAsked_.constLast();
        return {last.at(0).toDate(), last.at(1).toDate()};
    }
    /// From eight to ten and from twelve to two, 100 W rising by a watt a minute.
    [[nodiscard]] std::vector<HistoryMinute> minutes() const {
        std::vector<HistoryMinute> rows;
        const QDate day = minutesAsked_.constLast().constFirst().toDate();
        for (int minute = 0; minute < 240; ++minute) {
            HistoryMinute row;
            row.time = QDateTime(day, QTime(minute < 120 ? 8 : 10, 0).addSecs(60 * minute));
            row.watts = 100.0 + minute;
            rows.push_back(row);
        }
        return rows;
    }
    template <typename Widget>
    Widget &child(const char *name) {
        auto *found = page_.findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    void span(HistorySpan span) {
        child<SegmentedControl>("switchHistorySpan").setCurrent(static_cast<int>(span));
    }
    HistoryDaysView &days() { return *page_.findChild<HistoryDaysView *>(); }
    HistoryDayView &day() { return *page_.findChild<HistoryDayView *>(); }
    QPoint onPlot(const QWidget &view, double share) {
        const QRect canvas = canvasIn(view);
        return {canvas.left() + qRound(share * canvas.width()), canvas.center().y()};
    }

    HistoryPage page_;
    QSignalSpy daysAsked_{&page_, &HistoryPage::daysWanted};
    QSignalSpy minutesAsked_{&page_, &HistoryPage::minutesWanted};
};

TEST_F(HistoryPageTest, AsksOnceForWhatIsSeenAndNeverWhileHidden) {
    page_.refresh();
    span(HistorySpan::Week);
    span(HistorySpan::Month);
    EXPECT_EQ(daysAsked_.count(), 0);
    open();
    ASSERT_EQ(daysAsked_.count(), 1);
    EXPECT_EQ(asked(), (HistoryRange{QDate(2026, 7, 1), QDate(2026, 7, 31)}));
    EXPECT_EQ(minutesAsked_.count(), 0) << "no day is known yet";
    answer();
    ASSERT_EQ(minutesAsked_.count(), 1);
    EXPECT_EQ(minutesAsked_.front().front().toDate(), QDate(2026, 7, 15)) << "the last that holds something";
    page_.refresh();
    EXPECT_EQ(daysAsked_.count(), 2);
    EXPECT_EQ(minutesAsked_.count(), 2);
    answer();
    EXPECT_EQ(minutesAsked_.count(), 2) << "the day stays what it was";
    page_.hide();
    page_.refresh();
    EXPECT_EQ(daysAsked_.count(), 2);
    page_.show();
    EXPECT_EQ(daysAsked_.count(), 3);
    EXPECT_EQ(minutesAsked_.count(), 3);
}

TEST_F(HistoryPageTest, AnswersWithinTheSignalAndLateOnes) {
    QObject::connect(&page_, &HistoryPage::daysWanted, &page_, [this] { answer(); });
    open();
    EXPECT_EQ(minutesAsked_.count(), 1);
    EXPECT_FALSE(days().days().empty());
    const auto known = days().days().size();
    page_.showDays(QDate(2025, 7, 1), QDate(2025, 7, 31), {});
    page_.showMinutes(QDate(2025, 7, 1), {});
    EXPECT_EQ(days().days().size(), known) << "of a range that was left";
    EXPECT_FALSE(day().minutes().empty());
}

TEST_F(HistoryPageTest, TheHeadGoesThroughTheCalendar) {
    open();
    answer();
    auto &forward = child<QPushButton>("btnHistoryForward");
    EXPECT_FALSE(forward.isEnabled());
    QTest::mouseClick(&child<QPushButton>("btnHistoryBack"), Qt::LeftButton);
    EXPECT_EQ(asked(), (HistoryRange{QDate(2026, 6, 1), QDate(2026, 6, 30)}));
    EXPECT_TRUE(forward.isEnabled());
    QTest::keyClick(&page_, Qt::Key_PageUp);
    EXPECT_EQ(asked().from, QDate(2026, 5, 1));
    answer();
    EXPECT_EQ(day().minutes().day(), QDate(2026, 5, 31));
    span(HistorySpan::Week);
    EXPECT_TRUE(asked().contains(QDate(2026, 5, 31))) << "the day stays in view";
    EXPECT_EQ(asked().days(), 7);
    QTest::mouseClick(&child<QPushButton>("btnHistoryToday"), Qt::LeftButton);
    EXPECT_TRUE(asked().contains(kToday));
    EXPECT_EQ(minutesAsked_.constLast().constFirst().toDate(), kToday);

    span(HistorySpan::Range);
    EXPECT_EQ(asked().to, kToday) << "no days that are still to come";
    child<QDateEdit>("editHistoryFrom").setDate(QDate(2026, 2, 1));
    child<QDateEdit>("editHistoryTo").setDate(QDate(2026, 1, 10));
    EXPECT_EQ(asked(), (HistoryRange{QDate(2026, 1, 10), QDate(2026, 1, 10)})) << "the end set last counts";
    child<QDateEdit>("editHistoryTo").setDate(QDate(2030, 1, 1));
    EXPECT_EQ(asked().to, kToday);
    const int before = daysAsked_.count();
    QTest::keyClick(&page_, Qt::Key_PageDown);
    EXPECT_EQ(daysAsked_.count(), before) << "forward ends today";
}

TEST_F(HistoryPageTest, MidnightMovesAPageThatNobodySees) {
    page_.setToday(QDate(2026, 8, 1));
    open();
    EXPECT_EQ(asked().from, QDate(2026, 8, 1));
    page_.setToday(QDate(2026, 9, 1));
    EXPECT_EQ(daysAsked_.count(), 1) << "what is looked at stays";
    EXPECT_TRUE(child<QPushButton>("btnHistoryForward").isEnabled());
}

TEST_F(HistoryPageTest, BarsAreChosenByKeyboardAndMouse) {
    open();
    answer();
    const auto chosen = [this] { return minutesAsked_.constLast().constFirst().toDate(); };
    days().setFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left}) {
        QTest::keyClick(&days(), key);
    }
    EXPECT_TRUE(days().pointedText().contains(QStringLiteral("11 July 2026")))
        << "days without a bar are passed by";
    EXPECT_TRUE(days().pointedText().contains(QStringLiteral("2.10 kWh")));
    EXPECT_TRUE(days().pointedText().contains(QStringLiteral("5 h 0 min")));
    QTest::keyClick(&days(), Qt::Key_Return);
    EXPECT_EQ(chosen(), QDate(2026, 7, 11));
    QTest::keyClick(&days(), Qt::Key_Home);
    QTest::keyClick(&days(), Qt::Key_Left);
    QTest::keyClick(&days(), Qt::Key_Space);
    EXPECT_EQ(chosen(), QDate(2026, 7, 1));
    QTest::mouseClick(&days(), Qt::LeftButton, Qt::NoModifier, onPlot(days(), 2.5 / 31.0));
    EXPECT_EQ(chosen(), QDate(2026, 7, 3));
    const int before = minutesAsked_.count();
    QTest::mouseClick(&days(), Qt::LeftButton, Qt::NoModifier, onPlot(days(), 25.5 / 31.0));
    EXPECT_EQ(minutesAsked_.count(), before) << "that day is still to come";
}

TEST_F(HistoryPageTest, ManyDaysBecomeMonthsThatOpen) {
    open();
    span(HistorySpan::Range);
    child<QDateEdit>("editHistoryFrom").setDate(kToday.addDays(-3649));
    answer();
    EXPECT_TRUE(days().byMonth());
    EXPECT_FALSE(days().summaryText().isEmpty()) << "it says so";
    QTest::mouseClick(&days(), Qt::LeftButton, Qt::NoModifier, onPlot(days(), 0.5));
    EXPECT_EQ(asked().from.day(), 1);
    EXPECT_EQ(asked().days(), asked().from.daysInMonth());
    EXPECT_LT(std::abs(asked().from.daysTo(QDate(2021, 7, 16))), 60);
    answer();
    EXPECT_FALSE(days().byMonth());
}

TEST_F(HistoryPageTest, TheDayIsLookedAtClosely) {
    open();
    answer();
    EXPECT_EQ(day().window().length(), 86400.0);
    const QPoint nine = onPlot(day(), 9.0 / 24.0);
    QTest::mouseMove(&day(), nine);
    QMouseEvent move(QEvent::MouseMove, nine, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&day(), &move);
    const double pointed = *day().readoutValue();
    EXPECT_NEAR(pointed, 160.0, 20.0);
    EXPECT_TRUE(day().pointedText().contains(QStringLiteral(" W")));

    QWheelEvent wheel(nine, day().mapToGlobal(nine), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&day(), &wheel);
    EXPECT_LT(day().window().length(), 60000.0);
    EXPECT_NEAR(*day().readoutValue(), pointed, 2.0) << "what is under the pointer stays there";
    const double from = day().window().from;
    QTest::mousePress(&day(), Qt::LeftButton, Qt::NoModifier, nine);
    QTest::mouseMove(&day(), nine - QPoint(50, 0));
    QMouseEvent drag(QEvent::MouseMove, nine - QPoint(50, 0), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&day(), &drag);
    QTest::mouseRelease(&day(), Qt::LeftButton, Qt::NoModifier, nine - QPoint(50, 0));
    EXPECT_GT(day().window().from, from);
    auto &whole = child<QPushButton>("btnWholeDay");
    EXPECT_TRUE(whole.isVisible());
    QTest::mouseDClick(&day(), Qt::LeftButton, Qt::NoModifier, nine);
    EXPECT_EQ(day().window().length(), 86400.0);
    EXPECT_FALSE(whole.isVisible());

    QTest::keyClick(&day(), Qt::Key_Escape);
    QTest::keyClick(&day(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(day().readoutValue(), 100.0) << "the first minute";
    QTest::keyClick(&day(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(day().readoutValue(), 101.0);
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(&day(), Qt::Key_Plus);
    }
    EXPECT_EQ(day().window().length(), HistoryWindow::kLeast);
    EXPECT_TRUE(day().window().shows(8.0 * 3600.0 + 60.0)) << "around the minute that is marked";
    const double begin = day().window().from;
    QTest::keyClick(&day(), Qt::Key_Left);
    EXPECT_LT(day().window().from, begin);
    page_.refresh();
    answer();
    EXPECT_EQ(day().window().length(), HistoryWindow::kLeast) << "new minutes move nothing";
    QTest::keyClick(&day(), Qt::Key_Home);
    EXPECT_EQ(day().window().length(), 86400.0);
}

TEST_F(HistoryPageTest, LinesBreakAtGapsAndStayWhereTheyAre) {
    open();
    answer();
    const QImage image = day().grab().toImage();
    const QRect canvas = canvasIn(day());
    // Between the plot's grid lines, below the lowest value: the area under the line, or nothing.
    const auto filled = [&](double hour) {
        const QColor colour =
            image.pixelColor(canvas.left() + qRound(hour / 24.0 * canvas.width()), canvas.bottom() - 14);
        return colour.blue() > colour.red() + 20;
    };
    for (const double hour : {7.5, 10.5, 11.5, 14.5}) {
        EXPECT_FALSE(filled(hour)) << hour;
    }
    for (const double hour : {8.5, 9.5, 12.5, 13.5}) {
        EXPECT_TRUE(filled(hour)) << hour;
    }
}

TEST_F(HistoryPageTest, OneOrTwoQuantitiesAreShown) {
    open();
    answer();
    const QList<QCheckBox *> chips = day().chips()->findChildren<QCheckBox *>();
    const auto click = [&](HistoryQuantity quantity) {
        chips.at(static_cast<int>(quantity))->click();
        return day().chips()->shown();
    };
    using Shown = std::vector<HistoryQuantity>;
    EXPECT_EQ(click(HistoryQuantity::Power), Shown{HistoryQuantity::Power}) << "one stays";
    EXPECT_EQ(click(HistoryQuantity::Fan), (Shown{HistoryQuantity::Power, HistoryQuantity::Fan}));
    EXPECT_EQ(click(HistoryQuantity::Rails), (Shown{HistoryQuantity::Rails, HistoryQuantity::Fan}));
    EXPECT_EQ(click(HistoryQuantity::Fan), Shown{HistoryQuantity::Rails});
    settle();
    for (const QCheckBox *chip : chips) {
        EXPECT_EQ(chip->isChecked(), chip == chips.at(static_cast<int>(HistoryQuantity::Rails)));
        EXPECT_TRUE(chip->accessibleName().contains(QLatin1Char('('))) << "with its unit";
    }
}

TEST_F(HistoryPageTest, SaysWhyThereIsNothing) {
    const auto words = [](const QWidget &view) {
        const auto *label = view.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        return label->isVisible() ? label->text() : QString();
    };
    open();
    page_.showBusy(true);
    EXPECT_EQ(words(days()), qtTrId("HISTORY_LOADING"));
    page_.showDays(asked().from, asked().to, {});
    page_.showBusy(false);
    EXPECT_EQ(words(days()), qtTrId("HISTORY_EMPTY"));
    page_.showLongTerm(90.0, 200.0);
    EXPECT_EQ(words(days()), qtTrId("HISTORY_EMPTY_RANGE")) << "there is something elsewhere";
    answer();
    EXPECT_EQ(words(days()), QString());
    page_.showMinutes(minutesAsked_.constLast().constFirst().toDate(), {});
    EXPECT_EQ(words(day()), qtTrId("HISTORY_EMPTY_DAY"));
}

TEST_F(HistoryPageTest, ExportsWhatIsChosen) {
    open();
    answer();
    QSignalSpy wanted(&page_, &HistoryPage::exportWanted);
    const QSignalSpy cancelled(&page_, &HistoryPage::exportCancelled);
    auto &open = child<QPushButton>("btnHistoryExport");
    open.click();
    EXPECT_EQ(child<QDateEdit>("editExportFrom").date(), QDate(2026, 7, 1));
    EXPECT_EQ(child<QDateEdit>("editExportTo").date(), kToday);
    child<QDateEdit>("editExportFrom").setDate(QDate(2026, 7, 10));
    child<SegmentedControl>("switchExportKind").setCurrent(1);
    child<QPushButton>("btnExportFile").click();
    auto *dialog = page_.findChild<QFileDialog *>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(wanted.count(), 0) << "not before there is a name";
    emit dialog->fileSelected(QStringLiteral("/tmp/minutes.csv"));
    dialog->reject();
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.front(),
              (QList<QVariant>{QDate(2026, 7, 10), kToday, true, QStringLiteral("/tmp/minutes.csv")}));
    EXPECT_FALSE(open.isEnabled()) << "one at a time";
    page_.showExportProgress(0.5);
    const auto *bar = page_.findChild<QProgressBar *>();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value() * 2, bar->maximum());
    child<QPushButton>("btnExportCancel").click();
    EXPECT_EQ(cancelled.count(), 1);
    page_.showExportDone(QStringLiteral("Cancelled."), true);
    EXPECT_EQ(child<QLabel>("lblExportResult").text(), QStringLiteral("Cancelled."));
    EXPECT_TRUE(open.isEnabled());
    child<QPushButton>("btnExportClose").click();
    EXPECT_FALSE(open.isChecked());
    open.click();
    EXPECT_TRUE(child<QPushButton>("btnExportFile").isVisible()) << "and once more";
}

} // namespace
} // namespace zpsg::ui::test
