#include "ui/AlarmsPage.h"

#include "ui/AlarmLogModel.h"
#include "ui/AlarmText.h"
#include "ui/ToggleSwitch.h"
#include "ui/WarningCard.h"
#include "UiFixture.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <array>

namespace zpsg::ui::test {
namespace {

using psu::AlarmEntry;
using psu::AlarmGroup;
using psu::AlarmKind;
using Entries = std::vector<AlarmEntry>;

const QDateTime kEvening(QDate(2024, 3, 5), QTime(23, 59, 50));

AlarmEntry ended(AlarmKind kind, int beginSecond, int seconds) {
    return {kind, 1.0, kEvening.addSecs(beginSecond), kEvening.addSecs(beginSecond + seconds), false};
}
AlarmEntry holding(AlarmKind kind, int beginSecond) {
    return {kind, 1.0, kEvening.addSecs(beginSecond), {}, true};
}
AlarmEntry cutShort(AlarmKind kind, int beginSecond) {
    return {kind, 1.0, kEvening.addSecs(beginSecond), {}, false};
}

class AlarmsPageTest : public UiTest {
protected:
    AlarmsPageTest() {
        page_.resize(860, 560);
        page_.show();
        QApplication::setActiveWindow(&page_);
        settle();
    }
    [[nodiscard]] QString cell(int row, int column) const {
        return table_->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QStringList column(int column) const {
        QStringList texts;
        for (int row = 0; row < table_->model()->rowCount(); ++row) {
            texts << cell(row, column);
        }
        return texts;
    }

    AlarmsPage page_;
    QTableView *table_ = page_.findChild<QTableView *>();
    QPushButton *clear_ = page_.findChild<QPushButton *>(QStringLiteral("btnClearLog"));
};

TEST_F(AlarmsPageTest, AlarmsLastFromBeginToEndWhateverTheClockDid) {
    struct Case {
        AlarmEntry entry;
        const char *lasted;
    };
    const QDateTime now = kEvening.addSecs(100);
    const std::array cases{
        Case{ended(AlarmKind::Fan, 0, 0), "0 s"},
        Case{ended(AlarmKind::Fan, 0, 59), "59 s"}, // across midnight
        Case{ended(AlarmKind::Fan, 0, 60), "1 min 0 s"},
        Case{ended(AlarmKind::Fan, 0, 200), "3 min 20 s"},
        Case{ended(AlarmKind::Fan, 0, 3600), "1 h 0 min"},
        Case{ended(AlarmKind::Fan, 0, 86399), "23 h 59 min"},
        Case{ended(AlarmKind::Fan, 0, 86400 + 7200), "1 d 2 h"},
        Case{ended(AlarmKind::Fan, 0, -3600), "0 s"}, // set back
        Case{holding(AlarmKind::Fan, 0), "1 min 40 s"},
        Case{holding(AlarmKind::Fan, 200), "0 s"}, // begins in what is now the future
        Case{cutShort(AlarmKind::Fan, 0), "\u2013"},
    };
    AlarmLogModel model;
    for (const Case &c : cases) {
        model.setEntries({c.entry}, now);
        EXPECT_EQ(model.index(0, AlarmLogModel::Lasted).data().toString(), QString::fromUtf8(c.lasted));
    }
    model.setEntries({holding(AlarmKind::Fan, 0)}, now);
    model.setNow(now.addSecs(1));
    EXPECT_EQ(model.index(0, AlarmLogModel::Lasted).data().toString(), QStringLiteral("1 min 41 s"));
}

TEST_F(AlarmsPageTest, TimesAndFiguresFollowTheUsersFormat) {
    const QDateTime begin(QDate(2024, 3, 5), QTime(14, 3, 9));
    struct Case {
        const char *locale, *moment, *since, *value;
    };
    for (const Case &c : {Case{"de_DE", "05.03.24 14:03:09", "since 14:03", "11,21 V"},
                          Case{"en_US", "3/5/24 2:03:09 PM", "since 2:03 PM", "11.21 V"},
                          Case{"en_GB", "05/03/2024 14:03:09", "since 14:03", "11.21 V"}}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(c.locale)));
        EXPECT_EQ(momentText(begin), QString::fromLatin1(c.moment));
        EXPECT_EQ(alarmSince(begin, begin.date()), QString::fromLatin1(c.since));
        EXPECT_GT(alarmSince(begin, begin.date().addDays(1)).size(), 13) << "with the day";
        EXPECT_EQ(alarmValue(AlarmKind::Rail12, 11.214), QString::fromLatin1(c.value));
    }
}

TEST_F(AlarmsPageTest, WhatHoldsIsOnTopAndTheNewestIsFirst) {
    // The clock was set back between the second and the third: their order counts.
    page_.showLog({cutShort(AlarmKind::Rail5, 0), holding(AlarmKind::Rail12, 5000),
                   ended(AlarmKind::Fan, 1000, 20), ended(AlarmKind::Rail33, 1100, 5),
                   holding(AlarmKind::Temperature, 1200)});
    EXPECT_EQ(column(AlarmLogModel::What),
              QStringList({QStringLiteral("Supply is too hot"), QStringLiteral("+12 V rail out of range"),
                           QStringLiteral("+3.3 V rail out of range"), QStringLiteral("Fan has stopped"),
                           QStringLiteral("+5 V rail out of range")}));
    EXPECT_EQ(cell(1, AlarmLogModel::Ended), QStringLiteral("holds"));
    EXPECT_EQ(cell(4, AlarmLogModel::Ended), QString(QChar(0x2013)));
    const auto toolTip = [this](int row) {
        return table_->model()->index(row, AlarmLogModel::Ended).data(Qt::ToolTipRole).toString();
    };
    EXPECT_FALSE(toolTip(4).isEmpty()) << "says why the end is not known";
    EXPECT_TRUE(toolTip(1).isEmpty());
    EXPECT_TRUE(toolTip(2).isEmpty());
}

TEST_F(AlarmsPageTest, EveryUpdateIsToldToTheViewsAsItIs) {
    AlarmLogModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const AlarmEntry a = ended(AlarmKind::Fan, 0, 10);
    const AlarmEntry b = ended(AlarmKind::Rail12, 10, 10);
    const AlarmEntry c = holding(AlarmKind::Rail5, 20);
    const AlarmEntry cEnded = ended(AlarmKind::Rail5, 20, 100);
    const AlarmEntry d = holding(AlarmKind::Temperature, 30);
    const AlarmEntry e = ended(AlarmKind::Fan, 40, 1);
    const std::array<std::pair<Entries, Entries>, 9> steps{{
        {{}, {}},
        {{a, b, c}, {c, b, a}},
        {{a, b, c, d, e}, {d, c, e, b, a}},
        {{a, b, cEnded, d, e}, {d, e, cEnded, b, a}}, // one ends and goes down
        {{b, cEnded, d, e}, {d, e, cEnded, b}},       // the oldest is forgotten
        {{d}, {d}},                                   // the log is cleared
        {{a, a, d, d}, {d, d, a, a}},                 // a damaged log
        {{e, b, a}, {a, b, e}},
        {{}, {}},
    }};
    for (const auto &[entries, expected] : steps) {
        model.setEntries(entries, kEvening);
        ASSERT_EQ(model.rowCount(), static_cast<int>(expected.size()));
        for (int row = 0; row < model.rowCount(); ++row) {
            const AlarmEntry &entry = expected.at(static_cast<std::size_t>(row));
            EXPECT_EQ(model.index(row, AlarmLogModel::Began).data(), momentText(entry.begin)) << row;
            EXPECT_EQ(model.index(row, AlarmLogModel::What).data(), alarmTitle(entry.kind)) << row;
            EXPECT_EQ(model.index(row, 0).data(AlarmLogModel::kHoldsRole), entry.holds) << row;
        }
    }
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(AlarmsPageTest, AnUpdateKeepsWhatIsSelectedAndLookedAt) {
    Entries log;
    for (int i = 0; i < 1000; ++i) {
        log.push_back(ended(i % 2 == 0 ? AlarmKind::Fan : AlarmKind::Rail12, i * 100, i % 90));
    }
    log.back() = holding(AlarmKind::Temperature, 999 * 100);
    page_.showLog(log);
    settle();
    table_->verticalScrollBar()->setValue(5003);
    const QModelIndex top = table_->indexAt(QPoint(0, 0));
    table_->selectRow(top.row() + 2);
    const QString topText = cell(top.row(), AlarmLogModel::Began);
    const QString selected = cell(top.row() + 2, AlarmLogModel::Began);
    const int topEdge = table_->rowViewportPosition(top.row());

    log.back() = ended(AlarmKind::Temperature, 999 * 100, 50);
    log.erase(log.begin(), log.begin() + 2);
    log.push_back(ended(AlarmKind::Fan, 100'100, 5));
    log.push_back(holding(AlarmKind::Rail5, 100'200));
    page_.showLog(log);
    settle();
    const QModelIndex topNow = table_->indexAt(QPoint(0, 0));
    EXPECT_EQ(cell(topNow.row(), AlarmLogModel::Began), topText);
    EXPECT_EQ(table_->rowViewportPosition(topNow.row()), topEdge);
    const QModelIndexList rows = table_->selectionModel()->selectedRows(AlarmLogModel::Began);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.front().data(), selected);

    table_->verticalScrollBar()->setValue(0);
    log.push_back(holding(AlarmKind::Fan, 100'300));
    page_.showLog(log);
    settle();
    EXPECT_EQ(table_->verticalScrollBar()->value(), 0) << "at the top the newest comes into view";
}

TEST_F(AlarmsPageTest, SelectedRowsAreCopiedAsTheyStand) {
    page_.showLog(
        {ended(AlarmKind::Fan, 0, 20), cutShort(AlarmKind::Rail5, 60), ended(AlarmKind::Rail12, 90, 5)});
    table_->setFocus();
    table_->selectRow(1);
    QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(table_, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2);
    for (int line = 0; line < 2; ++line) {
        QStringList expected;
        for (int column = 0; column < AlarmLogModel::kColumns; ++column) {
            expected << cell(line + 1, column);
        }
        EXPECT_EQ(lines.at(line).split(QLatin1Char('\t')), expected);
    }
}

TEST_F(AlarmsPageTest, SwitchesTellOfTheUserOnly) {
    QList<std::pair<AlarmGroup, bool>> told;
    QObject::connect(&page_, &AlarmsPage::warningToggled, &page_, [&told](AlarmGroup group, bool on) {
        told.append({group, on});
    });
    const auto cards = page_.findChildren<WarningCard *>();
    ASSERT_EQ(cards.size(), 3);
    const std::array groups{AlarmGroup::Voltage, AlarmGroup::Fan, AlarmGroup::Temperature};
    for (int i = 0; i < 3; ++i) {
        const AlarmGroup group = groups.at(static_cast<std::size_t>(i));
        ToggleSwitch *toggle = cards.at(i)->toggle();
        EXPECT_FALSE(toggle->accessibleName().isEmpty());
        page_.setWarning(group, true);
        EXPECT_TRUE(toggle->isChecked());
        EXPECT_TRUE(told.isEmpty()) << "set by the program";
        QTest::mouseClick(toggle, Qt::LeftButton);
        QTest::mouseClick(cards.at(i), Qt::LeftButton, {}, QPoint(20, 20)); // on its name
        QTest::keyClick(toggle, Qt::Key_Space);
        QTest::keyClick(toggle, Qt::Key_Return);
        EXPECT_EQ(told, (QList<std::pair<AlarmGroup, bool>>{
                            {group, false}, {group, true}, {group, false}, {group, true}}));
        told.clear();
    }
}

TEST_F(AlarmsPageTest, ASwitchShowsItsStateWithoutColour) {
    ToggleSwitch toggle;
    toggle.resize(toggle.sizeHint());
    const auto shape = [&toggle](bool on) {
        toggle.setChecked(on);
        return toggle.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    };
    // The knob is the brightest spot: in the right half when on.
    for (const bool on : {true, false}) {
        const QImage image = shape(on);
        const int y = image.height() / 2;
        EXPECT_EQ(qGray(image.pixel(image.width() - 8, y)) > qGray(image.pixel(8, y)), on);
    }
}

TEST_F(AlarmsPageTest, OnlyWhatHasEndedCanBeCleared) {
    const QSignalSpy requests(&page_, &AlarmsPage::clearRequested);
    struct Case {
        Entries entries;
        bool clearable;
    };
    for (const Case &c : {Case{{}, false}, Case{{holding(AlarmKind::Fan, 0)}, false},
                          Case{{ended(AlarmKind::Fan, 0, 1), holding(AlarmKind::Rail5, 5)}, true},
                          Case{{cutShort(AlarmKind::Fan, 0)}, true}, Case{{}, false}}) {
        page_.showLog(c.entries);
        EXPECT_EQ(clear_->isEnabled(), c.clearable);
        EXPECT_EQ(table_->isVisible(), !c.entries.empty()) << "an empty log says so instead";
        clear_->click();
    }
    EXPECT_EQ(requests.count(), 2);
}

} // namespace
} // namespace zpsg::ui::test
