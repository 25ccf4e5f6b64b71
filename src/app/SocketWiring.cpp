#include "app/SocketWiring.h"

#include "app/CvZpsGV2.h"
#include "lighting/LightMessages.h"
#include "remote/SocketHelper.h"
#include "ui/LightingPage.h"
#include "ui/RGB12LEDWidget.h"
#include "ui/ZpsCirqDuo_Widget.h"

namespace zpsg::app {

using lighting::RingKind;
using remote::SocketHelper;
using ui::RGB12LEDWidget;
using ui::ZpsCirqDuo_Widget;

namespace {

void connectWindow(SocketHelper &socket, CvZpsGV2 &window) {
    using Window = CvZpsGV2;
    const auto join = [&](auto signal, auto slot) { QObject::connect(&socket, signal, &window, slot); };
    join(&SocketHelper::socketHelperToMain, &Window::messageFromSocketHelper);
    join(&SocketHelper::socketHelperToMain_LightOnClick, &Window::messageFromSocketHelper_LightOnClick);
    join(&SocketHelper::socketHelperToMain_LightModel, &Window::messageFromSocketHelper_LightModel);
    join(&SocketHelper::socketHelperToMain_RGBA, &Window::messageFromSocketHelper_RGBA);
    join(&SocketHelper::socketHelperToMain_Music, &Window::messageFromSocketHelper_Music);
    join(&SocketHelper::socketHelperToControlPlus_setupLight, &Window::messageFromSocketHelper_setupLight);
    join(&SocketHelper::socketHelperToControlPlus_setLightOn, &Window::messageFromSocketHelper_setLightOn);
    join(&SocketHelper::socketHelperToControlPlus_setDefault, &Window::messageFromSocketHelper_setDefault);
    join(&SocketHelper::socketHelperToControlPlus_setBtnAndColor,
         &Window::messageFromSocketHelper_setBtnAndColor);
    join(&SocketHelper::socketHelperToControlPlus_setBtnAndBright,
         &Window::messageFromSocketHelper_setBtnAndBright);
    join(&SocketHelper::socketHelperToControlPlus_Music, &Window::messageFromSocketHelper_Music_12LED);
    join(&SocketHelper::socketHelperToControlPlus_Fan_Sync, &Window::messageFromSocketHelper_Fan_Sync);
    join(&SocketHelper::socketHelperToControlPlus_startHelloCV,
         &Window::messageFromSocketHelper_startHelloCV);
    join(&SocketHelper::socketHelperToControlPlus_stopHelloCV, &Window::messageFromSocketHelper_stopHelloCV);
    QObject::connect(&window, &Window::initClientToSocketHelp, &socket, &SocketHelper::initMsgFromMain);
    QObject::connect(&window, &Window::mainToSocketHelpRGB_State, &socket,
                     &SocketHelper::messageFromMainGetRGB_State);
}

void connectPlus(SocketHelper &socket, RGB12LEDWidget &panel) {
    QObject::connect(&socket, &SocketHelper::socketHelperToControlPlus, &panel,
                     &RGB12LEDWidget::messageFromSocketHelper_getInit);
    QObject::connect(&panel, &RGB12LEDWidget::returnInitTo_socketHelper, &socket,
                     &SocketHelper::messageFrom_controlPlus);
}

void connectDuo(SocketHelper &socket, ZpsCirqDuo_Widget &panel) {
    using Panel = ZpsCirqDuo_Widget;
    const auto join = [&](auto signal, auto slot) { QObject::connect(&socket, signal, &panel, slot); };
    join(&SocketHelper::socketHelperToControl_Duo, &Panel::messageFromSocket);
    join(&SocketHelper::socketHelperToControl_setupLight_Duo, &Panel::messageFromSocket_setupLight);
    join(&SocketHelper::socketHelperToControl_setLightOn_Duo, &Panel::messageFromSocket_setLightOn);
    join(&SocketHelper::socketHelperToControl_setDefault_Duo, &Panel::messageFromSocket_setDefault);
    join(&SocketHelper::socketHelperToControl_setBtnAndColor_Duo, &Panel::messageFromSocket_setBtnAndColor);
    join(&SocketHelper::socketHelperToControl_setBtnAndBright_Duo, &Panel::messageFromSocket_setBtnAndBright);
    join(&SocketHelper::socketHelperToControl_ModelMusic_Duo, &Panel::messageFromSocket_ModelMusic);
    QObject::connect(&panel, &Panel::DuoState, &socket, &SocketHelper::init_Duo);
}

} // namespace

void connectSocket(SocketHelper &socket, CvZpsGV2 &window, Supply &supply, Lighting &lights,
                   ui::LightingPage &page) {
    connectWindow(socket, window);
    connectPlus(socket, *page.plus());
    connectDuo(socket, *page.duo());

    const auto tell = [&] {
        emit window.mainToSocketHelpRGB_State(supply.present(),
                                              static_cast<int>(lights.ring().value_or(RingKind::Single)));
    };
    const auto tellState = [&] {
        socket.setLightingState(lights.ring() == RingKind::Duo ? lighting::duoStateText(lights.duo())
                                                               : lighting::plusStateText(lights.plus()));
    };
    QObject::connect(&supply.monitor(), &psu::SupplyMonitor::stateChanged, &socket, tell);
    QObject::connect(&lights, &Lighting::ringChanged, &socket, tell);
    QObject::connect(&lights, &Lighting::ringChanged, &socket, tellState);
    QObject::connect(&lights, &Lighting::changed, &socket, tellState);
    tell();
    tellState();
}

} // namespace zpsg::app
