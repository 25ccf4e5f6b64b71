#include "app/Backend.h"
#include "app/CommandLine.h"
#include "app/ExportCommand.h"
#include "app/Headless.h"
#include "app/Paths.h"
#include "app/StartUp.h"
#include "platform/CommandArguments.h"
#include "platform/DeviceAccess.h"
#include "platform/ExitRequest.h"
#include "platform/NativeEvent.h"
#include "platform/Terminal.h"
#include "platform/WindowRendezvous.h"

#include <QApplication>

#include <cstdio>

using namespace zpsg;

namespace {

int complain(const QString &what, int code) {
    std::fprintf(stderr, "zpsg: %s\n", qPrintable(what));
    return code;
}

int wrongUse(const QString &what) {
    return complain(what + QStringLiteral("\nTry 'zpsg --help'."), app::kExitWrongUse);
}

QStringList argumentsAfterName(int argc, char **argv) {
    QStringList arguments;
    for (const std::u16string &argument : platform::unicodeArguments()) {
        arguments.append(QString::fromStdU16String(argument));
    }
    if (arguments.isEmpty()) {
        for (int i = 1; i < argc; ++i) {
            arguments.append(QString::fromLocal8Bit(argv[i]));
        }
    }
    return arguments;
}

int runHeadless(QCoreApplication &application, const app::CommandLine &line, const app::Paths &paths) {
    // A demo touches no device and may run beside the program; otherwise two readers would take each other's
    // replies.
    std::unique_ptr<platform::TitleClaim> title;
    if (!line.demo) {
        title = platform::TitleClaim::tryTake(platform::kMainWindowTitle);
        if (!title && platform::windowExists(platform::kMainWindowTitle)) {
            return complain(QStringLiteral("already running, and only one program can read the supply"),
                            app::kExitFailed);
        }
        if (title) {
            title->deliverTo([](const platform::WindowMessage &) { return false; });
        }
    }
    app::Headless headless(app::makeBackend(line), paths.curveFolders(),
                           line.json ? app::ReadingFormat::Json : app::ReadingFormat::Text,
                           platform::deviceAccessRemedy(paths.resources.toStdString()), stdout, stderr);
    QObject::connect(&headless, &app::Headless::outputFailed, &application,
                     [] { QCoreApplication::exit(app::kExitFailed); });
    platform::onExitRequest([] { QCoreApplication::quit(); });
    headless.start();
    return QCoreApplication::exec();
}

template <typename Application>
void name(const Application &) {
    Application::setApplicationName(QStringLiteral("zpsg"));
    Application::setApplicationVersion(QStringLiteral(ZPSG_VERSION));
}

int runExportCommand(int argc, char **argv, const QStringList &arguments) {
    QString error;
    const auto command = app::parseExportCommand(arguments, error);
    if (!command) {
        return wrongUse(error);
    }
    if (command->showHelp) {
        std::fputs(app::helpText().toUtf8().constData(), stdout);
        return app::kExitOk;
    }
    const QCoreApplication application(argc, argv);
    name(application);
    const auto paths =
        app::findPaths(QCoreApplication::applicationFilePath(), command->dataDir, command->demo, error);
    if (!paths) {
        return wrongUse(error);
    }
    bool interrupted = false;
    platform::onExitRequest([&interrupted] { interrupted = true; });
    return app::runExport(*command, paths->data, stdout, stderr, [&interrupted] {
        QCoreApplication::processEvents();
        return interrupted;
    });
}

} // namespace

int main(int argc, char **argv) {
    platform::attachToTerminal();
    const QStringList arguments = argumentsAfterName(argc, argv);
    if (!arguments.isEmpty() && arguments.first() == QLatin1String("export")) {
        return runExportCommand(argc, argv, arguments.mid(1));
    }
    QString error;
    const auto line = app::parseCommandLine(arguments, error);
    if (!line) {
        return wrongUse(error);
    }
    if (line->showHelp) {
        std::fputs(app::helpText().toUtf8().constData(), stdout);
        return app::kExitOk;
    }
    if (line->listModels) {
        std::fputs(app::modelList().toUtf8().constData(), stdout);
        return app::kExitOk;
    }
    if (line->showVersion) {
        std::puts("zpsg " ZPSG_VERSION);
        return app::kExitOk;
    }
    for (const auto &word : line->ignored) {
        complain(QStringLiteral("ignoring \"%1\"").arg(word), app::kExitOk);
    }
    if (line->headless) {
        QCoreApplication application(argc, argv);
        name(application);
        const auto paths =
            app::findPaths(QCoreApplication::applicationFilePath(), line->dataDir, line->demo, error);
        return paths ? runHeadless(application, *line, *paths) : wrongUse(error);
    }
    if (!platform::displayAvailable()) {
        return complain(QStringLiteral("there is no display to show the window on; --headless needs none"),
                        app::kExitFailed);
    }
    platform::prepareToolkit();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    name(application);
    const auto paths =
        app::findPaths(QCoreApplication::applicationFilePath(), line->dataDir, line->demo, error);
    if (!paths) {
        return wrongUse(error);
    }
    return app::runWithWindow(*line, *paths);
}
