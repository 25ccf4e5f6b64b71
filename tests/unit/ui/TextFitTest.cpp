// In every language, at the least and the usual size of the window, on every page in the states that say
// most: no text is cut off, elided or painted over another.

#include "support/TextProbe.h"

#include "TextFitStage.h"
#include "ui/CustomFanSpeedWidget.h"
#include "ui/ElectricityRateWidget.h"
#include "ui/FanPage.h"
#include "ui/LightingPage.h"
#include "ui/popupWidget.h"
#include "ui/PowerCountdown.h"
#include "ui/Selector.h"
#include "ui/Style.h"
#include "ui/Temperature.h"
#include "ui/ZpsCirqDuo_Widget.h"
#include "UiFixture.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QTranslator>

#include <array>

namespace zpsg::ui::test {
namespace {

/// They hold a message of the system about a file, and the name of another program.
const QStringList kNames{QStringLiteral("lblExportResult"), QStringLiteral("lblRingSource")};

constexpr const char *kPseudo = "longer";

struct Language {
    const char *code;
    const char *locale;
};
constexpr std::array kLanguages{
    Language{"en", "en_GB"}, Language{"tc", "zh_TW"}, Language{"sc", "zh_CN"},
    Language{"fr", "fr_FR"}, Language{"de", "de_DE"}, Language{"jp", "ja_JP"},
    Language{"ru", "ru_RU"}, Language{"sh", "es_ES"}, Language{kPseudo, "en_GB"},
};

/// The English texts, longer by a third and with high letters: the longest that a language may have.
class Longer : public QTranslator {
public:
    bool take(const QString &english) { return english_.load(english); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *id, const char *hint,
                                    int n) const override {
        static const QString plain = QStringLiteral("aeiouAEIOU");
        static const QString high =
            QStringLiteral("\u00E4\u00E9\u00EE\u00F6\u00FC\u00C4\u00C9\u00CE\u00D6\u00DC");
        QString text;
        int owed = 0; // hundredths of a letter
        for (const QChar letter : english_.translate(context, id, hint, n)) {
            const int vowel = plain.indexOf(letter);
            const QChar written = vowel >= 0 ? high.at(vowel) : letter;
            text += written;
            owed += letter.isLetter() || letter.isSpace() ? 35 : 0;
            for (; vowel >= 0 && owed >= 50; owed -= 100) {
                text += written.toLower();
            }
        }
        return text;
    }

private:
    QTranslator english_;
};

QRect placeIn(const QWidget &view, const QWidget &widget) {
    return {widget.mapTo(&view, QPoint(0, 0)), widget.size()};
}

/// Buttons and entries that lie on each other, each pair in a line.
QStringList controlsOnEachOther(const QWidget &view) {
    QStringList found;
    std::vector<const QWidget *> controls;
    for (const QWidget *control : view.findChildren<QWidget *>()) {
        const bool one = qobject_cast<const QAbstractButton *>(control) != nullptr ||
                         qobject_cast<const QComboBox *>(control) != nullptr ||
                         qobject_cast<const QAbstractSpinBox *>(control) != nullptr;
        if (control->isVisible() && one && view.rect().contains(placeIn(view, *control))) {
            controls.push_back(control);
        }
    }
    for (auto one = controls.begin(); one != controls.end(); ++one) {
        for (auto other = controls.begin(); other != one; ++other) {
            const bool within = (*one)->isAncestorOf(*other) || (*other)->isAncestorOf(*one);
            if (!within && placeIn(view, **one).intersects(placeIn(view, **other))) {
                found << QStringLiteral("%1 on %2").arg((*one)->objectName(), (*other)->objectName());
            }
        }
    }
    return found;
}

struct Look {
    QSize size;
    bool largeText = false;
    TemperatureUnit unit = TemperatureUnit::Celsius;
};

/// Paints as a custom widget may do it: too wide for itself, one text on another, shortened, too small.
class Careless : public QWidget {
public:
    int fault = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        painter.setFont(style::font(fault == 4 ? 6.0 : 12.0));
        painter.drawText(QPointF(fault == 1 ? 170.0 : 10.0, 20.0), QStringLiteral("Temperature"));
        painter.drawText(QPointF(10.0, fault == 2 ? 24.0 : 60.0),
                         fault == 3 ? QStringLiteral("Efficie\u2026") : QStringLiteral("Efficiency"));
    }
};

TEST(TextProbe, SaysWhatIsWrongWithATextAndNothingElse) {
    const std::array<const char *, 5> said{"", "cut off: \"Temp", "overlap: \"Effi", "elided: \"Effi",
                                           "too small: \"Temp"};
    QWidget window;
    window.resize(200, 100);
    Careless widget;
    widget.setParent(&window);
    widget.resize(200, 100);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    for (std::size_t i = 0; i < said.size(); ++i) {
        widget.fault = static_cast<int>(i);
        const QStringList faults = zpsg::test::TextProbe(window).faults();
        EXPECT_EQ(faults.isEmpty(), i == 0);
        EXPECT_THAT(faults.join(QLatin1Char('\n')).toStdString(), ::testing::StartsWith(said.at(i)));
    }
    widget.fault = 3;
    widget.setObjectName(QStringLiteral("name"));
    EXPECT_EQ(zpsg::test::TextProbe(window).faults({QStringLiteral("name")}), QStringList());
    widget.fault = 0;
    QLabel label(QStringLiteral("A sentence that is far too long for its label"), &window);
    label.setGeometry(10, 70, 60, 20);
    label.show();
    EXPECT_TRUE(
        zpsg::test::TextProbe(window).faults().join(QChar()).startsWith(QLatin1String("cut off: \"A s")));
}

class TextFitTest : public ::testing::TestWithParam<Language> {
public:
    TextFitTest() {
        QLocale::setDefault(QLocale(QLatin1String(GetParam().locale)));
        const QString folder = QStringLiteral(ZPSG_CATALOGUES "/");
        if (GetParam().code == kPseudo) {
            EXPECT_TRUE(longer_.take(folder + QStringLiteral("en.qm")));
            QCoreApplication::installTranslator(&longer_);
        } else {
            EXPECT_TRUE(catalogue_.load(folder + QLatin1String(GetParam().code) + QStringLiteral(".qm")));
            QCoreApplication::installTranslator(&catalogue_);
        }
    }
    ~TextFitTest() override {
        style::setLargeText(false);
        setTemperatureUnit(TemperatureUnit::Celsius);
        QCoreApplication::removeTranslator(&catalogue_);
        QCoreApplication::removeTranslator(&longer_);
        QLocale::setDefault(QLocale::c());
    }

protected:
    static void expectAllFit(const Look &look) {
        style::setLargeText(look.largeText);
        setTemperatureUnit(look.unit);
        Stage stage(look.size);
        for (const Scene &scene : scenes()) {
            SCOPED_TRACE(scene.name);
            stage.view.showPage(scene.page);
            scene.play(stage);
            settle();
            EXPECT_EQ(stage.view.size(), look.size);
            const bool covered = stage.view.fan()->popup()->isVisible() || stage.view.rates()->isVisible() ||
                                 stage.child<popupWidget>().isVisible();
            if (!covered) {
                EXPECT_EQ(controlsOnEachOther(stage.view).join(QLatin1Char('\n')).toStdString(), "")
                    << GetParam().code;
            }
            const zpsg::test::TextProbe probe(stage.view);
            EXPECT_GT(probe.texts().size(), 8U);
            EXPECT_EQ(probe.faults(kNames).join(QLatin1Char(10)).toStdString(), "")
                << GetParam().code << ", " << scene.name << ", " << look.size.width()
                << (look.largeText ? ", large text" : "")
                << (look.unit == TemperatureUnit::Fahrenheit ? ", Fahrenheit" : "");
        }
    }

private:
    QTranslator catalogue_;
    Longer longer_;
};

TEST_P(TextFitTest, EveryPageAtTheLeastSize) {
    expectAllFit({MainView::kMinimumSize, false, TemperatureUnit::Fahrenheit});
}

TEST_P(TextFitTest, EveryPageAtTheUsualSize) {
    expectAllFit({MainView::kDefaultSize});
    expectAllFit({MainView::kDefaultSize, true, TemperatureUnit::Fahrenheit});
}

TEST_P(TextFitTest, WhateverIsChosenFromAList) {
    Stage stage(MainView::kMinimumSize);
    LightingPage &page = *stage.view.lighting();
    stage.view.showPage(MainView::Page::Lighting);
    for (const LightingPage::Ring ring :
         {LightingPage::Ring::Single, LightingPage::Ring::Plus, LightingPage::Ring::Duo}) {
        page.setRing(ring);
        settle();
        for (Selector *list : page.findChildren<Selector *>()) {
            for (int entry = 0; list->isVisible() && entry < list->entries(); ++entry) {
                list->showEntry(entry);
                EXPECT_EQ(zpsg::test::TextProbe(*list).faults().join(QLatin1Char('\n')).toStdString(), "")
                    << GetParam().code;
            }
        }
    }
    stage.view.showPage(MainView::Page::Lighting);
    auto *list = page.duo()->findChild<Selector *>(QStringLiteral("selectFrontMode"));
    list->showPopup();
    settle();
    const zpsg::test::TextProbe open(*list->view()->window());
    EXPECT_GT(open.texts().size(), 20U);
    EXPECT_EQ(open.faults().join(QLatin1Char('\n')).toStdString(), "") << GetParam().code;
    list->hidePopup();
}

TEST_P(TextFitTest, TheCountdown) {
    using Action = PowerCountdown::Action;
    for (const Action action : {Action::Shutdown, Action::Restart, Action::Sleep}) {
        PowerCountdown countdown(action);
        countdown.setAttribute(Qt::WA_DontShowOnScreen);
        countdown.begin();
        settle();
        EXPECT_EQ(zpsg::test::TextProbe(countdown).faults().join(QLatin1Char('\n')).toStdString(), "")
            << GetParam().code << ", " << static_cast<int>(action);
    }
}

/// The languages differ where there is little room.
class TextFitScreensTest : public TextFitTest {};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TextFitScreensTest);

TEST_P(TextFitScreensTest, EveryPage) {
    for (const QSize size : {QSize(1366, 768), QSize(3840, 2160)}) {
        expectAllFit({size});
    }
}

std::string nameOf(const ::testing::TestParamInfo<Language> &language) { return language.param.code; }

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Watched, a language takes half a minute, and what is watched is the same in each.
constexpr std::array kTested{kLanguages.at(5), kLanguages.back()};
#else
constexpr std::array kTested = kLanguages;
INSTANTIATE_TEST_SUITE_P(Languages, TextFitScreensTest, ::testing::Values(kLanguages.at(4)), nameOf);
#endif
INSTANTIATE_TEST_SUITE_P(Languages, TextFitTest, ::testing::ValuesIn(kTested), nameOf);

} // namespace
} // namespace zpsg::ui::test
