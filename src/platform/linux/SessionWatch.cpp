#include "platform/SessionWatch.h"

#include "platform/linux/Bus.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/Log.h"

#include <array>
#include <cstdlib>
#include <deque>
#include <fcntl.h>
#include <QPointer>
#include <string>

namespace zpsg::platform {
namespace {

constexpr const char *kLogin = "org.freedesktop.login1";
constexpr const char *kLoginPath = "/org/freedesktop/login1";
constexpr const char *kManager = "org.freedesktop.login1.Manager";
constexpr const char *kSession = "org.freedesktop.login1.Session";
constexpr const char *kUser = "org.freedesktop.login1.User";
constexpr const char *kProperties = "org.freedesktop.DBus.Properties";

// The desktops' own screen lockers; service and interface have the same name.
constexpr std::array kScreenSavers{"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver",
                                   "org.cinnamon.ScreenSaver", "org.mate.ScreenSaver",
                                   "org.xfce.ScreenSaver"};

bool flagOf(sd_bus_message *signal) {
    int flag = 0;
    return sd_bus_message_read(signal, "b", &flag) > 0 && flag != 0;
}

std::string matchOf(const char *service, const char *interface, const char *member) {
    return std::string("type='signal',sender='") + service + "',interface='" + interface + "',member='" +
           member + "'";
}

class LinuxSessionWatch final : public SessionWatch {
public:
    explicit LinuxSessionWatch(std::function<void(SessionEvent)> handler)
        : handler_(std::move(handler))
        , system_(
              Bus::Which::System, [this] { watchLogin(); }, [this] { loginLost(); })
        , session_(
              Bus::Which::Session, [this] { watchScreenSavers(); }, [] {}) {
        due_.setSingleShot(true);
        QObject::connect(&due_, &QTimer::timeout, &due_, [this] { tell(); });
    }

private:
    void watchLogin() {
        system_.subscribe("type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
                          "member='NameOwnerChanged',arg0='org.freedesktop.login1'",
                          [this](sd_bus_message *message) { loginChanged(message); });
        system_.subscribe(matchOf(kLogin, kManager, "PrepareForSleep").c_str(),
                          [this](sd_bus_message *message) { sleeping(flagOf(message)); });
        system_.subscribe(matchOf(kLogin, kSession, "Lock").c_str(),
                          ofOurSession([this](sd_bus_message *) { locked(true); }));
        system_.subscribe(matchOf(kLogin, kSession, "Unlock").c_str(),
                          ofOurSession([this](sd_bus_message *) { locked(false); }));
        system_.subscribe(matchOf(kLogin, kProperties, "PropertiesChanged").c_str(),
                          ofOurSession([this](sd_bus_message *) { askLockedHint(); }));
        loginFound();
    }

    void loginChanged(sd_bus_message *message) {
        const char *name = nullptr;
        const char *before = nullptr;
        const char *now = nullptr;
        if (sd_bus_message_read(message, "sss", &name, &before, &now) > 0) {
            if (*now != '\0') {
                loginFound();
            } else {
                loginLost();
            }
        }
    }

    void loginFound() {
        delaySleep();
        system_.call(
            kLogin, kLoginPath, kManager, "GetSessionByPID",
            [this](sd_bus_message *message) {
                if (!sessionFound(message)) {
                    askForUser();
                }
            },
            "u", static_cast<std::uint32_t>(getpid()));
    }

    // A program that the desktop's service manager has started belongs to the user, not to a session.
    void askForUser() {
        system_.call(
            kLogin, kLoginPath, kManager, "GetUser",
            [this](sd_bus_message *message) {
                const char *path = nullptr;
                if (message != nullptr && sd_bus_message_read(message, "o", &path) > 0) {
                    askForDisplay(path);
                } else {
                    askForNamedSession();
                }
            },
            "u", static_cast<std::uint32_t>(getuid()));
    }

    void askForDisplay(const char *user) {
        system_.call(
            kLogin, user, kProperties, "Get",
            [this](sd_bus_message *message) {
                const char *name = nullptr;
                const char *path = nullptr;
                if (message != nullptr && sd_bus_message_read(message, "v", "(so)", &name, &path) > 0 &&
                    *name != '\0') {
                    useSession(path);
                } else {
                    askForNamedSession();
                }
            },
            "ss", kUser, "Display");
    }

    void askForNamedSession() {
        if (const char *name = std::getenv("XDG_SESSION_ID")) {
            system_.call(
                kLogin, kLoginPath, kManager, "GetSession",
                [this](sd_bus_message *message) { sessionFound(message); }, "s", name);
        }
    }

    bool sessionFound(sd_bus_message *message) {
        const char *path = nullptr;
        if (message == nullptr || sd_bus_message_read(message, "o", &path) <= 0) {
            return false;
        }
        useSession(path);
        return true;
    }

    void useSession(const char *path) {
        ourSession_ = path;
        askLockedHint();
    }

    Bus::Receiver ofOurSession(Bus::Receiver receiver) {
        return [this, receiver = std::move(receiver)](sd_bus_message *message) {
            if (message != nullptr && ourSession_ == sd_bus_message_get_path(message)) {
                receiver(message);
            }
        };
    }

    void askLockedHint() {
        system_.call(
            kLogin, ourSession_.c_str(), kProperties, "Get",
            [this](sd_bus_message *message) {
                // Not every desktop sets the hint: only a change of it says something.
                int hint = 0;
                if (message != nullptr && sd_bus_message_read(message, "v", "b", &hint) > 0 &&
                    (hint != 0) != lockedHint_) {
                    lockedHint_ = hint != 0;
                    locked(lockedHint_);
                }
            },
            "ss", kSession, "LockedHint");
    }

    void loginLost() {
        delay_ = FileDescriptor();
        ourSession_.clear();
        sleeping(false); // it would not say when the PC is back
    }

    void delaySleep() {
        system_.call(
            kLogin, kLoginPath, kManager, "Inhibit",
            [this](sd_bus_message *message) {
                int fd = -1;
                if (message != nullptr && !asleep_ && sd_bus_message_read(message, "h", &fd) > 0) {
                    delay_ = FileDescriptor(fcntl(fd, F_DUPFD_CLOEXEC, 0)); // the other is the message's
                }
            },
            "ssss", "sleep", "ZPS G", "The lights are set before the PC sleeps", "delay");
    }

    void watchScreenSavers() {
        for (const char *name : kScreenSavers) {
            session_.subscribe(matchOf(name, name, "ActiveChanged").c_str(),
                               [this](sd_bus_message *message) { locked(flagOf(message)); });
        }
    }

    // Several sources report the same: the latest word counts.
    void locked(bool now) {
        if (now != locked_) {
            locked_ = now;
            note(now ? SessionEvent::Locked : SessionEvent::Unlocked);
        }
    }

    void sleeping(bool now) {
        if (now != asleep_) {
            asleep_ = now;
            note(now ? SessionEvent::GoingToSleep : SessionEvent::Resumed);
        }
    }

    // The handler runs when the bus has done its work: it may end the watch.
    void note(SessionEvent event) {
        events_.push_back(event);
        due_.start(0);
    }

    void tell() {
        const QPointer<QTimer> alive(&due_);
        while (alive && !events_.empty()) {
            const SessionEvent event = events_.front();
            events_.pop_front();
            const auto handler = handler_;
            handler(event);
            if (alive && event == SessionEvent::GoingToSleep) {
                delay_ = FileDescriptor();
            } else if (alive && event == SessionEvent::Resumed) {
                delaySleep();
            }
        }
    }

    std::function<void(SessionEvent)> handler_;
    std::deque<SessionEvent> events_;
    QTimer due_;
    std::string ourSession_; // object path; empty: not known
    FileDescriptor delay_;   // the system sleeps once it is closed
    bool locked_ = false;
    bool lockedHint_ = false;
    bool asleep_ = false;
    Bus system_; // after what their receivers use
    Bus session_;
};

} // namespace

std::unique_ptr<SessionWatch> SessionWatch::start(std::function<void(SessionEvent)> handler) {
    return std::make_unique<LinuxSessionWatch>(std::move(handler));
}

} // namespace zpsg::platform
