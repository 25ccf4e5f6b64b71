#include "PlatformFixture.h"

#include "lighting/SoundAnalyser.h"
#include "platform/AudioFeed.h"
#include "platform/windows/MonoMix.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <gmock/gmock.h>
#include <mutex>
#include <numbers>
#include <numeric>
#include <optional>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <span>
#include <utility>
#include <vector>

namespace zpsg::platform {
namespace {

using lighting::Sound;
using testing::Each;
using testing::ElementsAre;
using testing::FloatNear;
using namespace std::chrono_literals;

float toneAt(double hertz, std::size_t sample, int rate = kAudioRate) {
    return static_cast<float>(0.5 *
                              std::sin(2 * std::numbers::pi * hertz * static_cast<double>(sample) / rate));
}

std::size_t loudestBand(const Sound &sound) {
    return static_cast<std::size_t>(std::max_element(sound.bands.begin(), sound.bands.end()) -
                                    sound.bands.begin());
}

/// A sound server of the test's own with outputs that nobody hears: "idle" (the default), "first" and
/// "second".
class SoundServer {
public:
    explicit SoundServer(const std::filesystem::path &folder)
        : socket_(QString::fromStdString((folder / "native").string())) {
        const QByteArray home = QByteArray::fromStdString(folder.string());
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
            qputenv(name, home);
        }
        qputenv("PULSE_SERVER", "unix:" + socket_.toUtf8());
        qunsetenv("DISPLAY");
    }
    ~SoundServer() { kill(); }
    SoundServer(const SoundServer &) = delete;
    SoundServer &operator=(const SoundServer &) = delete;

    static bool installed() {
        return !QStandardPaths::findExecutable(QStringLiteral("pulseaudio")).isEmpty() &&
               !QStandardPaths::findExecutable(QStringLiteral("pacat")).isEmpty();
    }
    void start(bool outputs = true) {
        QStringList arguments{QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                              QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
                              QStringLiteral("--disable-shm=yes")};
        const auto load = [&](const QString &module) { arguments << QStringLiteral("-L") << module; };
        if (outputs) {
            load(QStringLiteral("module-null-sink sink_name=idle"));
            load(QStringLiteral("module-null-sink sink_name=first"));
            load(QStringLiteral("module-null-sink sink_name=second"));
        }
        load(QStringLiteral("module-suspend-on-idle timeout=1"));
        load(QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket_);
        process_.start(QStringLiteral("pulseaudio"), arguments);
        ASSERT_TRUE(
            QTest::qWaitFor([] { return control(QStringLiteral("info")).has_value(); }, kTestPatience));
    }
    void kill() {
        process_.kill();
        process_.waitForFinished(kTestPatience);
    }
    /// What pactl prints; none when it fails.
    static std::optional<QByteArray> control(const QString &command) {
        QProcess pactl;
        pactl.start(QStringLiteral("pactl"), command.split(QLatin1Char(' ')));
        const bool done = pactl.waitForFinished(kTestPatience) &&
                          pactl.exitStatus() == QProcess::NormalExit && pactl.exitCode() == 0;
        return done ? std::optional(pactl.readAllStandardOutput()) : std::nullopt;
    }
    static void makeDefault(const char *output) {
        ASSERT_TRUE(control(QStringLiteral("set-default-sink ") + QLatin1String(output)));
    }

private:
    QString socket_;
    QProcess process_;
};

/// Plays a tone into an output for as long as it lives.
class Player {
public:
    Player(const char *output, double hertz) {
        process_.start(QStringLiteral("pacat"),
                       {QStringLiteral("--playback"), QStringLiteral("--raw"),
                        QStringLiteral("--format=float32le"), QStringLiteral("--rate=48000"),
                        QStringLiteral("--channels=1"), QStringLiteral("--latency-msec=50"),
                        QStringLiteral("--device=") + QLatin1String(output)});
        std::vector<float> samples(std::size_t{60} * kAudioRate); // longer than any test
        for (std::size_t i = 0; i < samples.size(); ++i) {
            samples[i] = toneAt(hertz, i);
        }
        const auto bytes = std::as_bytes(std::span(samples));
        process_.write(reinterpret_cast<const char *>(bytes.data()), static_cast<qint64>(bytes.size()));
    }
    ~Player() {
        process_.kill();
        process_.waitForFinished(kTestPatience);
    }
    Player(const Player &) = delete;
    Player &operator=(const Player &) = delete;

private:
    QProcess process_;
};

class AudioCaptureTest : public PlatformTest {
protected:
    void SetUp() override {
        if (!SoundServer::installed()) {
            GTEST_SKIP() << "pulseaudio is not installed";
        }
    }
    void startCapture() {
        capture_ = AudioCapture::start({[this](std::span<const float> samples) {
                                            analyser_.feed(samples);
                                            received_ += samples.size();
                                        },
                                        [this](AudioState state) {
                                            const std::scoped_lock lock(mutex_);
                                            states_.push_back(state);
                                        }});
    }
    std::vector<AudioState> states() {
        const std::scoped_lock lock(mutex_);
        return states_;
    }
    bool waitFor(std::size_t states) {
        return loopUntil([&] { return this->states().size() >= states; });
    }
    bool hears(std::size_t band) {
        return loopUntil([&] {
            const Sound sound = analyser_.sound();
            return sound.level > 0.9F && loudestBand(sound) == band;
        });
    }
    bool hearsNothing() {
        return loopUntil([&] { return analyser_.sound().level == 0; });
    }

    SoundServer server_{folder()};
    lighting::SoundAnalyser analyser_{kAudioRate};
    std::atomic<std::size_t> received_{0};
    std::mutex mutex_;
    std::vector<AudioState> states_;
    std::unique_ptr<AudioCapture> capture_;
};

TEST_F(AudioCaptureTest, HearsWhatTheDefaultOutputPlaysAndFollowsIt) {
    server_.start();
    startCapture();
    ASSERT_TRUE(waitFor(1));
    {
        const Player low("first", 100);
        const Player high("second", 2500);
        ASSERT_TRUE(loopUntil(
            [] { return SoundServer::control(QStringLiteral("list short sink-inputs"))->count('\n') == 2; }));
        SoundServer::makeDefault("first");
        EXPECT_TRUE(hears(1)) << "100 Hz are between 79 and 125";
        // The server moves the low tone along with the default.
        SoundServer::makeDefault("second");
        EXPECT_TRUE(hears(8)) << "2500 Hz are between 1932 and 3050";

        // The output is unplugged, and what plays goes on elsewhere.
        ASSERT_TRUE(SoundServer::control(QStringLiteral("unload-module 2")));
        analyser_.reset();
        EXPECT_TRUE(hears(8));
    }
    EXPECT_TRUE(hearsNothing());
    EXPECT_THAT(states(), Each(AudioState::Running));
}

TEST_F(AudioCaptureTest, NothingArrivesWhileNothingPlays) {
    server_.start();
    startCapture();
    ASSERT_TRUE(waitFor(1));
    for (int round = 0; round < 2; ++round) {
        {
            const Player player("first", 440);
            SoundServer::makeDefault("first");
            ASSERT_TRUE(hears(4));
        }
        ASSERT_TRUE(hearsNothing());
        // The output goes to sleep a second after its last use.
        std::size_t before = 0;
        ASSERT_TRUE(loopUntil([&] {
            const bool still = received_ == std::exchange(before, received_);
            return still || (QTest::qWait(300), false);
        }));
    }
    EXPECT_THAT(states(), ElementsAre(AudioState::Running));
}

TEST_F(AudioCaptureTest, TheServerAndItsOutputsMayComeLateAndGo) {
    startCapture();
    ASSERT_TRUE(waitFor(1));
    EXPECT_THAT(states(), ElementsAre(AudioState::NoDevice));
    server_.start();
    ASSERT_TRUE(waitFor(2));
    server_.kill();
    ASSERT_TRUE(waitFor(3));
    server_.start(false);
    ASSERT_TRUE(SoundServer::control(QStringLiteral("load-module module-null-sink")));
    ASSERT_TRUE(waitFor(4));
    EXPECT_THAT(states(), ElementsAre(AudioState::NoDevice, AudioState::Running, AudioState::NoDevice,
                                      AudioState::Running));
}

TEST_F(AudioCaptureTest, EndsAtOnceWithOrWithoutAServer) {
    QElapsedTimer timer;
    const auto endsAtOnce = [&] {
        timer.start();
        capture_.reset();
        const std::size_t heard = received_;
        const std::size_t told = states().size();
        EXPECT_LT(timer.elapsed(), 1000);
        startCapture();
        capture_.reset();
        EXPECT_LT(timer.elapsed(), 2000);
        QTest::qWait(50);
        EXPECT_EQ(received_, heard) << "a callback came after the end";
        EXPECT_LE(states().size(), told + 1);
    };
    startCapture();
    ASSERT_TRUE(waitFor(1));
    endsAtOnce();
    server_.start();
    const Player player("first", 440);
    SoundServer::makeDefault("first");
    startCapture();
    ASSERT_TRUE(hears(4));
    endsAtOnce();
}

TEST(AudioFeedTest, ASecondOfSilenceFollowsWhatWasHeardLast) {
    std::vector<std::size_t> sizes;
    std::vector<AudioState> told;
    AudioFeed feed({[&](std::span<const float> samples) { sizes.push_back(samples.size()); },
                    [&](AudioState state) { told.push_back(state); }});
    AudioFeed::Clock::time_point now{};
    feed.quiet(now);
    EXPECT_FALSE(feed.fading());
    feed.heard(std::vector<float>(10), now);
    feed.quiet(now + 199ms);
    EXPECT_THAT(sizes, ElementsAre(10)) << "music may be late";
    std::size_t silence = 0;
    while (feed.fading()) {
        now = feed.due();
        feed.quiet(now);
        silence += sizes.back();
    }
    EXPECT_EQ(silence, kAudioRate);
    EXPECT_EQ(now, AudioFeed::Clock::time_point{} + 1150ms);

    for (const auto state :
         {AudioState::Starting, AudioState::Running, AudioState::Running, AudioState::NoDevice}) {
        feed.tell(state);
    }
    EXPECT_THAT(told, ElementsAre(AudioState::Running, AudioState::NoDevice));

    sizes.clear();
    feed.heard(std::vector<float>(10), now);
    feed.tell(AudioState::NoDevice);
    EXPECT_EQ(std::accumulate(sizes.begin(), sizes.end(), std::size_t{0}), 10 + kAudioRate) << "at once";
}

TEST(MonoMixTest, MixesAndResamplesHoweverItIsCutUp) {
    MonoMix stereo(SampleType::Int16, 2, kAudioRate, kAudioRate);
    const std::array<std::int16_t, 6> frames{16384, 0, -32768, -32768, 100, -100};
    const auto mixed = stereo.convert(frames.data(), 3);
    EXPECT_THAT(std::vector(mixed.begin(), mixed.end()), ElementsAre(0.0F, 0.25F, -1.0F));
    const auto silent = stereo.convert(nullptr, 2);
    EXPECT_THAT(std::vector(silent.begin(), silent.end()), Each(0.0F));

    for (const int rate : {44100, kAudioRate, 96000, 192000}) {
        std::vector<float> samples(static_cast<std::size_t>(rate));
        for (std::size_t i = 0; i < samples.size(); ++i) {
            samples[i] = toneAt(500, i, rate);
        }
        MonoMix mix(SampleType::Float, 1, rate, kAudioRate);
        std::vector<float> result;
        for (std::size_t at = 0; at < samples.size();) {
            const std::size_t count = std::min(samples.size() - at, 1 + at % 977);
            const auto part = mix.convert(&samples[at], count);
            result.insert(result.end(), part.begin(), part.end());
            at += count;
        }
        EXPECT_NEAR(static_cast<double>(result.size()), kAudioRate, 1) << rate;
        const double delay = static_cast<double>(kAudioRate) / rate; // by one sample of the source
        float worst = 0;
        for (std::size_t i = 2; i < result.size(); ++i) {
            const auto ideal = static_cast<float>(
                0.5 * std::sin(2 * std::numbers::pi * 500 * (static_cast<double>(i) - delay) / kAudioRate));
            worst = std::max(worst, std::abs(result[i] - ideal));
        }
        EXPECT_LT(worst, 0.001F) << rate;
    }
}

} // namespace
} // namespace zpsg::platform
