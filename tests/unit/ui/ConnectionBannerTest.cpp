#include "ui/ConnectionBanner.h"

#include "psu/SupplyMonitor.h"
#include "UiFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <set>

namespace zpsg::ui::test {
namespace {

using psu::LinkState;

class ConnectionBannerTest : public UiTest {
protected:
    [[nodiscard]] QLabel *label(const char *name) const {
        return banner_.findChild<QLabel *>(QString::fromLatin1(name));
    }

    ConnectionBanner banner_;
};

TEST_F(ConnectionBannerTest, EveryStateIsToldInItsOwnWords) {
    std::set<QString> texts;
    for (const LinkState state :
         {LinkState::Live, LinkState::NoDevice, LinkState::NoPermission, LinkState::Silent}) {
        banner_.showState(state, QStringLiteral("MODEL-1000"));
        texts.insert(banner_.spokenText());
        EXPECT_EQ(banner_.accessibleName(), banner_.spokenText());
        EXPECT_EQ(banner_.spokenText().contains(QStringLiteral("MODEL-1000")), state == LinkState::Live);
    }
    EXPECT_EQ(texts.size(), 4U);
}

TEST_F(ConnectionBannerTest, DeniedAccessShowsTheRemedyToSelectAndToCopy) {
    const QString command = QStringLiteral("sudo install <rule> /etc/udev/rules.d && sudo udevadm trigger");
    banner_.setRemedy(command);
    banner_.showState(LinkState::NoDevice, {});
    EXPECT_FALSE(label("lblRemedy")->isVisibleTo(&banner_)) << "no remedy for what it does not cure";
    banner_.showState(LinkState::NoPermission, {});
    ASSERT_TRUE(label("lblRemedy")->isVisibleTo(&banner_));
    EXPECT_EQ(label("lblRemedy")->text(), command);
    EXPECT_EQ(label("lblRemedy")->textFormat(), Qt::PlainText) << "a command is no markup";
    EXPECT_TRUE(label("lblRemedy")->textInteractionFlags() & Qt::TextSelectableByMouse);

    QGuiApplication::clipboard()->clear();
    auto *copy = banner_.findChild<QPushButton *>();
    const QString before = copy->text();
    copy->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), command);
    EXPECT_NE(copy->text(), before) << "the click is confirmed";

    banner_.setRemedy({});
    EXPECT_FALSE(copy->isVisibleTo(&banner_));
}

TEST_F(ConnectionBannerTest, SimulatedValuesAreMarkedInEveryState) {
    for (const LinkState state : {LinkState::Live, LinkState::Silent, LinkState::NoDevice}) {
        banner_.setDemo(true);
        banner_.showState(state, {});
        EXPECT_TRUE(banner_.spokenText().contains(QStringLiteral("simulated")));
        banner_.setDemo(false);
        EXPECT_FALSE(banner_.spokenText().contains(QStringLiteral("simulated")));
    }
}

} // namespace
} // namespace zpsg::ui::test
