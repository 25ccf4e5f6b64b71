// Joins the control socket with the window, the panels and the lights.
#pragma once

#include "app/Lighting.h"

namespace zpsg::remote {
class SocketHelper;
}
namespace zpsg::ui {
class LightingPage;
}

namespace zpsg::app {

class CvZpsGV2;

/// Connects commands with who carries them out, and answers with who asked. Everything lives as long as
/// `window`.
void connectSocket(remote::SocketHelper &socket, CvZpsGV2 &window, Supply &supply, Lighting &lights,
                   ui::LightingPage &page);

} // namespace zpsg::app
