#include "PlatformFixture.h"

#include "platform/ExitRequest.h"

#include <csignal>
#include <QThread>

namespace zpsg::platform {
namespace {

class ExitRequestTest : public PlatformTest {
protected:
    // Where the tests run under nohup, hangups would stay ignored, here and in the helper.
    ExitRequestTest() { std::signal(SIGHUP, SIG_DFL); }

    static void signal(Helper &helper, int number) {
        ::kill(static_cast<pid_t>(helper.process().processId()), number);
    }
};

TEST_F(ExitRequestTest, RequestsReachTheHandlerOnTheLoop) {
    int requests = 0;
    const QThread *thread = nullptr;
    onExitRequest([&] {
        ++requests;
        thread = QThread::currentThread();
    });
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGTERM}) {
        const int before = requests;
        raise(number);
        EXPECT_EQ(requests, before) << "called from the signal handler itself";
        EXPECT_TRUE(loopUntil([&] { return requests > before; })) << "signal " << number;
        EXPECT_EQ(requests, before + 1);
        EXPECT_EQ(thread, QThread::currentThread());
    }
    raise(SIGHUP);
    raise(SIGHUP);
    raise(SIGTERM);
    EXPECT_TRUE(loopUntil([&] { return requests == 5; })) << "a session that closes is one request";
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(number, SIG_DFL); // the handler's captures end here
    }
}

TEST_F(ExitRequestTest, OnlyARepeatedPersonalRequestEndsAStuckProgram) {
    Helper helper({QStringLiteral("stuck")});
    ASSERT_EQ(helper.line(), "ready");
    signal(helper, SIGHUP);
    ASSERT_EQ(helper.line(), "asked");
    signal(helper, SIGHUP);
    signal(helper, SIGHUP);
    // Two signals of a kind that arrive together merge into one, so they are sent until they tell.
    for (int i = 0; i < 1000 && helper.process().state() != QProcess::NotRunning; ++i) {
        signal(helper, SIGTERM);
        helper.process().waitForFinished(10);
    }
    EXPECT_EQ(helper.process().exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(helper.process().exitCode(), 128 + SIGTERM);
}

} // namespace
} // namespace zpsg::platform
