#include "app/Music.h"

namespace zpsg::app {

using platform::AudioState;

Music::Music(QObject *parent) : QObject(parent) {}

Music::~Music() = default;

void Music::listen(bool wanted) {
    if (wanted == listening()) {
        return;
    }
    capture_.reset();
    analyser_.reset();
    state_ = AudioState::Starting;
    if (wanted) {
        capture_ = platform::AudioCapture::start(
            {.samples = [this](std::span<const float> samples) { analyser_.feed(samples); },
             .state =
                 [this](AudioState state) {
                     QMetaObject::invokeMethod(this, "takeState", Qt::QueuedConnection,
                                               Q_ARG(int, static_cast<int>(state)));
                 }});
    }
    emit changed();
}

void Music::takeState(int state) {
    if (!listening()) {
        return; // told before listening ended
    }
    state_ = static_cast<AudioState>(state);
    if (state_ != AudioState::Running) {
        analyser_.reset();
    }
    emit changed();
}

} // namespace zpsg::app
