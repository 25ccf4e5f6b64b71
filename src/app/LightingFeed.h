// Carries the lights to the lighting page, and what a user sets there to the lights.
#pragma once

#include "app/Lighting.h"

namespace zpsg::ui {
class LightingPage;
}

namespace zpsg::app {

/// Everything it is given outlives it.
class LightingFeed : public QObject {
    Q_OBJECT

public:
    LightingFeed(Lighting &lights, Supply &supply, ui::LightingPage &page, QObject *parent = nullptr);

private:
    void connectPanels();
    void showRing();
    void showState();
    void showReachable();
    void watch(bool watched);
    void showLeds();

    Lighting &lights_;
    Supply &supply_;
    ui::LightingPage &page_;
    QTimer picture_; ///< runs while somebody sees the page
    int step_ = 0;
};

} // namespace zpsg::app
