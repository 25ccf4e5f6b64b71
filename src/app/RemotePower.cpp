#include "app/RemotePower.h"

#include "app/Logging.h"

#include <algorithm>
#include <array>

namespace zpsg::app {
namespace {

using platform::PowerAction;
using ui::PowerCountdown;

struct Command {
    const char *word;
    PowerAction action;
    PowerCountdown::Action asked;
};

constexpr std::array kCommands{
    Command{"shutdown", PowerAction::Shutdown, PowerCountdown::Action::Shutdown},
    Command{"restart", PowerAction::Restart, PowerCountdown::Action::Restart},
    Command{"sleep", PowerAction::Sleep, PowerCountdown::Action::Sleep},
};

constexpr int kAllowed = 1;

} // namespace

RemotePower::RemotePower(const Settings &settings, QObject *parent, PowerMeans means)
    : QObject(parent), settings_(settings), means_(std::move(means)) {}

RemotePower::~RemotePower() = default;

void RemotePower::request(const QString &word) {
    const auto *command = std::find_if(kCommands.begin(), kCommands.end(), [&word](const Command &row) {
        return word == QLatin1String(row.word);
    });
    if (command == kCommands.end()) {
        qCDebug(lcApp) << "no power command:" << word;
        return;
    }
    if (settings_.integer(Setting::RemotePower) != kAllowed) {
        qCDebug(lcApp) << "remote power commands are switched off; ignored:" << word;
        return;
    }
    if (countdown_) {
        qCDebug(lcApp) << "a power command counts down already; ignored:" << word;
        return;
    }
    countdown_ = std::make_unique<PowerCountdown>(command->asked, means_.now);
    connect(countdown_.get(), &PowerCountdown::cancelled, this, &RemotePower::putAway);
    connect(countdown_.get(), &PowerCountdown::confirmed, this,
            [this, action = command->action] { carryOut(action); });
    countdown_->begin();
}

void RemotePower::carryOut(PowerAction action) {
    putAway();
    std::string error;
    if (!means_.act(action, error)) {
        qCWarning(lcApp) << "the system refused the power command:" << error.c_str();
        emit failed(QString::fromStdString(error));
    }
}

// Called from its own signals.
void RemotePower::putAway() { countdown_.release()->deleteLater(); }

} // namespace zpsg::app
