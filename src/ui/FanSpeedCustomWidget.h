// The selector of the fan's mode for supplies whose fan has a ring of one colour, or none.
#pragma once

#include "ui/FanSelector.h"

namespace zpsg::ui {

class FanSpeedCustomWidget final : public FanSelector {
    Q_OBJECT

public:
    explicit FanSpeedCustomWidget(QWidget *parent = nullptr);
};

} // namespace zpsg::ui
