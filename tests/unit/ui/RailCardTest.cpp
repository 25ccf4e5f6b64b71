#include "ui/RailCard.h"

#include "UiFixture.h"

#include <array>

namespace zpsg::ui::test {
namespace {

class RailCardTest : public UiTest {};

TEST_F(RailCardTest, JudgesTheWindowWithItsBoundsAsOut) {
    struct Case {
        double volts, nominal;
        RailState state;
    };
    const std::array cases{
        Case{12.0, 12.0, RailState::InRange}, Case{12.53, 12.0, RailState::InRange},
        Case{12.55, 12.0, RailState::Near},   Case{12.71, 12.0, RailState::Near},
        Case{12.72, 12.0, RailState::Out},    Case{11.28, 12.0, RailState::Out},
        Case{11.29, 12.0, RailState::Near},   Case{5.3, 5.0, RailState::Out},
        Case{4.7, 5.0, RailState::Out},       Case{4.71, 5.0, RailState::Near},
        Case{3.498, 3.3, RailState::Out},     Case{3.102, 3.3, RailState::Out},
        Case{0.0, 3.3, RailState::Out},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(judgeRail(c.volts, c.nominal), c.state) << c.volts << " of " << c.nominal;
        // The same reading as it comes out of a single-precision record.
        EXPECT_EQ(judgeRail(static_cast<double>(static_cast<float>(c.volts)), c.nominal), c.state) << c.volts;
    }
}

TEST_F(RailCardTest, SaysTheStateInWords) {
    RailCard card(QStringLiteral("+12 V"), 12.0);
    card.showReading(12.18, 10.0);
    EXPECT_EQ(card.readoutText(), QStringLiteral("12.18 V, 10.00 A, 121.8 W, +1.5\u00A0%"));
    card.showReading(11.8, 0.0);
    EXPECT_EQ(card.markText(), QStringLiteral("\u22121.7\u00A0%"));
    card.showReading(11.4, 0.0);
    EXPECT_TRUE(card.markText().contains(QStringLiteral("Near limit")));
    card.showReading(13.0, 0.0);
    EXPECT_TRUE(card.markText().contains(QStringLiteral("Out of range")));
    card.clear();
    EXPECT_EQ(card.markText(), QString()) << "no verdict without a reading";
    EXPECT_EQ(card.wattsText(), QString(QChar(0x2013)));
}

TEST_F(RailCardTest, RepaintsOnlyForWhatCanBeSeen) {
    RailCard card(QStringLiteral("+5 V"), 5.0);
    card.resize(212, 168);
    card.show();
    card.showReading(5.021, 3.0);
    settle();
    const PaintCounter counter(&card);
    card.showReading(5.0211, 3.0);
    settle();
    EXPECT_EQ(counter.paints, 0);
    card.showReading(5.021, 3.2);
    settle();
    EXPECT_GT(counter.paints, 0);
}

} // namespace
} // namespace zpsg::ui::test
