#include "lighting/LightMessages.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

using namespace zpsg::lighting;
using ::testing::ElementsAre;

namespace {

QVariantMap data(const char *json) { return QJsonDocument::fromJson(json).toVariant().toMap(); }

TEST(LightMessagesTest, SwitchesAndSingleRing) {
    struct Case {
        const char *json;
        std::optional<bool> on;
    };
    for (const auto &[json, on] : {Case{R"({"LightOn":true})", true}, Case{R"({"LightOn":0})", false},
                                   Case{R"({"LightOn":"01"})", true}, Case{R"({"LightOn":"False"})", false},
                                   Case{R"({"LightOn":"perhaps"})", std::nullopt},
                                   Case{R"({"LightOn":[1]})", std::nullopt}, Case{"{}", std::nullopt}}) {
        EXPECT_EQ(lightOnIn(data(json)), on) << json;
    }
    EXPECT_EQ(singleModeIn(data(R"({"LightMode":"02"})")), 1);
    EXPECT_EQ(singleModeIn(data(R"({"LightMode":99})")), 3);
    EXPECT_FALSE(singleModeIn(data(R"({"LightMode":"fast"})")));
    EXPECT_EQ(singleColourIn(data(R"({"rColor":300,"gColor":"12","bColor":{}})"), {1, 2, 3}),
              (Colour{255, 12, 3}));
    EXPECT_EQ(brightnessIn(data(R"({"Brightness":-4})")), 0);
    EXPECT_FALSE(brightnessIn(data(R"({"Brightness":"1e999"})")));

    EXPECT_EQ(singleStateText({.colour = {7, 100, 255}, .brightness = 0.5, .lightMode = 2, .off = true}),
              "XX 01 03 07 100 255 50");
    EXPECT_EQ(singleStateText({.colour = {}, .brightness = 1.0}), "XX 00 01 00 00 00 100");
}

TEST(LightMessagesTest, ThePlusRingChangesWhatIsNamedAndNothingElse) {
    const PlusRingState before;
    auto expected = before;
    EXPECT_EQ(withSetup(before, {}), before);
    expected.lightMode = 5;
    expected.lightSpeed = 3;
    EXPECT_EQ(withSetup(before, data(R"({"LightMode":5,"Speed":"99"})")), expected);
    expected = before;
    expected.colourMode = 1;
    EXPECT_EQ(withSetup(before, data(R"({"ColorMode":1})")), expected);
    expected.colourMode = 0;
    expected.lightMode = kPlusThermal;
    EXPECT_EQ(withSetup(before, data(R"({"ColorMode":1,"LightMode":7})")), expected) << "not dark";

    expected = before;
    expected.red[3] = 9;
    expected.red[12] = 9;
    EXPECT_EQ(withColours(before, data(R"({"LED":[3,12,13,-1,"x"],"rColor":9})")), expected);
    expected = before;
    expected.brightness[0] = 0.4F;
    expected.panelBrightness = 40;
    EXPECT_EQ(withBrightness(before, data(R"({"LED":0,"Brightness":40})")), expected);
    EXPECT_THAT(withBrightness(before, data(R"({"Brightness":40})")).brightness, ::testing::Each(0.4F));
    EXPECT_EQ(withBrightness(before, data(R"({"LED":0})")), before);
}

TEST(LightMessagesTest, TheDuoSetChangesTheRingThatIsNamed) {
    const DuoState before;
    auto state = withSetup(before, data(R"({"LEDType":1,"LightMode":40,"SpeedMode":2})"));
    EXPECT_THAT(state.lightMode, ElementsAre(0, 20));
    EXPECT_THAT(state.speedMode, ElementsAre(0, 2));
    state = withSetup(before, data(R"({"ColorMode":1})"));
    EXPECT_THAT(state.colourMode, ElementsAre(1, 1));

    auto expected = before;
    expected.red[2] = expected.red[3] = 5; // both entries of front LED 1
    EXPECT_EQ(withColours(before, data(R"({"LEDType":0,"LED":1,"Color_R":5})")), expected);
    expected = before;
    expected.singleGreen[1] = 7;
    EXPECT_EQ(withColours(before, data(R"({"LEDType":1,"RGBType":1,"Color_G":7})")), expected);
    expected = before;
    expected.brightness[23] = 0.25;
    EXPECT_EQ(withBrightness(before, data(R"({"LEDType":1,"LED":[11],"Bright":25})")), expected);
    EXPECT_EQ(withBrightness(before, data(R"({"LEDType":1,"LED":[12],"Bright":25})")), before)
        << "no such LED";
}

TEST(LightMessagesTest, FramesAreWholeOrNone) {
    QVariantMap frame;
    QVariantList list;
    for (int i = 0; i < 18; ++i) {
        list << i * 20;
    }
    for (const char *key : {"Color_R", "Color_G", "Color_B"}) {
        EXPECT_FALSE(duoFrameIn(frame));
        frame.insert(QLatin1String(key), list);
    }
    frame.insert(QStringLiteral("Bright"), 50);
    const auto leds = duoFrameIn(frame);
    ASSERT_TRUE(leds);
    EXPECT_EQ(leds->at(1), (Colour{10, 10, 10}));
    EXPECT_EQ(leds->at(17), (Colour{127, 127, 127})) << "340 is put into the range first";
    list.removeLast();
    frame.insert(QStringLiteral("Color_B"), list);
    EXPECT_FALSE(duoFrameIn(frame));
    EXPECT_FALSE(plusFrameIn(frame)) << "another ring's names";
}

TEST(LightMessagesTest, StatesAreReadBack) {
    PlusRingState plus;
    plus.off = true;
    plus.brightness[12] = 0.3F;
    const auto told = QJsonDocument::fromJson(plusStateText(plus).toUtf8()).toVariant().toMap();
    EXPECT_EQ(told.value(QStringLiteral("command")).toInt(), 0);
    const auto fields = told.value(QStringLiteral("Data")).toMap();
    EXPECT_EQ(fields.value(QStringLiteral("LightOn")).toInt(), 0);
    EXPECT_EQ(fields.value(QStringLiteral("rColor")).toList().size(), 13);
    EXPECT_EQ(fields.value(QStringLiteral("Brightness")).toList().at(12).toInt(), 30);

    const auto duo = QJsonDocument::fromJson(duoStateText({}).toUtf8())
                         .toVariant()
                         .toMap()[QStringLiteral("Data")]
                         .toMap();
    for (const char *key : {"m_Color_R", "m_Color_G", "m_Color_B", "m_BrightValue"}) {
        EXPECT_EQ(duo.value(QLatin1String(key)).toList().size(), 24) << key;
    }
    for (const char *key : {"SingleColor_R", "SingleColor_G", "SingleColor_B", "SingleBrightValue",
                            "LightMode", "ColorMode", "SpeedMode"}) {
        EXPECT_EQ(duo.value(QLatin1String(key)).toList().size(), 2) << key;
    }
}

} // namespace
