#include "app/Headless.h"

#include "platform/DeviceWatch.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <array>

namespace zpsg::app {
namespace {

struct Column {
    const char *key;
    const char *heading;
    int decimals;
    int width;
};

constexpr std::array kColumns{
    Column{"WATTS", "output W", 1, 9}, Column{"EFF", "eff %", 1, 7},        Column{"VIN", "input V", 1, 8},
    Column{"VVOut12", "12 V", 2, 7},   Column{"VIOut12", "A", 2, 7},        Column{"VVOut5", "5 V", 2, 7},
    Column{"VIOut5", "A", 2, 7},       Column{"VVOut33", "3.3 V", 2, 7},    Column{"VIOut33", "A", 2, 7},
    Column{"Temp", "temp C", 1, 8},    Column{"FanSpeed", "fan rpm", 0, 9},
};

/// No window stands still meanwhile.
constexpr std::chrono::milliseconds kPatience(1000);

constexpr int kTimeWidth = 8;
constexpr int kLinesPerHeading = 40;

QByteArray headingLine() {
    QString line = QStringLiteral("time").leftJustified(kTimeWidth);
    for (const auto &column : kColumns) {
        line += QString::fromLatin1(column.heading).rightJustified(column.width);
    }
    return line.toUtf8();
}

} // namespace

QByteArray readingAsJson(const psu::TelemetryRecord &record, const QString &model, const QStringList &alarms,
                         const QDateTime &time) {
    QJsonObject object;
    object.insert(QStringLiteral("time"),
                  time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs));
    object.insert(QStringLiteral("model"), model);
    object.insert(QStringLiteral("alarms"), QJsonArray::fromStringList(alarms));
    const auto &entries = record.entries();
    for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry) {
        const bool known = record.measured(entry.key()) || entry.key().startsWith(QLatin1String("HW"));
        object.insert(entry.key(), known ? QJsonValue(entry->toDouble()) : QJsonValue());
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray readingAsText(const psu::TelemetryRecord &record, const QDateTime &time) {
    QString line = time.toString(QStringLiteral("hh:mm:ss")).leftJustified(kTimeWidth);
    for (const auto &column : kColumns) {
        const QLatin1String key(column.key);
        line += (record.measured(key) ? QString::number(record.number(key), 'f', column.decimals)
                                      : QStringLiteral("-"))
                    .rightJustified(column.width);
    }
    return line.toUtf8();
}

Headless::Headless(std::unique_ptr<psu::HidBackend> backend, const QStringList &curveFolders,
                   ReadingFormat format, std::string remedy, std::FILE *out, std::FILE *notes)
    : supply_(std::move(backend), {{}, kPatience}, curveFolders)
    , monitor_(supply_.monitor())
    , alarms_([] { return QRandomGenerator::global()->generate(); })
    , format_(format)
    , remedy_(std::move(remedy))
    , out_(out)
    , notes_(notes) {
    connect(&monitor_, &psu::SupplyMonitor::readingTaken, this, &Headless::print);
    connect(&monitor_, &psu::SupplyMonitor::stateChanged, this, &Headless::note);
    connect(&monitor_, &psu::SupplyMonitor::reconnectDue, this, &Headless::deviceChanged,
            Qt::QueuedConnection);
    connect(&readTimer_, &QTimer::timeout, &monitor_, &psu::SupplyMonitor::readInfo);
    watch_ = platform::DeviceWatch::start([this](const platform::WindowMessage &) {
        deviceChanged();
        return true;
    });
}

Headless::~Headless() = default;

void Headless::start() {
    supply_.identifyModel();
    if (!troubled_ && !monitor_.mainPathPresent() && !monitor_.rawPathPresent()) { // not told yet
        note(monitor_.state());
    }
    monitor_.readInfo();
    readTimer_.setTimerType(Qt::PreciseTimer);
    readTimer_.start(1000);
}

void Headless::deviceChanged() {
    if (supply_.connectPsu()) {
        QMetaObject::invokeMethod(&monitor_, "readInfo", Qt::QueuedConnection);
    }
}

void Headless::print() {
    for (const auto begun : alarms_.tick(monitor_.record()).begun) {
        std::fprintf(notes_, "zpsg: alarm: %s\n", psu::alarmName(begun));
    }
    const auto now = QDateTime::currentDateTime();
    QByteArray line;
    if (format_ == ReadingFormat::Json) {
        line = readingAsJson(monitor_.record(), monitor_.modelText(), alarms_.activeNames(), now);
    } else {
        line = lines_++ % kLinesPerHeading == 0 ? headingLine() + '\n' : QByteArray();
        line += readingAsText(monitor_.record(), now);
    }
    line += '\n';
    if (std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), out_) !=
            static_cast<std::size_t>(line.size()) ||
        std::fflush(out_) != 0) {
        emit outputFailed();
    }
}

void Headless::note(psu::LinkState state) {
    const bool wasTroubled = std::exchange(troubled_, state != psu::LinkState::Live);
    switch (state) {
    case psu::LinkState::NoDevice:
        std::fputs("zpsg: no power supply found; waiting for one\n", notes_);
        break;
    case psu::LinkState::NoPermission:
        std::fprintf(notes_,
                     "zpsg: a power supply is there, but this user may not open it. Allow it with:\n  %s\n",
                     remedy_.c_str());
        break;
    case psu::LinkState::Silent:
        std::fputs("zpsg: the power supply does not answer; asking on\n", notes_);
        break;
    case psu::LinkState::Live:
        if (wasTroubled) {
            std::fputs("zpsg: power supply connected\n", notes_);
        }
        break;
    }
}

} // namespace zpsg::app
