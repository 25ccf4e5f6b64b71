#include "psu/HidLink.h"
#include "simulator/SimulatedBus.h"

#include <gmock/gmock.h>

#include <future>
#include <thread>

using namespace zpsg;
using namespace std::chrono_literals;
using psu::ExchangeJob;
using psu::makeRequest;

namespace {

constexpr auto kLong = 30s; // for what must happen; a machine may be busy
constexpr auto kShort = 20ms;

class HidLinkTest : public ::testing::Test {
protected:
    void SetUp() override { bus->plug(simulator::SupplyModel()); }

    std::shared_ptr<simulator::SimulatedBus> bus = simulator::SimulatedBus::create();
    psu::PortTiming timing{200ms, 10ms, 5ms};
};

bool connect(psu::HidLink &link) {
    const auto job = std::make_shared<psu::ConnectJob>(psu::OpenOrder::InitialiseFirst);
    link.submit(job);
    return link.wait(job, kLong) && job->result().path != psu::Path::None;
}

TEST_F(HidLinkTest, KeepsEachCallersExchangesWholeAndInOrder) {
    psu::HidLink link(bus->backend(), {kLong, 10ms, 5ms});
    ASSERT_TRUE(connect(link));
    const auto hammer = [&link](std::uint8_t low) {
        for (int round = 0; round < 150; ++round) {
            std::vector<psu::Request> questions;
            for (std::uint8_t i = 0; i < 4; ++i) {
                questions.push_back(makeRequest({0x31, static_cast<std::uint8_t>(low + i)}));
            }
            const auto job = std::make_shared<ExchangeJob>(questions);
            link.submit(job);
            ASSERT_TRUE(link.wait(job, kLong));
            ASSERT_EQ(job->replies().size(), questions.size());
            for (std::size_t i = 0; i < questions.size(); ++i) {
                ASSERT_TRUE(psu::answers(job->replies()[i], questions[i]));
            }
        }
    };
    std::thread other(hammer, 0x37);
    hammer(0x33);
    other.join();
}

TEST_F(HidLinkTest, LetsOthersInBetweenTheQuestionsOfAPass) {
    psu::HidLink link(bus->backend(), timing);
    ASSERT_TRUE(connect(link));
    bus->blockWrites(true);
    const auto pass = std::make_shared<ExchangeJob>(
        std::vector{makeRequest({0x31, 0x34}), makeRequest({0x31, 0x35}), makeRequest({0x31, 0x36})});
    const auto frame = std::make_shared<ExchangeJob>(std::vector{makeRequest({0x30, 0x42})});
    link.submit(pass);
    link.submit(frame);
    bus->withModel([](simulator::SupplyModel &model) { model.clearLog(); });
    bus->blockWrites(false);
    ASSERT_TRUE(link.wait(pass, kLong));
    bus->withModel([](simulator::SupplyModel &model) {
        ASSERT_EQ(model.log().size(), 4U);
        EXPECT_EQ(model.log()[1][1], 0x42); // after the first question, not after the last
    });
}

TEST_F(HidLinkTest, DoesNotHoldTheCallerWhenTheDeviceBlocks) {
    psu::HidLink link(bus->backend(), timing);
    ASSERT_TRUE(connect(link));
    std::promise<void> late;
    link.onLateFinish([&late] { late.set_value(); });
    bus->blockWrites(true);
    const auto job = std::make_shared<ExchangeJob>(std::vector{makeRequest({0x31, 0x34})});
    link.submit(job);
    EXPECT_FALSE(link.wait(job, kShort));
    bus->blockWrites(false);
    ASSERT_EQ(late.get_future().wait_for(kLong), std::future_status::ready);
    EXPECT_TRUE(link.finished(*job));
    EXPECT_EQ(job->replies().size(), 1U);
}

TEST_F(HidLinkTest, EndsAlthoughADeviceCallNeverReturns) {
    auto link = std::make_unique<psu::HidLink>(bus->backend(), timing);
    ASSERT_TRUE(connect(*link));
    bus->blockWrites(true);
    const auto job = std::make_shared<ExchangeJob>(std::vector{makeRequest({0x31, 0x34})});
    link->submit(job);
    EXPECT_FALSE(link->wait(job, kShort));
    link.reset();
    EXPECT_EQ(bus->openDevices(), 1); // never closed while a call is in it
    bus->blockWrites(false);
    while (bus->openDevices() != 0) {
        std::this_thread::yield();
    }
}

TEST_F(HidLinkTest, AnUnplugEndsAReadThatWaits) {
    psu::HidLink link(bus->backend(), {kLong, 10ms, 5ms});
    ASSERT_TRUE(connect(link));
    bus->withModel([](simulator::SupplyModel &model) { model.setFault(simulator::Fault::Silent); });
    const auto job = std::make_shared<ExchangeJob>(std::vector{makeRequest({0x31, 0x34})});
    link.submit(job);
    bus->unplug();
    ASSERT_TRUE(link.wait(job, kLong));
    EXPECT_TRUE(job->lost());
    EXPECT_EQ(bus->openDevices(), 0);
}

} // namespace
