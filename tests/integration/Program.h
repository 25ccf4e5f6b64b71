// Starts the built program the way a user does and waits for what it does.
#pragma once

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QThread>

#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace zpsg::test {

inline constexpr int kPatience = 60000; // for what must happen, on a machine however busy

/// Waits for a condition in another process; false when it does not come about.
inline bool waitUntil(const std::function<bool()> &condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > kPatience) {
            return false;
        }
        QThread::msleep(20);
    }
    return true;
}

struct Outcome {
    int code;
    QByteArray out, err;
};

/// Programs started here share a home of their own, so that they find each other and nothing else.
class Home {
public:
    Home() {
        environment_ = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"}) {
            environment_.insert(QLatin1String(name), dir_.path());
        }
        environment_.remove(QStringLiteral("DISPLAY"));
        environment_.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment_.remove(QStringLiteral("QT_QPA_PLATFORM"));
        // What the font and graphics libraries keep until the end is not the program's leak.
        environment_.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    }

    void set(const char *name, const QString &value) { environment_.insert(QLatin1String(name), value); }

    [[nodiscard]] QString path(const char *name) const { return dir_.filePath(QLatin1String(name)); }

    [[nodiscard]] std::unique_ptr<QProcess> make() const {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment_);
        return process;
    }

    [[nodiscard]] std::unique_ptr<QProcess> start(const QStringList &arguments,
                                                  const char *program = ZPSG_PROGRAM) const {
        auto process = make();
        process->start(QLatin1String(program), arguments);
        EXPECT_TRUE(process->waitForStarted(kPatience));
        return process;
    }

    [[nodiscard]] Outcome run(const QStringList &arguments) const {
        auto process = start(arguments);
        return finish(*process);
    }

    static Outcome finish(QProcess &process) {
        EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(kPatience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

private:
    QTemporaryDir dir_;
    QProcessEnvironment environment_;
};

/// The next line of its output; empty when none comes.
inline QByteArray nextLine(QProcess &process) {
    QElapsedTimer timer;
    timer.start();
    while (!process.canReadLine() && timer.elapsed() < kPatience && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(1000);
    }
    return process.readLine().trimmed();
}

} // namespace zpsg::test
