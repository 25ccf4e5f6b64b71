#include "ui/FanSpeedCustomWidgetPlus.h"

namespace zpsg::ui {

FanSpeedCustomWidgetPlus::FanSpeedCustomWidgetPlus(QWidget *parent) : FanSelector(Place::Row, parent) {}

} // namespace zpsg::ui
