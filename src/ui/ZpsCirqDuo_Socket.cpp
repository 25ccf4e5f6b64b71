// The Duo set's panel as other programs use it.
#include "lighting/LightMessages.h"
#include "ui/ZpsCirqDuo_Widget.h"

namespace zpsg::ui {

void ZpsCirqDuo_Widget::messageFromSocket() { emit DuoState(lighting::duoStateText(state_)); }

void ZpsCirqDuo_Widget::messageFromSocket_setupLight(const QVariantMap &message) {
    take(lighting::withSetup(state_, message));
}

void ZpsCirqDuo_Widget::messageFromSocket_setLightOn(const QVariantMap &message) {
    auto state = state_;
    state.on = lighting::lightOnIn(message).value_or(state.on);
    take(state);
}

void ZpsCirqDuo_Widget::messageFromSocket_setDefault(const QVariantMap & /*message*/) {
    emit defaultRequested();
}

void ZpsCirqDuo_Widget::messageFromSocket_setBtnAndColor(const QVariantMap &message) {
    take(lighting::withColours(state_, message));
}

void ZpsCirqDuo_Widget::messageFromSocket_setBtnAndBright(const QVariantMap &message) {
    take(lighting::withBrightness(state_, message));
}

void ZpsCirqDuo_Widget::messageFromSocket_ModelMusic(const QVariantMap &message) {
    if (const auto frame = lighting::duoFrameIn(message)) {
        emit frameStreamed(*frame);
    }
}

void ZpsCirqDuo_Widget::take(const lighting::DuoState &state) {
    showState(state);
    emit edited(state_);
}

} // namespace zpsg::ui
