#include "ui/ElectricityRateWidget.h"

#include "ui/ElectricityRateEntry.h"
#include "ui/ElectricityRateText.h"
#include "ui/ElectricityRateWeek.h"
#include "UiFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <array>

namespace zpsg::ui::test {
namespace {

const QLocale kGerman(QLocale::German, QLocale::Germany);

TEST(ElectricityRateText, TakesAPriceAsItIsTyped) {
    struct Case {
        QLocale locale;
        const char *text;
        double rate;
        RateFault fault;
    };
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const std::array<Case, 14> cases{{{english, "0.305", 0.305, RateFault::None},
                                      {english, " 12 ", 12.0, RateFault::None},
                                      {english, "1000000", 1e6, RateFault::None},
                                      {english, "1,000", 0.0, RateFault::NoNumber},
                                      {english, "0,305", 0.0, RateFault::NoNumber},
                                      {english, "", 0.0, RateFault::NoNumber},
                                      {english, "nan", 0.0, RateFault::NoNumber},
                                      {english, "1e2", 0.0, RateFault::NoNumber},
                                      {english, "-0.1", 0.0, RateFault::OutOfRange},
                                      {english, "1000000.1", 0.0, RateFault::OutOfRange},
                                      {english, "0.123456", 0.0, RateFault::TooManyDecimals},
                                      {kGerman, "0,30512", 0.30512, RateFault::None},
                                      {kGerman, "0.305", 0.305, RateFault::None}, // never 305
                                      {kGerman, "1.234,5", 0.0, RateFault::NoNumber}}};
    for (const Case &each : cases) {
        QLocale::setDefault(each.locale);
        const TypedRate typed = readRate(QString::fromLatin1(each.text));
        EXPECT_EQ(typed.fault, each.fault) << each.text;
        EXPECT_EQ(typed.rate, each.rate) << each.text;
    }
    EXPECT_EQ(rateText(0.3), QStringLiteral("0,30"));
    EXPECT_EQ(rateText(0.30512), QStringLiteral("0,30512"));
    EXPECT_EQ(commonCurrencies().constFirst(), QStringLiteral("EUR"));
    QLocale::setDefault(QLocale::c());
}

TEST(ElectricityRateText, WritesAmountsOfAnyCurrency) {
    const auto text = [](double amount, const char *code) {
        return costText(amount, QString::fromLatin1(code)).replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    };
    QLocale::setDefault(kGerman);
    EXPECT_EQ(text(1234.5, "EUR"), QString::fromUtf8("1.234,50 €"));
    EXPECT_EQ(text(1234.5, ""), QString::fromUtf8("1.234,50 €"));
    EXPECT_EQ(text(1234.2, "JPY"), QString::fromUtf8("1.234 ¥")) << "has no smaller unit";
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(text(2.5, "USD"), QStringLiteral("US$2.50")) << "the language is no country";
    EXPECT_EQ(text(2.5, "CHF"), QStringLiteral("CHF 2.50"));
    EXPECT_EQ(text(2.5, "XAU"), QStringLiteral("XAU 2.50")) << "one that is not in the list";
    QLocale::setDefault(QLocale::c());
}

class ElectricityRateTest : public UiTest {
public:
    ~ElectricityRateTest() override { QLocale::setDefault(QLocale::c()); }

protected:
    ElectricityRateTest() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); // Monday first
        window_.resize(960, 620);
        window_.show();
        QApplication::setActiveWindow(&window_);
    }

    void open(const char *periods, double rate = 0.305) {
        dialog_.open(power::parseTariff(rate, QString::fromLatin1(periods)).tariff, QStringLiteral("EUR"));
        settle();
    }
    template <typename Widget>
    Widget *one(const char *name) const {
        return dialog_.findChild<Widget *>(QString::fromLatin1(name));
    }
    /// Of the rows, from the top down.
    template <typename Widget>
    QList<Widget *> rows(const char *name) const {
        QList<Widget *> found;
        for (Widget *each : dialog_.findChildren<Widget *>(QString::fromLatin1(name))) {
            if (each->isVisible()) {
                found << each;
            }
        }
        std::sort(found.begin(), found.end(), [this](const Widget *a, const Widget *b) {
            return a->mapTo(&dialog_, QPoint()).y() < b->mapTo(&dialog_, QPoint()).y();
        });
        return found;
    }
    void click(const char *name) {
        QTest::mouseClick(one<QAbstractButton>(name), Qt::LeftButton);
        settle();
    }
    static void type(QLineEdit *entry, const char *text) {
        entry->setFocus();
        entry->selectAll();
        QTest::keyClick(entry, Qt::Key_Delete);
        QTest::keyClicks(entry, QString::fromLatin1(text));
    }

    QWidget window_;
    ElectricityRateWidget dialog_{&window_};
    QSignalSpy rates_{&dialog_, &ElectricityRateWidget::rateConfirmed};
    QSignalSpy currencies_{&dialog_, &ElectricityRateWidget::currencyChosen};
    QSignalSpy periods_{&dialog_, &ElectricityRateWidget::periodsConfirmed};
};

TEST_F(ElectricityRateTest, TellsOnlyWhatHasChanged) {
    const char *const night = "12345 22:00-06:00 0.2123456; 67 00:00-24:00 0.19";
    open(night, 0.305F); // not quite 0.305
    click("btnSave");
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_TRUE(rates_.isEmpty() && currencies_.isEmpty() && periods_.isEmpty());

    open(night);
    type(one<QLineEdit>("editRate"), "0.4");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(rates_.count(), 1);
    EXPECT_EQ(rates_.at(0).at(0).toFloat(), 0.4F);

    open(night);
    one<QComboBox>("listCurrency")->setCurrentText(QStringLiteral("sek"));
    click("btnSave");
    ASSERT_EQ(currencies_.count(), 1);
    EXPECT_EQ(currencies_.at(0).at(0).toString(), QStringLiteral("SEK"));

    open(night);
    type(rows<QLineEdit>("rateTo").at(0), "0530");
    click("btnSave");
    ASSERT_EQ(periods_.count(), 1);
    EXPECT_EQ(periods_.at(0).at(0).toString(),
              QStringLiteral("12345 22:00-05:30 0.2123456; 67 00:00-24:00 0.19"))
        << "a price that was not touched keeps its digits";
    EXPECT_EQ(rates_.count() + currencies_.count(), 2);

    open("", 0.305);
    type(one<QLineEdit>("editRate"), "");
    click("btnSave");
    EXPECT_EQ(rates_.constLast().at(0).toFloat(), 0.0F) << "no rate any more";
}

TEST_F(ElectricityRateTest, LeavesEverythingOnEscapeAndCancel) {
    for (const bool escape : {true, false}) {
        open("12345 22:00-06:00 0.21");
        type(one<QLineEdit>("editRate"), "0.4");
        QTest::mouseClick(&dialog_, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
        EXPECT_TRUE(dialog_.isVisible()) << "a press beside the card throws nothing away";
        if (escape) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        } else {
            click("btnCancel");
        }
        EXPECT_FALSE(dialog_.isVisible());
    }
    open("12345 22:00-06:00 0.21");
    EXPECT_EQ(one<QLineEdit>("editRate")->text(), QStringLiteral("0.305"));
    EXPECT_TRUE(rates_.isEmpty() && periods_.isEmpty());
}

TEST_F(ElectricityRateTest, RowsAreAddedMovedAndRemoved) {
    open("1 08:00-09:00 0.1");
    click("btnAddPeriod");
    EXPECT_TRUE(QApplication::focusWidget()->parentWidget()->objectName() == QLatin1String("rateDays"));
    type(rows<QLineEdit>("ratePrice").at(1), "0.2");
    QTest::mouseClick(rows<QAbstractButton>("btnRateUp").at(1), Qt::LeftButton);
    settle();
    EXPECT_EQ(rows<QLineEdit>("ratePrice").at(0)->text(), QStringLiteral("0.20"));
    EXPECT_FALSE(rows<QAbstractButton>("btnRateUp").at(0)->isEnabled());
    click("btnSave");
    EXPECT_EQ(periods_.at(0).at(0).toString(), QStringLiteral("1234567 22:00-06:00 0.2; 1 08:00-09:00 0.1"));

    open("1 08:00-09:00 0.1; 2 08:00-09:00 0.2");
    for (int left = 1; left >= 0; --left) {
        QTest::mouseClick(rows<QAbstractButton>("btnRateRemove").at(0), Qt::LeftButton);
        settle();
        EXPECT_EQ(rows<QLineEdit>("ratePrice").size(), left);
        EXPECT_TRUE(dialog_.isAncestorOf(QApplication::focusWidget()));
    }
    click("btnSave");
    EXPECT_EQ(periods_.at(1).at(0).toString(), QString());

    open("");
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(one<QAbstractButton>("btnAddPeriod")->isEnabled());
        click("btnAddPeriod");
    }
    EXPECT_FALSE(one<QAbstractButton>("btnAddPeriod")->isEnabled());
    EXPECT_EQ(rows<QLineEdit>("ratePrice").size(), 12);
}

TEST_F(ElectricityRateTest, SaysWhatIsWrongAndStays) {
    struct Case {
        const char *entry;
        const char *text;
        const char *word;
    };
    const std::array<Case, 6> cases{{{"editRate", "1,5", "number"},
                                     {"editRate", "0.1234567", "decimals"},
                                     {"rateFrom", "24:00", "23:59"},
                                     {"rateTo", "24:01", "24:00"},
                                     {"ratePrice", "", "number"},
                                     {"ratePrice", "9999999", "1,000,000"}}};
    for (const Case &each : cases) {
        open("1 08:00-09:00 0.1");
        const auto *words = one<QLabel>(
            QLatin1String(each.entry) == QLatin1String("editRate") ? "lblPriceFault" : "lblRateFault");
        auto *entry = one<QLineEdit>(each.entry);
        type(entry, each.text);
        EXPECT_TRUE(words->text().isEmpty()) << "not while it is being typed";
        click("btnSave");
        EXPECT_TRUE(dialog_.isVisible()) << each.text;
        EXPECT_TRUE(words->isVisible());
        EXPECT_TRUE(words->text().contains(QString::fromLatin1(each.word))) << qPrintable(words->text());
        EXPECT_EQ(QApplication::focusWidget(), entry);
        type(entry, QLatin1String(each.entry).startsWith(QLatin1String("rateT")) ? "24:00" : "7");
        EXPECT_TRUE(words->text().isEmpty()) << "at once when it is right";
        QTest::keyClick(entry, Qt::Key_Escape);
    }
    open("1 08:00-09:00 0.1");
    QTest::keyClick(rows<QWidget>("rateDays").at(0)->findChild<QAbstractButton *>(), Qt::Key_Space);
    one<QComboBox>("listCurrency")->setCurrentText(QStringLiteral("E"));
    click("btnSave");
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_TRUE(one<QLabel>("lblRateFault")->text().contains(QStringLiteral("day")));
    EXPECT_TRUE(one<QLabel>("lblPriceFault")->text().contains(QStringLiteral("three letters")));
    EXPECT_TRUE(rates_.isEmpty() && currencies_.isEmpty() && periods_.isEmpty());
}

TEST_F(ElectricityRateTest, TheKeyboardReachesEverythingInOrder) {
    open("1 08:00-09:00 0.1; 2 08:00-09:00 0.2");
    QStringList names;
    for (int i = 0; i < 16 && !names.contains(QStringLiteral("btnSave")); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget *now = QApplication::focusWidget();
        names << (now->objectName().isEmpty() ? now->parentWidget()->objectName() : now->objectName());
        EXPECT_FALSE(now->accessibleName().isEmpty() && qobject_cast<const QLineEdit *>(now) != nullptr);
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')),
              QStringLiteral("listCurrency btnAddPeriod rateDays rateFrom rateTo ratePrice btnRateRemove "
                             "rateDays rateFrom rateTo ratePrice btnRateUp btnRateRemove btnCancel btnSave"));

    const auto days = rows<QWidget>("rateDays").at(1)->findChildren<QAbstractButton *>();
    days.at(0)->setFocus();
    QTest::keyClick(days.at(0), Qt::Key_Right);
    QTest::keyClick(days.at(1), Qt::Key_End);
    EXPECT_EQ(QApplication::focusWidget(), days.at(6));
    QTest::keyClick(days.at(6), Qt::Key_Space);
    auto *to = rows<QLineEdit>("rateTo").at(1);
    type(to, "23:50");
    for (const char *expected : {"24:00", "00:00", "00:15"}) {
        QTest::keyClick(to, Qt::Key_Up);
        EXPECT_EQ(to->text(), QString::fromLatin1(expected));
    }
    QTest::keyClick(to, Qt::Key_Down);
    QTest::keyClick(to, Qt::Key_Down);
    QTest::keyClick(to, Qt::Key_Return);
    EXPECT_EQ(periods_.at(0).at(0).toString(), QStringLiteral("1 08:00-09:00 0.1; 27 08:00-24:00 0.2"));
}

TEST_F(ElectricityRateTest, TheWeekShowsWhatApplies) {
    open("12345 22:00-06:00 0.21; 7 00:00-12:00 0.19");
    const auto *week = dialog_.findChild<ElectricityRateWeek *>();
    const auto at = [week](int row, double hour) {
        const qreal left = 34.0;
        const qreal wide = week->width() - left - 1.0;
        return week->textAt(QPoint(qRound(left + wide * hour / 24.0), row * 20 + 10))
            .replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    };
    EXPECT_EQ(at(0, 3.0), QString::fromUtf8("Mon 00:00–22:00: 0.305 EUR"));
    EXPECT_EQ(at(0, 23.0), QString::fromUtf8("Mon 22:00–24:00: 0.21 EUR"));
    EXPECT_EQ(at(5, 3.0), QString::fromUtf8("Sat 00:00–06:00: 0.21 EUR")) << "Friday's night";
    EXPECT_EQ(at(6, 3.0), QString::fromUtf8("Sun 00:00–12:00: 0.19 EUR"));
    type(one<QLineEdit>("ratePrice"), "x");
    EXPECT_EQ(at(5, 3.0), QString::fromUtf8("Sat 00:00–24:00: 0.305 EUR")) << "a faulty row holds nowhere";
}

TEST_F(ElectricityRateTest, TheCardFitsIntoAnyWindow) {
    open("1 08:00-09:00 0.1; 2 08:00-09:00 0.2; 3 08:00-09:00 0.3; 4 08:00-09:00 0.4; 5 08:00-09:00 0.5; "
         "6 08:00-09:00 0.6; 7 08:00-09:00 0.7; 1 10:00-11:00 0.8; 2 10:00-11:00 0.9; 3 10:00-11:00 1; "
         "4 10:00-11:00 1.1; 5 10:00-11:00 1.2");
    for (const QSize size : {QSize(3840, 2160), QSize(1100, 720), QSize(960, 620)}) {
        window_.resize(size);
        settle();
        const auto *save = one<QWidget>("btnSave");
        const QWidget *card = save->parentWidget();
        EXPECT_TRUE(dialog_.rect().contains(card->geometry())) << size.width();
        EXPECT_TRUE(card->rect().contains(save->geometry()));
        const auto *week = dialog_.findChild<ElectricityRateWeek *>();
        EXPECT_TRUE(card->rect().contains(QRect(week->mapTo(card, QPoint()), week->size())));
    }
}

} // namespace
} // namespace zpsg::ui::test
