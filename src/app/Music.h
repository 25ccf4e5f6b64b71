// The music mode: listens to what the PC plays while an effect wants it, and costs nothing else.
#pragma once

#include "lighting/SoundAnalyser.h"
#include "platform/AudioCapture.h"

#include <QObject>

#include <memory>

namespace zpsg::app {

/// GUI thread only, but for sound().
class Music : public QObject {
    Q_OBJECT

public:
    explicit Music(QObject *parent = nullptr);
    ~Music() override;

    /// Starts or ends listening; nothing happens when that is so already.
    void listen(bool wanted);
    [[nodiscard]] bool listening() const { return capture_ != nullptr; }
    /// Of the capture; Starting while nobody listens.
    [[nodiscard]] platform::AudioState state() const { return state_; }
    /// What is heard now; silence without an output. Any thread.
    [[nodiscard]] lighting::Sound sound() const { return analyser_.sound(); }

signals:
    /// Listening began or ended, or the output came or went.
    void changed();

private:
    Q_INVOKABLE void takeState(int state);

    lighting::SoundAnalyser analyser_{platform::kAudioRate};
    platform::AudioState state_ = platform::AudioState::Starting;
    std::unique_ptr<platform::AudioCapture> capture_; // last: its thread ends before what it feeds
};

} // namespace zpsg::app
