#include "ui/SettingsPage.h"

#include "ui/SegmentedControl.h"
#include "ui/Selector.h"
#include "ui/SettingRow.h"
#include "ui/SettingsEntry.h"
#include "ui/Style.h"
#include "ui/ToggleSwitch.h"
#include "UiFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>

#include <algorithm>
#include <array>

namespace zpsg::ui::test {
namespace {

using Field = SettingField;
using Section = SettingsPage::Section;
using Told = QList<std::pair<Field, QVariant>>;

constexpr std::array kSections{Section::General, Section::Energy,  Section::Alarms, Section::Remote,
                               Section::Sensors, Section::Updates, Section::Data};

/// Every text longer by so much of itself, as another language's may be.
class Longer : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *id, const char *comment, int count) const override {
        const QString text = QTranslator::translate(context, id, comment, count);
        const int more = qRound(text.size() * 0.4);
        return text + QStringLiteral(" wordy addition").repeated(1 + more / 15).left(more);
    }
};

class SettingsPageTest : public UiTest {
protected:
    SettingsPageTest() {
        page_.setStyleSheet(style::sheet());
        page_.resize(886, 575);
        page_.show();
        QApplication::setActiveWindow(&page_);
        settle();
        QObject::connect(&page_, &SettingsPage::changed, &page_, [this](Field field, const QVariant &value) {
            told_.append({field, value});
        });
    }

    /// The control that assistive programs know by this name, in the section that is shown.
    template <typename Control>
    [[nodiscard]] Control *find(const char *name) const {
        for (Control *control : page_.findChildren<Control *>()) {
            if (control->isVisible() && control->accessibleName() == QString::fromUtf8(name)) {
                return control;
            }
        }
        ADD_FAILURE() << name;
        return nullptr;
    }
    [[nodiscard]] QPushButton *button(const char *objectName) const {
        return page_.findChild<QPushButton *>(QString::fromLatin1(objectName));
    }
    [[nodiscard]] SettingsEntry *entry(const char *name) const { return find<SettingsEntry>(name); }

    /// As a user would: the old text goes, the new one is typed.
    void type(const char *name, const QString &text) const {
        SettingsEntry *line = entry(name);
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    void showMqtt() {
        page_.showSection(Section::Remote);
        page_.setValue(Field::MqttHost, QStringLiteral("broker"));
        page_.setValue(Field::MqttPort, 1883);
        page_.setValue(Field::MqttPublishPrefix, QStringLiteral("zpsg"));
        page_.setValue(Field::MqttSubscribePrefix, QStringLiteral("zpsg"));
        page_.setValue(Field::MqttPassword, QStringLiteral(" a b "));
        settle();
    }
    /// Whether these words can be read on the page now.
    [[nodiscard]] bool reads(const char *words) const {
        const auto labels = page_.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [words](const QLabel *label) {
            return label->isVisible() && label->text().contains(QString::fromUtf8(words));
        });
    }

    SettingsPage page_;
    Told told_;
};

TEST_F(SettingsPageTest, SwitchesTellOfTheUserOnly) {
    struct Case {
        Section section;
        Field field;
        const char *name;
    };
    page_.setValue(Field::Autostart, true);
    page_.setValue(Field::MqttHost, QStringLiteral("broker"));
    page_.setValue(Field::UpdateAddress, QStringLiteral("https://a"));
    for (const Case &c : {Case{Section::General, Field::Autostart, "Start with the system"},
                          Case{Section::General, Field::StartHidden, "Start hidden in the tray"},
                          Case{Section::Alarms, Field::VoltWarning, "Voltage warning"},
                          Case{Section::Alarms, Field::FanWarning, "Fan warning"},
                          Case{Section::Alarms, Field::TempWarning, "Temperature warning"},
                          Case{Section::Remote, Field::SocketAllowRemote, "Allow other computers"},
                          Case{Section::Remote, Field::MqttDiscovery, "Home Assistant discovery"},
                          Case{Section::Remote, Field::RemotePower, "Remote shutdown"},
                          Case{Section::Sensors, Field::Sensors, "Read the PC’s own sensors"},
                          Case{Section::Updates, Field::UpdateEnabled, "Tell me about new versions"}}) {
        page_.showSection(c.section);
        settle();
        auto *toggle = find<ToggleSwitch>(c.name);
        ASSERT_NE(toggle, nullptr);
        EXPECT_FALSE(toggle->accessibleDescription().isEmpty()) << c.name;
        told_.clear();
        page_.setValue(c.field, false);
        page_.setValue(c.field, true);
        EXPECT_TRUE(toggle->isChecked()) << c.name;
        EXPECT_TRUE(told_.isEmpty()) << c.name;
        QTest::mouseClick(toggle, Qt::LeftButton);
        QTest::keyClick(toggle, Qt::Key_Space);
        EXPECT_EQ(told_, (Told{{c.field, false}, {c.field, true}})) << c.name;
    }
}

TEST_F(SettingsPageTest, ChoicesTellOfTheUserOnly) {
    struct Case {
        Field field;
        const char *name;
        int choices;
    };
    for (const Case &c :
         {Case{Field::TemperatureUnit, "Temperature unit", 2}, Case{Field::TextSize, "Text size", 2},
          Case{Field::TrayFigure, "On the tray icon", 3}}) {
        auto *control = find<SegmentedControl>(c.name);
        const auto segments = control->findChildren<QRadioButton *>();
        ASSERT_EQ(segments.size(), c.choices);
        EXPECT_TRUE(segments.front()->accessibleName().startsWith(QString::fromLatin1(c.name)));
        told_.clear();
        page_.setValue(c.field, 1);
        EXPECT_EQ(control->current(), 1);
        EXPECT_TRUE(told_.isEmpty());
        segments.at(1)->setFocus();
        QTest::keyClick(segments.at(1), Qt::Key_Left);
        QTest::mouseClick(segments.back(), Qt::LeftButton);
        EXPECT_EQ(told_, (Told{{c.field, 0}, {c.field, c.choices - 1}})) << c.name;
    }
    auto *list = find<Selector>("Language");
    const std::array codes{"", "en", "tc", "sc", "fr", "de", "jp", "ru", "sh"};
    ASSERT_EQ(list->count(), static_cast<int>(codes.size()));
    told_.clear();
    for (std::size_t i = 0; i < codes.size(); ++i) {
        page_.setValue(Field::Language, QString::fromLatin1(codes.at(i)));
        EXPECT_EQ(list->currentIndex(), static_cast<int>(i)) << codes.at(i);
    }
    page_.setValue(Field::Language, QStringLiteral("unheard of"));
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_TRUE(told_.isEmpty());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_EQ(told_,
              (Told{{Field::Language, QStringLiteral("en")}, {Field::Language, QStringLiteral("sh")}}));
}

TEST_F(SettingsPageTest, WhatTheProgramRefusesGoesBack) {
    QObject::connect(&page_, &SettingsPage::changed, &page_,
                     [this](Field field) { page_.setValue(field, field == Field::Autostart ? 0 : 1); });
    auto *autostart = find<ToggleSwitch>("Start with the system");
    auto *unit = find<SegmentedControl>("Temperature unit");
    page_.setValue(Field::TemperatureUnit, 1);
    QTest::mouseClick(autostart, Qt::LeftButton);
    QTest::mouseClick(unit->findChildren<QRadioButton *>().front(), Qt::LeftButton);
    EXPECT_FALSE(autostart->isChecked());
    EXPECT_FALSE(find<ToggleSwitch>("Start hidden in the tray")->isEnabled());
    EXPECT_EQ(unit->current(), 1);
    EXPECT_EQ(told_.size(), 2);
}

TEST_F(SettingsPageTest, RowsThatDependOnAnotherSaySo) {
    auto *hidden = find<ToggleSwitch>("Start hidden in the tray");
    for (const bool on : {false, true, false}) {
        page_.setValue(Field::Autostart, on);
        EXPECT_EQ(hidden->isEnabled(), on);
        EXPECT_EQ(reads("Needs “Start with the system” to be on."), !on);
        EXPECT_EQ(hidden->accessibleDescription().contains(QStringLiteral("Needs")), !on);
    }
    page_.showSection(Section::Remote);
    for (const char *host : {"", "broker", ""}) {
        const bool given = *host != '\0';
        page_.setValue(Field::MqttHost, QString::fromLatin1(host));
        settle();
        EXPECT_EQ(entry("Publish prefix")->isEnabled(), given);
        EXPECT_EQ(find<ToggleSwitch>("Home Assistant discovery")->isEnabled(), given);
        EXPECT_EQ(reads("Enter a host"), !given);
    }
    type("Host", QStringLiteral("b"));
    EXPECT_TRUE(entry("Publish prefix")->isEnabled()) << "while it is only typed as well";
}

TEST_F(SettingsPageTest, TheMqttFormIsAppliedAsAWhole) {
    showMqtt();
    const QSignalSpy applied(&page_, &SettingsPage::mqttApplied);
    // The program answers each change with all that it knows: what is still to be told must survive.
    QObject::connect(&page_, &SettingsPage::changed, &page_, [this] {
        page_.setValue(Field::MqttPort, 1883);
        page_.setValue(Field::MqttUser, QString());
    });
    EXPECT_FALSE(button("btnMqttApply")->isEnabled());
    type("Host", QStringLiteral("  other.example "));
    type("Port", QStringLiteral("8883"));
    type("User", QStringLiteral("me"));
    EXPECT_TRUE(told_.isEmpty());
    EXPECT_TRUE(reads("Not applied yet"));
    page_.setValue(Field::MqttUser, QString());
    EXPECT_EQ(entry("User")->text(), QStringLiteral("me")) << "nothing new";
    button("btnMqttApply")->click();
    EXPECT_EQ(told_, (Told{{Field::MqttHost, QStringLiteral("other.example")},
                           {Field::MqttPort, 8883},
                           {Field::MqttUser, QStringLiteral("me")}}));
    EXPECT_EQ(applied.count(), 1);

    told_.clear();
    QObject::disconnect(&page_, &SettingsPage::changed, &page_, nullptr);
    for (const bool byKey : {true, false}) {
        type("Host", QStringLiteral("third"));
        type("Account ID", QStringLiteral("x"));
        if (byKey) {
            QTest::keyClick(entry("Account ID"), Qt::Key_Escape);
        } else {
            button("btnMqttDiscard")->click();
        }
        EXPECT_EQ(entry("Host")->text(), QStringLiteral("other.example"));
        EXPECT_TRUE(entry("Account ID")->text().isEmpty());
        EXPECT_FALSE(reads("Not applied yet"));
    }
    type("Host", QStringLiteral("third"));
    page_.setValue(Field::MqttHost, QStringLiteral("imported"));
    EXPECT_EQ(entry("Host")->text(), QStringLiteral("imported")) << "something new";
    EXPECT_FALSE(button("btnMqttApply")->isEnabled());
    EXPECT_TRUE(told_.isEmpty());
    EXPECT_EQ(applied.count(), 1);
}

TEST_F(SettingsPageTest, FaultyEntriesAreNotApplied) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    struct Case {
        const char *name;
        QString text;
        const char *fault; ///< none: it is good
    };
    const std::array cases{
        Case{"Host", QStringLiteral("192.168.1.5"), nullptr},
        Case{"Host", QStringLiteral("fe80::1"), nullptr},
        Case{"Host", QStringLiteral("mqtt://broker"), "Only the name"},
        Case{"Host", QStringLiteral("broker:1883"), "Only the name"},
        Case{"Host", QStringLiteral("a b"), "Only the name"},
        Case{"Port", QStringLiteral("1"), nullptr},
        Case{"Port", QStringLiteral("65535"), nullptr},
        Case{"Port", QStringLiteral("65536"), "1 to 65535"},
        Case{"Port", QStringLiteral("0"), "1 to 65535"},
        Case{"Port", QStringLiteral("-5"), "1 to 65535"},
        Case{"Port", QString(), "1 to 65535"},
        Case{"Publish prefix", QStringLiteral("home/zpsg"), nullptr},
        Case{"Publish prefix", QStringLiteral("home/#"), "Blanks"},
        Case{"Publish prefix", QStringLiteral("a b"), "Blanks"},
        Case{"Subscribe prefix", QStringLiteral("home/+/x"), "Blanks"},
        Case{"Subscribe prefix", QStringLiteral("/home"), "begin with /"},
        Case{"Subscribe prefix", QString(), "must not be empty"},
        Case{"Product ID", QStringLiteral("a#"), "# and +"},
        Case{"Product ID", QStringLiteral("a b"), nullptr},
        Case{"CA file", file.fileName(), nullptr},
        Case{"CA file", file.fileName() + QLatin1Char('x'), "no such file"},
        Case{"CA file", QFileInfo(file.fileName()).absolutePath(), "no such file"},
    };
    const QSignalSpy applied(&page_, &SettingsPage::mqttApplied);
    for (const Case &c : cases) {
        showMqtt();
        const int before = applied.count();
        type(c.name, c.text);
        EXPECT_TRUE(c.fault == nullptr || !reads(c.fault)) << c.name << ": not while it is typed";
        QTest::keyClick(entry(c.name), Qt::Key_Return);
        EXPECT_EQ(applied.count() - before, c.fault == nullptr ? 1 : 0) << c.name << qPrintable(c.text);
        if (c.fault != nullptr) {
            EXPECT_TRUE(reads(c.fault)) << c.name << qPrintable(c.text);
            EXPECT_TRUE(entry(c.name)->hasFocus());
            EXPECT_TRUE(entry(c.name)->accessibleDescription().contains(QString::fromLatin1(c.fault)));
        }
        button("btnMqttDiscard")->click();
        EXPECT_TRUE(c.fault == nullptr || !reads(c.fault)) << c.name;
    }
    // Without a host the rest does not count.
    showMqtt();
    type("Port", QStringLiteral("nonsense"));
    type("Host", QString());
    told_.clear();
    QTest::keyClick(entry("Host"), Qt::Key_Return);
    EXPECT_EQ(told_, (Told{{Field::MqttHost, QString()}}));
    EXPECT_EQ(entry("Port")->text(), QStringLiteral("1883"));
}

TEST_F(SettingsPageTest, ThePasswordIsHiddenUntilItIsAskedFor) {
    showMqtt();
    auto *show = find<QPushButton>("Password: Show");
    EXPECT_EQ(entry("Password")->echoMode(), QLineEdit::Password);
    show->click();
    EXPECT_EQ(entry("Password")->echoMode(), QLineEdit::Normal);
    EXPECT_EQ(entry("Password")->text(), QStringLiteral(" a b ")) << "its blanks count";
    page_.showSection(Section::Data);
    page_.showSection(Section::Remote);
    EXPECT_EQ(entry("Password")->echoMode(), QLineEdit::Password);
}

TEST_F(SettingsPageTest, MetricsAreOneFieldOfSwitchAndPort) {
    page_.showSection(Section::Remote);
    settle();
    auto *toggle = find<ToggleSwitch>("Offer metrics");
    auto ports = page_.findChildren<SettingsEntry *>();
    ports.erase(std::remove_if(ports.begin(), ports.end(),
                               [](const SettingsEntry *each) { return !each->isVisible(); }),
                ports.end());
    SettingsEntry *port = ports.back(); // MQTT has one too
    ASSERT_EQ(port->accessibleName(), QStringLiteral("Port"));
    EXPECT_FALSE(port->isEnabled());
    toggle->click();
    const auto enter = [port](const char *text, Qt::Key key) {
        port->setFocus();
        port->selectAll();
        QTest::keyClicks(port, QString::fromLatin1(text));
        QTest::keyClick(port, key);
    };
    enter("9500", Qt::Key_Return);
    enter("9501", Qt::Key_Escape);
    EXPECT_EQ(port->text(), QStringLiteral("9500"));
    enter("99999", Qt::Key_Return);
    EXPECT_TRUE(reads("1 to 65535"));
    toggle->setFocus();
    EXPECT_EQ(port->text(), QStringLiteral("9500")) << "left with nonsense";
    port->setFocus();
    QTest::keyClicks(port, QStringLiteral("1")); // in the midst of it
    toggle->click();
    toggle->click();
    page_.setValue(Field::MetricsPort, 0);
    page_.setValue(Field::MetricsPort, 1234);
    EXPECT_EQ(port->text(), QStringLiteral("1234"));
    EXPECT_EQ(told_, (Told{{Field::MetricsPort, 9417},
                           {Field::MetricsPort, 9500},
                           {Field::MetricsPort, 0},
                           {Field::MetricsPort, 9500}}));
}

TEST_F(SettingsPageTest, ResetAsksFirst) {
    page_.showSection(Section::Data);
    settle();
    const QSignalSpy resets(&page_, &SettingsPage::resetRequested);
    QPushButton *reset = button("btnReset");
    const auto asks = [this, reset] { return button("btnResetYes")->isVisible() && !reset->isVisible(); };
    for (const auto &refuse :
         {std::function<void()>([this] { button("btnResetNo")->click(); }),
          std::function<void()>([this] { QTest::keyClick(button("btnResetNo"), Qt::Key_Escape); }),
          std::function<void()>([this] {
              page_.showSection(Section::General);
              page_.showSection(Section::Data);
          })}) {
        reset->setFocus();
        QTest::keyClick(reset, Qt::Key_Space);
        EXPECT_TRUE(asks());
        EXPECT_TRUE(button("btnResetNo")->hasFocus()) << "a second press of the key resets nothing";
        refuse();
        EXPECT_FALSE(asks());
    }
    EXPECT_EQ(resets.count(), 0);
    reset->click();
    button("btnResetYes")->click();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_FALSE(asks());
}

TEST_F(SettingsPageTest, ButtonsAskForWhatTheySay) {
    const QSignalSpy rates(&page_, &SettingsPage::ratesRequested);
    const QSignalSpy alarms(&page_, &SettingsPage::alarmsRequested);
    const QSignalSpy folder(&page_, &SettingsPage::openFolderRequested);
    const QSignalSpy exports(&page_, &SettingsPage::exportRequested);
    const QSignalSpy imports(&page_, &SettingsPage::importRequested);
    page_.showSection(Section::Energy);
    find<QPushButton>("Electricity rate")->click();
    page_.showSection(Section::Alarms);
    find<QPushButton>("Alarm log")->click();
    page_.showSection(Section::Data);
    button("btnOpenFolder")->click();
    EXPECT_EQ(rates.count() * alarms.count() * folder.count(), 1);
    for (const char *name : {"btnSettingsExport", "btnSettingsImport"}) {
        button(name)->click();
        auto *dialog = page_.findChild<QFileDialog *>();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->defaultSuffix(), QStringLiteral("zpsgset"));
        emit dialog->fileSelected(QStringLiteral("/tmp/a.zpsgset"));
        delete dialog;
    }
    EXPECT_EQ(exports.value(0).value(0).toString(), QStringLiteral("/tmp/a.zpsgset"));
    EXPECT_EQ(imports.count(), 1);
    page_.showResult(QStringLiteral("Exported"), false);
    EXPECT_TRUE(reads("Exported"));
}

TEST_F(SettingsPageTest, TheAddressOfUpdatesIsTakenWhenItIsOne) {
    page_.setAddressRule([](const QString &text) { return text.startsWith(QStringLiteral("https://")); });
    page_.showSection(Section::Updates);
    settle();
    const auto *check = button("btnCheckUpdate");
    const auto *toggle = find<ToggleSwitch>("Tell me about new versions");
    struct Case {
        const char *typed;
        Qt::Key key;
        const char *told; ///< null: nothing
        bool fault;
    };
    for (const Case &c :
         {Case{"file:///x", Qt::Key_Return, nullptr, true}, Case{"http://a", Qt::Key_Tab, nullptr, true},
          Case{"https://b", Qt::Key_Escape, nullptr, false},
          Case{" https://a ", Qt::Key_Return, "https://a", false},
          Case{"https://a", Qt::Key_Return, nullptr, false}, Case{"", Qt::Key_Return, "", false},
          Case{"https://c", Qt::Key_Tab, "https://c", false}}) {
        const bool some = c.told != nullptr && *c.told != 0;
        told_.clear();
        type("Address", QString::fromLatin1(c.typed));
        QTest::keyClick(QApplication::focusWidget(), c.key);
        const Told expected{{Field::UpdateAddress, QString::fromLatin1(c.told)}};
        EXPECT_EQ(told_, c.told == nullptr ? Told() : expected) << c.typed;
        EXPECT_EQ(reads("begins with https://, without"), c.fault) << c.typed;
        if (c.told != nullptr) {
            EXPECT_EQ(check->isEnabled() && toggle->isEnabled(), some);
            EXPECT_EQ(reads("Needs an address"), !some);
        }
    }
}

TEST_F(SettingsPageTest, TheDataFolderCanBeCopiedWhole) {
    const QString path = QStringLiteral("/home/somebody").repeated(20);
    page_.showSection(Section::Data);
    page_.setStatus(SettingStatus::Data, path);
    settle();
    auto *line = page_.findChild<SettingsCopyLine *>();
    line->setFocus(Qt::TabFocusReason);
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), path);
}

TEST_F(SettingsPageTest, TabComesToEverythingAndBringsItIntoView) {
    showMqtt();
    page_.setValue(Field::MetricsPort, 9417);
    auto *scroll = page_.findChild<QScrollArea *>();
    ASSERT_GT(scroll->verticalScrollBar()->maximum(), 0);
    QSet<QWidget *> reached;
    page_.setFocus();
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget() == nullptr ? &page_ : QApplication::focusWidget(),
                        Qt::Key_Tab);
        QWidget *focus = QApplication::focusWidget();
        reached.insert(focus);
        if (scroll->widget()->isAncestorOf(focus)) {
            const QWidget *row = focus;
            while (row != scroll->widget() && qobject_cast<const SettingRow *>(row) == nullptr) {
                row = row->parentWidget();
            }
            row = row == scroll->widget() ? focus : row;
            const QRect place(row->mapTo(scroll->viewport(), QPoint()), row->size());
            EXPECT_TRUE(scroll->viewport()->rect().contains(place)) << qPrintable(focus->accessibleName());
        }
    }
    int rows = 0;
    for (const SettingRow *row : page_.findChildren<SettingRow *>()) {
        const auto parts = row->findChildren<QWidget *>();
        const bool any = std::any_of(parts.begin(), parts.end(),
                                     [&reached](QWidget *part) { return reached.contains(part); });
        EXPECT_TRUE(any || !row->isVisible()) << qPrintable(row->name());
        rows += row->isVisible() ? 1 : 0;
    }
    EXPECT_EQ(rows, 14);
}

TEST_F(SettingsPageTest, KeysGoThroughTheSectionsAndScroll) {
    page_.showSection(Section::General);
    page_.setFocus();
    QTest::keyClick(&page_, Qt::Key_Tab);
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    press(Qt::Key_Down);
    EXPECT_EQ(page_.section(), Section::Energy);
    press(Qt::Key_End);
    EXPECT_EQ(page_.section(), Section::Data);
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(page_.section(), Section::Remote);
    settle();
    const auto *bar = page_.findChild<QScrollArea *>()->verticalScrollBar();
    press(Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 0);
    press(Qt::Key_PageUp);
    EXPECT_EQ(bar->value(), 0);
}

/// Everything on the page that shows less than all of its text.
void expectNothingCut(const SettingsPage &page) {
    const auto *scroll = page.findChild<QScrollArea *>();
    EXPECT_LE(scroll->widget()->width(), scroll->viewport()->width());
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        if (!label->isVisible() || label->text().isEmpty()) {
            continue;
        }
        if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << qPrintable(label->text());
        }
        EXPECT_GE(label->width(), label->minimumSizeHint().width()) << qPrintable(label->text());
    }
    for (const QWidget *control : page.findChildren<QWidget *>()) {
        if (control->isVisible() && scroll->widget()->isAncestorOf(control)) {
            const int right = control->mapTo(scroll->widget(), QPoint(control->width(), 0)).x();
            EXPECT_LE(right, scroll->widget()->width()) << control->metaObject()->className();
        }
    }
    for (const QPushButton *button : page.findChildren<QPushButton *>()) {
        const int words = QFontMetrics(button->font()).horizontalAdvance(button->text());
        EXPECT_TRUE(!button->isVisible() || button->width() >= words + 16) << qPrintable(button->text());
    }
    for (const SegmentedControl *segments : page.findChildren<SegmentedControl *>()) {
        EXPECT_TRUE(!segments->isVisible() || segments->width() >= segments->sizeHint().width());
    }
}

TEST_F(SettingsPageTest, NothingIsCutInLongerLanguages) {
    Longer longer;
    ASSERT_TRUE(longer.load(QStringLiteral(ZPSG_CATALOGUE)));
    for (const bool longTexts : {false, true}) {
        if (longTexts) {
            QCoreApplication::installTranslator(&longer);
            page_.setStatus(SettingStatus::Mqtt, QStringLiteral("can't reach the broker at all ").repeated(8),
                            true);
            page_.setStatus(SettingStatus::Rate, QStringLiteral("so much at night, ").repeated(12));
        }
        for (const QSize size : {QSize(886, 575), QSize(1292, 723), QSize(3620, 2025)}) {
            page_.resize(size);
            for (const Section section : kSections) {
                SCOPED_TRACE(static_cast<int>(section) + 10 * size.width());
                page_.showSection(section);
                settle();
                expectNothingCut(page_);
            }
        }
    }
}

TEST_F(SettingsPageTest, ANewLanguageIsShownAtOnceAndKeepsWhatIsWritten) {
    showMqtt();
    type("Port", QStringLiteral("0"));
    QTest::keyClick(entry("Port"), Qt::Key_Return);
    const QString description = entry("Port")->accessibleDescription();
    QStringList before;
    for (const QLabel *label : page_.findChildren<QLabel *>()) {
        before.append(label->text());
    }
    Longer longer;
    ASSERT_TRUE(longer.load(QStringLiteral(ZPSG_CATALOGUE)));
    QCoreApplication::installTranslator(&longer);
    settle();
    for (const QLabel *label : page_.findChildren<QLabel *>()) {
        EXPECT_TRUE(label->text().isEmpty() || !before.contains(label->text())) << qPrintable(label->text());
    }
    const SettingsEntry *port = entry("Port w");
    ASSERT_NE(port, nullptr);
    EXPECT_EQ(port->text(), QStringLiteral("0"));
    EXPECT_GT(port->accessibleDescription().size(), description.size());
}

} // namespace
} // namespace zpsg::ui::test
