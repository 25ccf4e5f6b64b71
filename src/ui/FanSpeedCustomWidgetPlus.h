// The selector of the fan's mode for supplies whose fan has a ring of twelve lights.
#pragma once

#include "ui/FanSelector.h"

namespace zpsg::ui {

class FanSpeedCustomWidgetPlus final : public FanSelector {
    Q_OBJECT

public:
    explicit FanSpeedCustomWidgetPlus(QWidget *parent = nullptr);
};

} // namespace zpsg::ui
