#include "PlatformFixture.h"

#include "platform/linux/TitleLock.h"
#include "platform/linux/TitleMessage.h"
#include "platform/linux/TitlePaths.h"
#include "platform/linux/TitleReceiver.h"
#include "platform/linux/TitleSocket.h"
#include "platform/WindowRendezvous.h"

#include <cerrno>
#include <future>
#include <gmock/gmock.h>
#include <limits>
#include <poll.h>
#include <QElapsedTimer>
#include <QEventLoop>
#include <sys/socket.h>
#include <vector>

namespace zpsg::platform {
namespace {

using namespace std::chrono_literals;

constexpr WindowMessage kShow{kShowRequest, 0, 1};

class TitleDeliveryTest : public PlatformTest {
protected:
    std::unique_ptr<TitleClaim> claim() {
        auto claim = TitleClaim::tryTake("title");
        EXPECT_NE(claim, nullptr);
        return claim;
    }

    MessageHandler recorder(bool answer = true) {
        return [this, answer](const WindowMessage &message) {
            received_.push_back(message);
            return answer;
        };
    }

    /// Sends from another thread, as another process would, while this one's loop runs.
    Delivery send(const WindowMessage &message = kShow) {
        auto sending = std::async(std::launch::async, [&] { return sendToWindow("title", message, 20s); });
        EXPECT_TRUE(loopUntil([&] { return sending.wait_for(0s) == std::future_status::ready; }));
        return sending.get();
    }

    static std::string socketPath() { return titlePaths("title")->socket; }

    static FileDescriptor client(const std::string &bytes = {}) {
        FileDescriptor socket = connectTo(socketPath());
        EXPECT_TRUE(socket);
        ::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        return socket;
    }

    static std::string showBytes() {
        const auto bytes = encodeTitleMessage(kShow);
        return {bytes.begin(), bytes.end()};
    }

    std::vector<WindowMessage> received_;
};

TEST_F(TitleDeliveryTest, MessageAndAnswerArriveAsTheyWere) {
    const auto holder = claim();
    struct Case {
        WindowMessage message;
        bool answer;
        Delivery delivery;
    };
    const std::vector<Case> cases = {
        {{kShowRequest, 0, 1}, true, Delivery::Handled},
        {{kSyncOffByKeyBoard, 1, -1}, false, Delivery::NotHandled},
        {{std::numeric_limits<std::uint32_t>::max(), std::numeric_limits<std::uint64_t>::max(),
          std::numeric_limits<std::int64_t>::min()},
         true,
         Delivery::Handled},
    };
    for (const auto &[message, answer, delivery] : cases) {
        received_.clear();
        holder->deliverTo(recorder(answer));
        EXPECT_EQ(send(message), delivery);
        ASSERT_EQ(received_.size(), 1U);
        EXPECT_EQ(received_[0].number, message.number);
        EXPECT_EQ(received_[0].wParam, message.wParam);
        EXPECT_EQ(received_[0].lParam, message.lParam);
    }
}

TEST_F(TitleDeliveryTest, WhatArrivedBeforeTheHandlerWaitsForIt) {
    const auto holder = claim();
    std::vector<FileDescriptor> early(100);
    for (auto &socket : early) {
        socket = client(showBytes());
    }
    holder->deliverTo(recorder());
    EXPECT_TRUE(loopUntil([&] { return received_.size() == early.size(); })) << received_.size();
    for (const auto &socket : early) {
        std::uint8_t answer = 0;
        EXPECT_EQ(recv(socket.get(), &answer, 1, 0), 1);
        EXPECT_EQ(answer, kAnswerHandled);
    }
}

TEST_F(TitleDeliveryTest, PatienceEndsWhateverTheHolderDoes) {
    const auto outcome = [](Delivery expected) {
        QElapsedTimer elapsed;
        elapsed.start();
        EXPECT_EQ(sendToWindow("title", kShow, 60ms), expected);
        EXPECT_LT(elapsed.elapsed(), 5000);
        return elapsed.elapsed();
    };
    EXPECT_LT(outcome(Delivery::NoWindow), 60) << "nobody there is no reason to wait";
    {
        const FileDescriptor lock = takeTitleLock(titlePaths("title")->lock);
        ASSERT_TRUE(lock);
        EXPECT_GE(outcome(Delivery::NoAnswer), 60) << "holder has the title but no socket yet";
    }
    const auto holder = claim();
    EXPECT_GE(outcome(Delivery::NoAnswer), 60) << "holder never answers";
    std::vector<FileDescriptor> crowd;
    do {
        crowd.push_back(connectTo(socketPath()));
    } while (crowd.back());
    ASSERT_EQ(errno, EAGAIN);
    EXPECT_GE(outcome(Delivery::NoAnswer), 60) << "holder's queue is full";
    EXPECT_TRUE(windowExists("title"));
}

TEST_F(TitleDeliveryTest, AHolderThatIsStillStartingIsWaitedFor) {
    const FileDescriptor lock = takeTitleLock(titlePaths("title")->lock);
    ASSERT_TRUE(lock);
    auto sending = std::async(std::launch::async, [] { return sendToWindow("title", kShow, 20s); });
    EXPECT_EQ(sending.wait_for(30ms), std::future_status::timeout) << "gave up although the title is held";
    const FileDescriptor listener = listenAt(socketPath());
    const TitleReceiver receiver(listener.get(), recorder());
    EXPECT_TRUE(loopUntil([&] { return sending.wait_for(0s) == std::future_status::ready; }));
    EXPECT_EQ(sending.get(), Delivery::Handled);
}

TEST_F(TitleDeliveryTest, AProgramThatOnlyBindsTheSocketIsAWindowToo) {
    const FileDescriptor listener = listenAt(socketPath());
    ASSERT_TRUE(listener);
    EXPECT_TRUE(windowExists("title"));
    {
        // One that closes every connection unanswered.
        QElapsedTimer elapsed;
        elapsed.start();
        auto sending = std::async(std::launch::async, [] { return sendToWindow("title", kShow, 20s); });
        while (sending.wait_for(0s) != std::future_status::ready) {
            pollfd waiting{listener.get(), POLLIN, 0};
            poll(&waiting, 1, 10);
            const FileDescriptor closed(accept(listener.get(), nullptr, nullptr));
        }
        EXPECT_EQ(sending.get(), Delivery::NoAnswer);
        EXPECT_LT(elapsed.elapsed(), 10000) << "waited although the connection was closed";
    }
    const TitleReceiver receiver(listener.get(), recorder());
    EXPECT_EQ(send(), Delivery::Handled);
}

TEST_F(TitleDeliveryTest, BadClientsHoldUpNobody) {
    const auto holder = claim();
    holder->deliverTo(recorder());
    struct Case {
        const char *what;
        std::string bytes;
        bool stays;
    };
    const std::vector<Case> cases = {
        {"says nothing and leaves", "", false},
        {"leaves in the middle", showBytes().substr(0, 7), false},
        {"sends garbage", std::string(kTitleMessageSize, 'x'), true},
        {"sends without end", std::string(100000, 'x'), true},
        {"says nothing and stays", "", true},
        {"stops in the middle and stays", showBytes().substr(0, 23), true},
    };
    for (const auto &[what, bytes, stays] : cases) {
        // Enough of them to take every place, twice over.
        std::vector<FileDescriptor> bad(std::size_t{2} * TitleReceiver::kMostClients);
        for (auto &socket : bad) {
            socket = client(bytes);
            if (!stays) {
                socket = FileDescriptor();
            }
        }
        received_.clear();
        EXPECT_EQ(send(), Delivery::Handled) << what;
        EXPECT_EQ(received_.size(), 1U) << what;
        if (stays) {
            char byte = 0;
            EXPECT_TRUE(loopUntil([&] {
                return recv(bad.front().get(), &byte, 1, 0) == 0 || errno == ECONNRESET;
            })) << what
                << ": never dropped";
        }
    }
}

TEST_F(TitleDeliveryTest, ASenderThatLeftDoesNotEndTheHolder) {
    const auto holder = claim();
    { const FileDescriptor gone = client(showBytes()); }
    holder->deliverTo(recorder());
    EXPECT_EQ(send(), Delivery::Handled);
    EXPECT_EQ(received_.size(), 2U) << "what was sent still counts";
}

TEST_F(TitleDeliveryTest, TheHandlerMayRunALoopOfItsOwn) {
    const auto holder = claim();
    QEventLoop inner;
    int depth = 0;
    holder->deliverTo([&](const WindowMessage &) {
        if (++depth == 1) {
            inner.exec();
        } else {
            inner.quit();
        }
        return true;
    });
    auto first = std::async(std::launch::async, [] { return sendToWindow("title", kShow, 20s); });
    auto second = std::async(std::launch::async, [] { return sendToWindow("title", kShow, 20s); });
    EXPECT_TRUE(loopUntil([&] {
        return first.wait_for(0s) == std::future_status::ready &&
               second.wait_for(0s) == std::future_status::ready;
    }));
    EXPECT_EQ(first.get(), Delivery::Handled);
    EXPECT_EQ(second.get(), Delivery::Handled);
}

TEST_F(TitleDeliveryTest, TheHandlerMayEndTheClaim) {
    auto holder = claim();
    holder->deliverTo([&](const WindowMessage &) {
        holder.reset();
        return true;
    });
    EXPECT_THAT(send(), testing::AnyOf(Delivery::NoAnswer, Delivery::NoWindow)) << "nobody is left to answer";
    EXPECT_EQ(holder, nullptr);
    EXPECT_FALSE(windowExists("title"));
}

} // namespace
} // namespace zpsg::platform
