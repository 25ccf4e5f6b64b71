#include "app/ExportCommand.h"

#include "app/CommandLine.h"
#include "platform/Terminal.h"

#include <QElapsedTimer>

namespace zpsg::app {
namespace {

const QString kDateFormat = QStringLiteral("yyyy-MM-dd");
constexpr qint64 kQuietMilliseconds = 500;
constexpr qint64 kBetweenUpdatesMilliseconds = 100;

int complain(std::FILE *notes, const QString &what) {
    std::fprintf(notes, "zpsg: %s\n", qPrintable(what));
    return kExitFailed;
}

bool takeDate(const QString &name, const QString &value, QDate &date, QString &error) {
    date = QDate::fromString(value, kDateFormat);
    if (date.isValid() && date.toString(kDateFormat) == value) {
        return true;
    }
    error = QStringLiteral("%1 needs a date like 2026-01-31").arg(name);
    return false;
}

/// False when the option is not known or its value does not fit; `error` says which.
bool takeValue(const QString &name, const QString &value, ExportCommand &command, QString &error) {
    if (name == QLatin1String("--from")) {
        return takeDate(name, value, command.from, error);
    }
    if (name == QLatin1String("--to")) {
        return takeDate(name, value, command.to, error);
    }
    const bool output = name == QLatin1String("--output");
    if (value.isEmpty()) {
        error = QStringLiteral("%1 needs a %2")
                    .arg(name, output ? QStringLiteral("file") : QStringLiteral("directory"));
        return false;
    }
    (output ? command.output : command.dataDir) = value;
    return true;
}

/// What the options must be together.
QString contradiction(const ExportCommand &command, bool minutes, bool days) {
    if (!command.from.isValid() || !command.to.isValid()) {
        return QStringLiteral("export needs --from DATE and --to DATE");
    }
    if (command.from > command.to) {
        return QStringLiteral("--from %1 is after --to %2")
            .arg(command.from.toString(kDateFormat), command.to.toString(kDateFormat));
    }
    return minutes == days ? QStringLiteral("export needs either --minutes or --days") : QString();
}

/// One line that is written over, for somebody who waits.
class ProgressLine {
public:
    ProgressLine(std::FILE *stream, bool watched) : stream_(stream), watched_(watched) { since_.start(); }
    ~ProgressLine() {
        if (shown_ >= 0) {
            std::fputs("\r                    \r", stream_);
            std::fflush(stream_);
        }
    }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void show(double part) {
        if (!watched_ || since_.elapsed() < next_) {
            return;
        }
        next_ = since_.elapsed() + kBetweenUpdatesMilliseconds;
        const int percent = static_cast<int>(part * 100.0);
        if (percent != shown_) {
            std::fprintf(stream_, "\r%3d %% exported", percent);
            std::fflush(stream_);
            shown_ = percent;
        }
    }

private:
    std::FILE *stream_;
    bool watched_;
    QElapsedTimer since_;
    qint64 next_ = kQuietMilliseconds;
    int shown_ = -1;
};

void tellWhatIsMissing(const records::RangeExport &run, const ExportCommand &command, std::FILE *notes) {
    if (run.rows() == 0) {
        complain(notes, QStringLiteral("nothing is recorded from %1 to %2")
                            .arg(command.from.toString(kDateFormat), command.to.toString(kDateFormat)));
    }
    if (run.unreadableRows() > 0) {
        complain(notes,
                 QStringLiteral("left out because they can't be read: %1 rows").arg(run.unreadableRows()));
    }
    if (run.missingFiles() > 0) {
        complain(notes,
                 QStringLiteral("left out because they are gone: %1 record files").arg(run.missingFiles()));
    }
}

} // namespace

std::optional<ExportCommand> parseExportCommand(const QStringList &arguments, QString &error) {
    ExportCommand command;
    bool minutes = false;
    bool days = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        const QString name = argument.section(QLatin1Char('='), 0, 0);
        if (name == QLatin1String("--from") || name == QLatin1String("--to") ||
            name == QLatin1String("--output") || name == QLatin1String("--data-dir")) {
            QString value = argument.section(QLatin1Char('='), 1);
            if (argument == name && i + 1 < arguments.size()) {
                value = arguments[++i];
            }
            if (!takeValue(name, value, command, error)) {
                return std::nullopt;
            }
        } else if (argument == QLatin1String("--minutes")) {
            minutes = true;
        } else if (argument == QLatin1String("--days")) {
            days = true;
        } else if (argument == QLatin1String("--demo")) {
            command.demo = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            command.showHelp = true;
            return command;
        } else {
            error = QStringLiteral("export does not know %1").arg(argument);
            return std::nullopt;
        }
    }
    error = contradiction(command, minutes, days);
    if (!error.isEmpty()) {
        return std::nullopt;
    }
    command.mode = minutes ? records::ExportMode::Minutes : records::ExportMode::Days;
    return command;
}

int runExport(const ExportCommand &command, const QString &dataDir, std::FILE *out, std::FILE *notes,
              const std::function<bool()> &cancelled) {
    const QString name = command.output.value_or(QStringLiteral("standard output"));
    const auto failed = [&](const QString &why) {
        return complain(notes, QStringLiteral("can't write %1: %2").arg(name, why));
    };
    const bool writable = platform::prepareForData(out); // a file may be a pipe just as well
    if (!command.output && !writable) {
        return failed(QStringLiteral("it is closed"));
    }
    QString why;
    auto target =
        command.output ? records::exportTarget(*command.output, why) : records::exportTarget(out, why);
    if (!target) {
        return failed(why);
    }
    records::DayIndex index(dataDir);
    records::RangeExport run(index, command.from, command.to, command.mode, std::move(target));
    auto state = records::RangeExport::State::Working;
    {
        const bool rowsAreSeen = !command.output && platform::isTerminal(out);
        ProgressLine line(notes, !rowsAreSeen && platform::isTerminal(notes));
        while (state == records::RangeExport::State::Working) {
            if (cancelled && cancelled()) {
                break;
            }
            state = run.step();
            line.show(run.progress());
        }
    }
    if (state == records::RangeExport::State::Failed) {
        return failed(run.error());
    }
    if (state == records::RangeExport::State::Working) {
        return complain(notes, QStringLiteral("the export was interrupted"));
    }
    tellWhatIsMissing(run, command, notes);
    return kExitOk;
}

} // namespace zpsg::app
