#include "UiFixture.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QWidget>

namespace zpsg::ui::test {

UiTest::UiTest() {
    QLocale::setDefault(QLocale::c());
    EXPECT_TRUE(translator_.load(QStringLiteral(ZPSG_CATALOGUE)));
    QCoreApplication::installTranslator(&translator_);
}

UiTest::~UiTest() { QCoreApplication::removeTranslator(&translator_); }

PaintCounter::PaintCounter(QWidget *root) {
    root->installEventFilter(this);
    for (QWidget *child : root->findChildren<QWidget *>()) {
        child->installEventFilter(this);
    }
}

bool PaintCounter::eventFilter(QObject *watched, QEvent *event) {
    paints += event->type() == QEvent::Paint ? 1 : 0;
    return QObject::eventFilter(watched, event);
}

void settle() {
    // Layout requests bring resizes, which bring repaints.
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

psu::TelemetryRecord reading(double volts12, double amps12) {
    psu::TelemetryRecord record;
    const auto store = [&record](const char *key, double value) {
        record.store(QString::fromLatin1(key), static_cast<float>(value));
    };
    store("VIN", 231.4);
    store("VVOut12", volts12);
    store("VVOut5", 5.02);
    store("VVOut33", 3.31);
    store("VIOut12", amps12);
    store("VIOut5", 4.0);
    store("VIOut33", 2.0);
    store("Temp", 41.0);
    store("FanSpeed", 960.0);
    record.deriveWatts();
    return record;
}

} // namespace zpsg::ui::test
