// The program as its users run it: its window, what other processes send it, and what it leaves in the
// registry.

#include "../Program.h"

#include "platform/WindowMessage.h"

#include <QFile>
#include <QTcpSocket>

#include <windows.h>

using namespace zpsg::test;
using namespace zpsg::platform;

namespace {

constexpr const wchar_t *kTitle = L"CorvaneZPSPOWER";
constexpr const wchar_t *kRunKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

HWND mainWindow() { return FindWindowW(nullptr, kTitle); }
bool isShown() { return mainWindow() != nullptr && IsWindowVisible(mainWindow()) != FALSE; }
bool isHidden() { return mainWindow() != nullptr && IsWindowVisible(mainWindow()) == FALSE; }

/// What starts the program with the user's session; empty without.
QString runCommand() {
    std::array<wchar_t, 1024> text{};
    DWORD bytes = sizeof(text);
    if (RegGetValueW(HKEY_CURRENT_USER, kRunKey, L"ZPS G", RRF_RT_REG_SZ, nullptr, text.data(), &bytes) !=
        ERROR_SUCCESS) {
        return {};
    }
    return QString::fromWCharArray(text.data());
}

void setRunCommand(const QString &command) {
    const std::wstring text = command.toStdWString();
    if (text.empty()) {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, kRunKey, L"ZPS G");
    } else {
        RegSetKeyValueW(HKEY_CURRENT_USER, kRunKey, L"ZPS G", REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
}

class WindowsProgram : public ::testing::Test {
protected:
    ~WindowsProgram() override {
        if (program_) {
            program_->kill();
            program_->waitForFinished(kPatience);
        }
    }

    void start(QStringList arguments) {
        program_ = home_.start(arguments += {QStringLiteral("--data-dir"), home_.path("data")});
    }

    [[nodiscard]] Outcome startAgain(const QString &argument) const {
        return home_.run({argument, QStringLiteral("--data-dir"), home_.path("data")});
    }

    void writeSettings(const QByteArray &text) const {
        QDir().mkpath(home_.path("data"));
        QFile file(home_.path("data/config_ZPSG.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    Home home_;
    std::unique_ptr<QProcess> program_;
};

TEST_F(WindowsProgram, ASecondStartShowsTheHiddenFirstOne) {
    start({QStringLiteral("open"), QStringLiteral("--demo")});
    ASSERT_TRUE(waitUntil(isShown));
    ASSERT_TRUE(waitUntil(isHidden)); // as the entry for the session's start wants it
    EXPECT_EQ(startAgain(QStringLiteral("--demo")).code, 0);
    EXPECT_TRUE(waitUntil(isShown));
    EXPECT_EQ(program_->state(), QProcess::Running);

    PostMessageW(mainWindow(), WM_CLOSE, 0, 0); // only takes it off the screen
    ASSERT_TRUE(waitUntil(isHidden));
    EXPECT_EQ(SendMessageW(mainWindow(), kShowRequest, 0, 1), 1);
    EXPECT_TRUE(waitUntil(isShown));
}

TEST_F(WindowsProgram, TheSystemMenuLacksCloseAndMaximise) {
    start({QStringLiteral("--demo")});
    ASSERT_TRUE(waitUntil(isShown));
    HMENU menu = GetSystemMenu(mainWindow(), FALSE);
    if (menu == nullptr) {
        GTEST_SKIP() << "wine shows nobody another process's menu; the self-test looks at one of its own";
    }
    const auto lacks = [menu](UINT entry) { return GetMenuState(menu, entry, MF_BYCOMMAND) == UINT_MAX; };
    EXPECT_TRUE(waitUntil([&] { return lacks(SC_CLOSE) && lacks(SC_MAXIMIZE); }));
    EXPECT_FALSE(lacks(SC_MINIMIZE));
}

// A set with two rings takes the companion's messages; other numbers are nobody's.
TEST_F(WindowsProgram, TheCompanionsMessagesArrive) {
    start({QStringLiteral("--demo=CVX-1000-D")});
    ASSERT_TRUE(waitUntil(isShown));
    // The first reading tells which model it is.
    EXPECT_TRUE(waitUntil([] { return SendMessageW(mainWindow(), kSyncOffByFans, 0, 0) == 1; }));
    EXPECT_EQ(SendMessageW(mainWindow(), kSyncOnByFans, 0, 0), 1);
    EXPECT_EQ(SendMessageW(mainWindow(), kSyncOffByKeyBoard, 0, 0), 1);
    EXPECT_EQ(SendMessageW(mainWindow(), kSyncOffByKeyBoard + 1, 0, 0), 0);
}

// An entry that starts this program with the setting off comes from the setup, and switches the setting on.
TEST_F(WindowsProgram, TheRunKeyFollowsTheSetting) {
    const struct {
        const char *settings;
        QString before;
        const char *end; // of the command; empty for none
    } cases[] = {
        {"Autostart=true\nStartHidden=true\n", {}, "zpsg.exe\" open"},
        {"Autostart=true\nStartHidden=false\n", {}, "zpsg.exe\""},
        {"Autostart=false\n", QStringLiteral("\"C:\\old\\zpsg.exe\" open"), ""},
    };
    for (const auto &row : cases) {
        setRunCommand(row.before);
        writeSettings(QByteArray("[Setting]\n") + row.settings);
        start({});
        EXPECT_TRUE(waitUntil([&row] {
            const QString now = runCommand();
            return *row.end == '\0' ? now.isEmpty()
                                    : now != row.before && now.endsWith(QLatin1String(row.end));
        })) << row.settings
            << qPrintable(runCommand());
        program_->kill();
        program_->waitForFinished(kPatience);
    }
    setRunCommand({});
}

TEST_F(WindowsProgram, TheControlSocketAnswers) {
    start({QStringLiteral("--demo")});
    ASSERT_TRUE(waitUntil(isShown));
    QTcpSocket client;
    client.connectToHost(QStringLiteral("127.0.0.1"), 5488);
    ASSERT_TRUE(client.waitForConnected(kPatience)) << qPrintable(client.errorString());
    EXPECT_TRUE(client.waitForReadyRead(kPatience)); // its greeting
}

// zpsg.com is what a command line runs.
TEST(WindowsConsole, LendsItsStreamsAndReturnsTheExitCode) {
    const Home home;
    const auto run = [&home](const QStringList &arguments) {
        const auto process = home.start(arguments, ZPSG_CONSOLE_PROGRAM);
        return Home::finish(*process);
    };
    const auto version = run({QStringLiteral("--version")});
    EXPECT_EQ(version.code, 0);
    EXPECT_TRUE(version.out.startsWith("zpsg ")) << version.out.constData();
    const auto wrong = run({QStringLiteral("--data-dir")});
    EXPECT_EQ(wrong.code, 2);
    EXPECT_TRUE(wrong.err.startsWith("zpsg: ")) << wrong.err.constData();

    const auto reader =
        home.start({QStringLiteral("--demo"), QStringLiteral("--headless"), QStringLiteral("--json"),
                    QStringLiteral("--data-dir"), home.path("a folder")},
                   ZPSG_CONSOLE_PROGRAM);
    EXPECT_TRUE(nextLine(*reader).contains("\"WATTS\""));
    reader->kill();
    reader->waitForFinished(kPatience);
}

} // namespace
