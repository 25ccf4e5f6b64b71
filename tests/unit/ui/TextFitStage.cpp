#include "TextFitStage.h"

#include "fan/FanMode.h"
#include "ui/AlarmBanner.h"
#include "ui/DashboardPage.h"
#include "ui/FanPage.h"
#include "ui/HistoryDayView.h"
#include "ui/HistoryPage.h"
#include "ui/SegmentedControl.h"
#include "ui/TitleBar.h"
#include "UiFixture.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

constexpr qint64 kNow = 1'790'780'000'000; // of kToday, milliseconds since the epoch

std::vector<HistoryDay> days(const QDate &from, const QDate &to) {
    std::vector<HistoryDay> days;
    for (QDate day = from; day <= to; day = day.addDays(1)) {
        days.push_back({day, 10.0 + day.day() / 10.0, 412.3, 91.2, 1434});
    }
    return days;
}

std::vector<HistoryMinute> minutes(const QDate &day) {
    std::vector<HistoryMinute> rows;
    for (int minute = 0; minute < 1440; minute += 2) {
        rows.push_back({QDateTime(day, QTime(0, 0).addSecs(60 * minute)), 412.0 + minute % 500,
                        12.0 + minute % 13 / 40.0, 5.01, 3.32, 33.4, 5.1, 2.2, 38.0 + minute % 9, 1234.0,
                        91.2});
    }
    return rows;
}

} // namespace

Stage::Stage(const QSize &size) {
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.setWindowFlag(Qt::FramelessWindowHint);
    view.resize(size);
    view.titleBar()->setVersionText(QStringLiteral("ZPS G App Ver:10.20.30  Europe"));
    view.dashboard()->setRatedWatts(1000.0);
    view.dashboard()->setCurve(std::vector<float>(120, 91.5F), 1000.0, true);
    view.dashboard()->setRemedy(QStringLiteral(
        "sudo install -m 644 /opt/zpsg/71-zpsg.rules /etc/udev/rules.d/ && sudo udevadm trigger"));
    HistoryPage &history = *view.history();
    history.setToday(kToday);
    QObject::connect(&history, &HistoryPage::daysWanted, &history,
                     [this](const QDate &from, const QDate &to) {
                         view.history()->showDays(from, to, days(from, std::min(to, kToday)));
                     });
    QObject::connect(&history, &HistoryPage::minutesWanted, &history,
                     [this](const QDate &day) { view.history()->showMinutes(day, minutes(day)); });
    history.showLongTerm(91.4, 412.0);
    view.show();
}

void Stage::bring(LinkState state, double volts12, double rpm, double celsius) {
    DashboardPage &page = *view.dashboard();
    page.showLinkState(LinkState::Live, QStringLiteral("MODEL-1000-WITH-A-NAME"));
    psu::TelemetryRecord record = reading(volts12, 58.88);
    record.store(QStringLiteral("FanSpeed"), static_cast<float>(rpm));
    record.store(QStringLiteral("Temp"), static_cast<float>(celsius));
    for (int second = -300; second <= 0; second += 10) {
        page.showReading(record, {{volts12, 5.02, 3.31}, 91.2}, kNow + second * 1000LL);
    }
    page.showLinkState(state, QStringLiteral("MODEL-1000-WITH-A-NAME"));
    view.setMainEnabled(state == LinkState::Live || state == LinkState::Silent);
}

void Stage::alarm(std::size_t count) {
    std::vector<psu::AlarmEntry> holding;
    for (std::size_t i = 0; i < count; ++i) {
        holding.push_back(
            {static_cast<psu::AlarmKind>(i), 11.21, QDateTime(kToday, QTime(22, 58)), {}, true});
    }
    view.alarmBanner()->showAlarms(holding);
}

void Stage::fan(LinkState state, double rpm) {
    FanPage &page = *view.fan();
    page.setReachable(state == LinkState::Live);
    for (int minute = -59; minute <= 0; ++minute) {
        for (int second = 0; second < 3; ++second) {
            page.takeReading({rpm, 41.0 + minute % 7, 54.0, fan::FanMode::Performance, 74.0},
                             kNow + minute * 60'000LL + second * 1000LL);
        }
    }
}

void Stage::span(HistorySpan span) {
    view.findChild<SegmentedControl *>(QStringLiteral("switchHistorySpan"))
        ->setCurrent(static_cast<int>(span));
}

void Stage::show(HistoryQuantity one, HistoryQuantity other) {
    const auto chips = view.history()->findChild<HistoryDayView *>()->findChildren<QCheckBox *>();
    for (const HistoryQuantity each : {one, other}) {
        if (!chips.at(static_cast<int>(each))->isChecked()) {
            chips.at(static_cast<int>(each))->click();
        }
    }
}

QPushButton &Stage::button(const char *name) const {
    return *view.findChild<QPushButton *>(QLatin1String(name));
}
void Stage::point(QWidget &plot) {
    QMouseEvent move(QEvent::MouseMove, plot.rect().center(), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot, &move);
}

} // namespace zpsg::ui::test
