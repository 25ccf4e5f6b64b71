#include "remote/HomeAssistantLink.h"

#include "remote/mqttHelper.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace zpsg::remote {
namespace {

// Home Assistant announces its own start here.
const QLatin1String kBirthTopic("homeassistant/status");

} // namespace

HomeAssistantLink::HomeAssistantLink(mqttHelper &helper, QObject *parent) : QObject(parent), helper_(helper) {
    clock_.start();
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &HomeAssistantLink::sendDue);
    // The helper connected first, so its "05" goes out before anything of this.
    connect(&helper_.client(), &MqttClient::connected, this, &HomeAssistantLink::introduce);
    connect(&helper_.client(), &MqttClient::received, this, &HomeAssistantLink::receive);
    connect(&helper_, &mqttHelper::aboutToDisconnect, this, &HomeAssistantLink::sayGoodbye);
}

void HomeAssistantLink::setDevice(const QString &model, const QString &serial, double ratedWatts,
                                  bool customSpeed, const QStringList &ringEffects) {
    HaDevice device{model, serial, ratedWatts, customSpeed, ringEffects};
    if (device_ == device) {
        return;
    }
    if (device_ && device_->base() != device.base()) {
        sayGoodbye();
        helper_.client().unsubscribe(device_->base() + QStringLiteral("/+/set"));
        last_ = {};
        state_ = {};
        light_ = {};
    }
    device_ = std::move(device);
    introduce();
}

void HomeAssistantLink::introduce() {
    auto &client = helper_.client();
    if (!device_ || !client.isConnected()) {
        return;
    }
    client.subscribe(kBirthTopic);
    client.subscribe(device_->base() + QStringLiteral("/+/set"));
    client.publish(device_->configTopic(), discoveryConfig(*device_, helper_.answerTopic()), true);
    state_.forget();
    light_.forget();
    sendDue();
}

void HomeAssistantLink::setState(const HaState &state) {
    if (!device_) {
        return;
    }
    last_ = state;
    state_.offer(statePayload(*device_, state));
    light_.offer(state.light ? lightPayload(*state.light) : QByteArray());
    sendDue();
}

void HomeAssistantLink::sendDue() {
    auto &client = helper_.client();
    if (!device_ || !client.isConnected()) {
        return; // introduce() sends everything once there is a connection
    }
    const auto now = std::chrono::milliseconds(clock_.elapsed());
    auto next = StateThrottle::kRefresh;
    for (const auto &[throttle, topic] :
         {std::pair{&state_, device_->stateTopic()}, std::pair{&light_, device_->lightTopic()}}) {
        if (throttle->empty()) {
            continue;
        }
        if (throttle->wait(now).count() == 0) {
            client.publish(topic, throttle->take(now));
        }
        next = std::min(next, throttle->wait(now));
    }
    due_.start(next);
}

void HomeAssistantLink::sayGoodbye() {
    due_.stop();
    if (device_) {
        helper_.client().publish(device_->stateTopic(), statePayload(*device_, last_, false));
    }
}

void HomeAssistantLink::receive(const QString &topic, const QByteArray &payload) {
    if (!device_) {
        return;
    }
    if (topic == kBirthTopic && payload == "online") {
        introduce();
    } else if (topic == device_->fanModeCommand()) {
        if (const auto index = parseFanMode(*device_, payload)) {
            emit fanModeRequested(*index);
        }
    } else if (topic == device_->fanSpeedCommand() && device_->customSpeed) {
        if (const auto percent = parseFanSpeed(payload)) {
            emit fanSpeedRequested(*percent);
        }
    } else if (topic == device_->lightCommand()) {
        if (const auto command = parseLight(*device_, payload); command && !device_->ringEffects.isEmpty()) {
            emit lightRequested(*command);
        }
    }
}

} // namespace zpsg::remote
