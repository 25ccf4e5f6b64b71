// Folders and helper processes for the tests of the platform's services.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <string>

namespace zpsg::platform {

inline constexpr int kTestPatience = 30000; ///< milliseconds; reached only when something hangs

/// Every test has a runtime folder and a configuration folder of its own.
class PlatformTest : public testing::Test {
protected:
    PlatformTest() {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.path()));
    }

    [[nodiscard]] std::filesystem::path folder() const { return folder_.path().toStdString(); }

    template <class Condition>
    static bool loopUntil(Condition condition) {
        return QTest::qWaitFor(condition, kTestPatience);
    }

private:
    QTemporaryDir folder_;
};

/// The helper program; killed and reaped at the end.
class Helper {
public:
    explicit Helper(const QStringList &arguments) {
        process_.start(QStringLiteral(ZPSG_TEST_HELPER), arguments);
    }
    ~Helper() { kill(); }
    Helper(const Helper &) = delete;
    Helper &operator=(const Helper &) = delete;

    /// The next line it prints, without running an event loop; empty when it ends first.
    std::string line() {
        while (!process_.canReadLine() && process_.waitForReadyRead(kTestPatience)) {
        }
        return process_.readLine().trimmed().toStdString();
    }
    void tell(const std::string &line) {
        process_.write((line + '\n').c_str());
        process_.waitForBytesWritten(kTestPatience);
    }
    void kill() {
        process_.kill();
        process_.waitForFinished(kTestPatience);
    }
    QProcess &process() { return process_; }

private:
    QProcess process_;
};

} // namespace zpsg::platform
