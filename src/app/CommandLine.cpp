#include "app/CommandLine.h"

#include "power/ModelTable.h"
#include "simulator/DemoSupply.h"

namespace zpsg::app {
namespace {

/// What fits into the supply's reply, and nothing that would need quoting in it.
constexpr int kLongestModelText = 62;

/// Three days in a minute.
constexpr int kUsualFastClock = 4320;
/// A minute in six milliseconds: faster than most disks take a row.
constexpr int kFastestClock = 10000;

bool isModelText(const QString &text) {
    return !text.isEmpty() && text.size() <= kLongestModelText &&
           std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7F; });
}

} // namespace

std::optional<CommandLine> parseCommandLine(const QStringList &arguments, QString &error) {
    CommandLine line;
    line.startHidden = !arguments.isEmpty() && arguments.first() == QLatin1String("open");
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        const QString name = argument.section(QLatin1Char('='), 0, 0);
        const bool hasValue = argument.contains(QLatin1Char('='));
        QString value = argument.section(QLatin1Char('='), 1);
        if (name == QLatin1String("--demo")) {
            line.demo = true;
            line.demoModel = value;
            if (hasValue && !isModelText(value)) {
                error = QStringLiteral("--demo=%1: a model is 1 to %2 printable characters without blanks")
                            .arg(value)
                            .arg(kLongestModelText);
                return std::nullopt;
            }
        } else if (name == QLatin1String("--fast-clock")) {
            bool number = false;
            line.fastClock = hasValue ? value.toInt(&number) : kUsualFastClock;
            if (hasValue && (!number || line.fastClock < 1 || line.fastClock > kFastestClock)) {
                error = QStringLiteral("--fast-clock=%1: how many times faster is 1 to %2")
                            .arg(value)
                            .arg(kFastestClock);
                return std::nullopt;
            }
        } else if (name == QLatin1String("--data-dir")) {
            if (!hasValue && i + 1 < arguments.size()) {
                value = arguments[++i];
            }
            if (value.isEmpty()) {
                error = QStringLiteral("--data-dir needs a directory");
                return std::nullopt;
            }
            line.dataDir = value;
        } else if (argument == QLatin1String("--headless")) {
            line.headless = true;
        } else if (argument == QLatin1String("--json")) {
            line.json = true;
        } else if (argument == QLatin1String("--list-models")) {
            line.listModels = true;
        } else if (argument == QLatin1String("--version")) {
            line.showVersion = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            line.showHelp = true;
        } else if (argument.startsWith(QLatin1Char('-'))) {
            error = QStringLiteral("unknown option %1").arg(argument);
            return std::nullopt;
        } else if (!(line.startHidden && i == 0)) {
            line.ignored.append(argument);
        }
    }
    if (line.json && !line.headless) {
        error = QStringLiteral("--json goes with --headless");
        return std::nullopt;
    }
    if (line.fastClock > 0 && (!line.demo || line.headless)) {
        error = QStringLiteral("--fast-clock goes with --demo, in a window");
        return std::nullopt;
    }
    return line;
}

QString modelList() {
    QString text;
    int position = 0;
    for (const auto &row : power::kCurveModels) {
        const auto quoted = [](std::string_view part) {
            return QString::fromLatin1(part.data(), static_cast<int>(part.size()));
        };
        const QStringList fields{QString::number(position++), quoted(row.code),
                                 QString::number(row.ratedWatts), quoted(row.curve),
                                 QString::number(row.seriesCode.value_or(0))};
        text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

QString helpText() {
    return QStringLiteral(R"(Usage: zpsg [open] [options]
       zpsg export --from DATE --to DATE --minutes|--days [--output FILE]

Monitors and controls a ZPS G power supply.

  open              start, then hide in the tray (what the autostart entry does)
  --demo[=MODEL]    run against a simulated supply (default model %1)
  --fast-clock[=N]  with --demo: time runs N times faster (default 4320, three
                    days in a minute), from midnight three days ago
  --data-dir DIR    keep settings and records in DIR
  --headless        no window: print a line for each reading, until interrupted
  --json            with --headless: print one JSON object for each reading
  --list-models     print the models with an efficiency curve, tab-separated:
                    position, code, rated watts, curve file, series code
  export            write the records of a range of days (yyyy-MM-dd) as
                    comma-separated text: each minute, or a sum for each day
  --version         print the version
  --help            print this text

Exit codes: 0 done, 1 a task failed, 2 wrong use.
Debug lines: set QT_LOGGING_RULES="zpsg.*.debug=true".
)")
        .arg(QLatin1String(simulator::kDemoModel));
}

} // namespace zpsg::app
