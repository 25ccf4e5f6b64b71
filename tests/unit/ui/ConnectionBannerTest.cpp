#include "ui/ConnectionBanner.h"

#include "psu/SupplyMonitor.h"
#include "ui/Style.h"
#include "UiFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>
#include <QVBoxLayout>

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

    [[nodiscard]] QPushButton *button(const char *name) const {
        return banner_.findChild<QPushButton *>(QString::fromLatin1(name));
    }

    ConnectionBanner banner_;
};

constexpr std::array kStates{LinkState::Live, LinkState::NoDevice, LinkState::NoPermission,
                             LinkState::Silent};

TEST_F(ConnectionBannerTest, EveryStateIsToldInItsOwnWords) {
    std::set<QString> texts;
    for (const LinkState state : kStates) {
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
    auto *copy = button("btnCopyRemedy");
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

TEST_F(ConnectionBannerTest, TheDemoIsOfferedWhileThereIsNoSupplyAndCanBeLeft) {
    int wanted = 0;
    int left = 0;
    QObject::connect(&banner_, &ConnectionBanner::demoRequested, [&wanted] { ++wanted; });
    QObject::connect(&banner_, &ConnectionBanner::demoEndRequested, [&left] { ++left; });
    for (const LinkState state : kStates) {
        banner_.showState(state, {});
        const bool none = state == LinkState::NoDevice || state == LinkState::NoPermission;
        EXPECT_EQ(button("btnDemo")->isVisibleTo(&banner_), none) << static_cast<int>(state);
        EXPECT_FALSE(button("btnLeaveDemo")->isVisibleTo(&banner_));
        banner_.setDemo(true);
        EXPECT_FALSE(button("btnDemo")->isVisibleTo(&banner_)) << "one is in it already";
        EXPECT_TRUE(button("btnLeaveDemo")->isVisibleTo(&banner_)) << static_cast<int>(state);
        banner_.setDemo(false);
    }
    button("btnDemo")->click();
    EXPECT_EQ(std::pair(wanted, left), std::pair(1, 0));
    button("btnLeaveDemo")->click();
    EXPECT_EQ(std::pair(wanted, left), std::pair(1, 1));
}

/// Makes every text longer by two fifths, as other languages do.
class Longer : public QTranslator {
public:
    Longer() { EXPECT_TRUE(english_.load(QStringLiteral(ZPSG_CATALOGUE))); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *id, const char *hint,
                                    int n) const override {
        QString text = english_.translate(context, id, hint, n);
        while (5 * text.size() < 7 * english_.translate(context, id, hint, n).size()) {
            text += text.size() % 7 == 0 ? QLatin1Char(' ') : QLatin1Char('e');
        }
        return text;
    }

private:
    QTranslator english_;
};

TEST_F(ConnectionBannerTest, NothingIsCutAndNothingBelowMovesWhenASupplyComesOrGoes) {
    Longer longer;
    for (const bool inEnglish : {true, false}) {
        if (!inEnglish) {
            QCoreApplication::installTranslator(&longer);
        }
        // What the banner has in a window of 960 and of 1366.
        for (const int width : {856, 1262}) {
            QWidget page;
            page.setStyleSheet(style::sheet());
            auto *layout = new QVBoxLayout(&page);
            layout->setContentsMargins(0, 0, 0, 0);
            auto *banner = new ConnectionBanner(&page);
            auto *below = new QWidget(&page);
            layout->addWidget(banner);
            layout->addWidget(below, 1);
            page.resize(width, 576);
            page.show();
            for (const bool demo : {false, true}) {
                banner->setDemo(demo);
                std::set<int> tops;
                for (const LinkState state : kStates) {
                    banner->showState(state, QStringLiteral("MODEL-1000-WITH-A-LONG-NAME"));
                    settle();
                    tops.insert(below->y());
                    for (const QWidget *child : banner->findChildren<QWidget *>()) {
                        const auto *text = qobject_cast<const QLabel *>(child);
                        const int needed = text != nullptr && text->wordWrap()
                                               ? text->heightForWidth(text->width())
                                               : child->sizeHint().height();
                        const int wide = text != nullptr && text->wordWrap() ? 0 : child->sizeHint().width();
                        EXPECT_TRUE(!child->isVisible() ||
                                    (child->width() >= wide && child->height() >= needed))
                            << child->metaObject()->className() << " in state " << static_cast<int>(state)
                            << ", width " << width << (inEnglish ? "" : ", long texts");
                    }
                }
                EXPECT_EQ(tops.size(), 1U) << "width " << width << (demo ? ", demo" : "");
                EXPECT_LE(*tops.begin(), 80);
            }
        }
    }
    QCoreApplication::removeTranslator(&longer);
}

} // namespace
} // namespace zpsg::ui::test
