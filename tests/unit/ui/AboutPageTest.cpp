#include "ui/AboutPage.h"

#include "UiFixture.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

namespace zpsg::ui::test {
namespace {

class AboutPageTest : public UiTest {
protected:
    AboutPageTest() {
        page_.setSupply(
            {QStringLiteral("MODEL-1000"), 1000.0, QStringLiteral("SERIAL-4711"), AboutSupply::Link::Raw});
        page_.setDataFolder(
            QStringLiteral("/home/somebody-with-a-name/.local/share/a-folder/of-some-depth/zpsg"));
    }
    [[nodiscard]] const QLabel *labelWith(const QString &text) const {
        const auto labels = page_.findChildren<QLabel *>();
        const auto found = std::find_if(labels.begin(), labels.end(), [&text](const QLabel *label) {
            return label->text().contains(text);
        });
        return found == labels.end() ? nullptr : *found;
    }

    AboutPage page_{7};
};

TEST_F(AboutPageTest, WhatIsTrueOfSupplyAndProgramCanBeSelected) {
    for (const char *text : {"MODEL-1000", "1000", "SERIAL-4711", "raw", "/home/somebody", "MIT", "libsodium",
                             "LGPL-2.1", "Ctrl+1"}) {
        const QLabel *label = labelWith(QString::fromLatin1(text));
        ASSERT_NE(label, nullptr) << text;
        EXPECT_TRUE(label->textInteractionFlags() & Qt::TextSelectableByMouse) << text;
        EXPECT_EQ(label->textFormat() == Qt::RichText, false) << text;
    }
    EXPECT_NE(labelWith(QStringLiteral("Ctrl+7")), nullptr);
    EXPECT_EQ(labelWith(QStringLiteral("Ctrl+8")), nullptr) << "there are seven pages";
    page_.setSupply({});
    EXPECT_EQ(labelWith(QStringLiteral("MODEL-1000")), nullptr);
    EXPECT_EQ(labelWith(QStringLiteral("SERIAL-4711")), nullptr);
}

TEST_F(AboutPageTest, TheReportNamesModelAndVersionsAndNobody) {
    auto *copy = page_.findChild<QPushButton *>(QStringLiteral("btnCopyDetails"));
    const QString before = copy->text();
    QGuiApplication::clipboard()->clear();
    copy->click();
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(QStringLiteral("MODEL-1000, 1000 W")));
    EXPECT_TRUE(copied.contains(QStringLiteral("raw path")));
    EXPECT_TRUE(copied.contains(QString::fromLatin1(qVersion())));
    EXPECT_TRUE(copied.contains(QSysInfo::prettyProductName()));
    EXPECT_FALSE(copied.contains(QStringLiteral("4711"))) << "no serial number";
    EXPECT_FALSE(copied.contains(QStringLiteral("somebody"))) << "no folder";
    EXPECT_NE(copy->text(), before) << "the click is confirmed";
    EXPECT_TRUE(QTest::qWaitFor([copy, &before] { return copy->text() == before; }, 5000));
}

TEST_F(AboutPageTest, NothingIsCutAndWhatHasNoRoomIsScrolled) {
    auto *scroll = page_.findChild<QScrollArea *>();
    page_.show();
    const UpdateNews news{QStringLiteral("10.20.30"), QStringLiteral("<b>new</b> ").repeated(20),
                          QStringLiteral("https://example.org/get")};
    // What a page has in windows of 960 x 620 and 1366 x 768, in a low one, and in the first again.
    for (const auto &[size, update] : {std::pair{QSize(888, 576), UpdateNews{}},
                                       {{1294, 724}, {}},
                                       {{888, 300}, {}},
                                       {{888, 576}, news},
                                       {{888, 576}, {}}}) {
        page_.setUpdate(update);
        page_.resize(size);
        settle();
        if (update.version.isEmpty()) { // else it depends on the notes
            EXPECT_EQ(scroll->verticalScrollBar()->maximum() > 0, size.height() < 400) << size.height();
        }
        const QWidget *content = scroll->widget();
        EXPECT_LE(content->width(), scroll->viewport()->width()) << size.width();
        for (const QLabel *label : page_.findChildren<QLabel *>()) {
            if (!label->isVisible()) {
                continue;
            }
            const QRect place(label->mapTo(content, QPoint(0, 0)), label->size());
            EXPECT_TRUE(content->rect().contains(place)) << qPrintable(label->text());
            EXPECT_GE(label->width(), label->minimumSizeHint().width()) << qPrintable(label->text());
            EXPECT_GE(label->height(),
                      label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height())
                << qPrintable(label->text());
        }
    }
}

TEST_F(AboutPageTest, TextsFollowTheLanguage) {
    class Marking : public QTranslator {
    public:
        [[nodiscard]] bool isEmpty() const override { return false; }
        [[nodiscard]] QString translate(const char * /*context*/, const char *id, const char * /*hint*/,
                                        int /*n*/) const override {
            return QStringLiteral("~") + QString::fromLatin1(id);
        }
    } marking;
    const QStringList untranslated{QStringLiteral("This supply"), QStringLiteral("Model"),
                                   QStringLiteral("Keyboard"), QStringLiteral("Go to a page"),
                                   QStringLiteral("USB, raw path")};
    for (const QString &text : untranslated) {
        EXPECT_NE(labelWith(text), nullptr) << qPrintable(text);
    }
    QCoreApplication::installTranslator(&marking);
    settle();
    for (const QString &text : untranslated) {
        EXPECT_EQ(labelWith(text), nullptr) << qPrintable(text);
    }
    EXPECT_NE(labelWith(QStringLiteral("SERIAL-4711")), nullptr);
    QCoreApplication::removeTranslator(&marking);
}

} // namespace
} // namespace zpsg::ui::test
