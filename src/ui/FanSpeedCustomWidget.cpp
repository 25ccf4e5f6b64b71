#include "ui/FanSpeedCustomWidget.h"

namespace zpsg::ui {

FanSpeedCustomWidget::FanSpeedCustomWidget(QWidget *parent) : FanSelector(Place::Row, parent) {}

} // namespace zpsg::ui
