// What the tests of widgets share: English texts, a fixed number format, and an eye on paint events.
#pragma once

#include "psu/TelemetryRecord.h"

#include <gtest/gtest.h>

#include <QObject>
#include <QTranslator>

class QWidget;

namespace zpsg::ui::test {

class UiTest : public ::testing::Test {
public:
    UiTest();
    ~UiTest() override;

private:
    QTranslator translator_;
};

/// Counts what reaches a widget and all its children.
class PaintCounter : public QObject {
    Q_OBJECT

public:
    explicit PaintCounter(QWidget *root);
    bool eventFilter(QObject *watched, QEvent *event) override;

    int paints = 0;
};

/// Lets posted events (layout, repaint) happen.
void settle();

/// A record as it is after a reading; differs from a fresh record in every value.
psu::TelemetryRecord reading(double volts12 = 12.05, double amps12 = 20.0);

} // namespace zpsg::ui::test
