// The main window's slots for what other programs ask of the lights.
#include "app/CvZpsGV2.h"
#include "lighting/LightMessages.h"

namespace zpsg::app {

void CvZpsGV2::messageFromSocketHelper(const QByteArray & /*request*/) {
    emit initClientToSocketHelp(lighting::singleStateText(lighting_.single()));
}

void CvZpsGV2::messageFromSocketHelper_LightOnClick(const QByteArray &request) {
    lighting_.turnOff(!lighting_.single().off);
    messageFromSocketHelper(request);
}

void CvZpsGV2::messageFromSocketHelper_LightModel(const QVariantMap &message) {
    if (const auto mode = lighting::singleModeIn(message)) {
        lighting_.changeLightMode(*mode);
    }
}

void CvZpsGV2::messageFromSocketHelper_RGBA(const QVariantMap &message) {
    lighting_.changeColour(lighting::singleColourIn(message, lighting_.single().colour),
                           lighting::brightnessIn(message));
}

void CvZpsGV2::messageFromSocketHelper_Music(const QVariantMap &message) {
    lighting_.showFrame({lighting::singleColourIn(message, lighting::kDark)});
}

void CvZpsGV2::messageFromSocketHelper_setupLight(const QVariantMap &message) {
    lighting_.changePlus(lighting::withSetup(lighting_.plus(), message));
}

void CvZpsGV2::messageFromSocketHelper_setLightOn(const QVariantMap &message) {
    auto state = lighting_.plus();
    state.off = !lighting::lightOnIn(message).value_or(!state.off);
    lighting_.changePlus(state);
}

void CvZpsGV2::messageFromSocketHelper_setBtnAndColor(const QVariantMap &message) {
    lighting_.changePlus(lighting::withColours(lighting_.plus(), message));
}

void CvZpsGV2::messageFromSocketHelper_setBtnAndBright(const QVariantMap &message) {
    lighting_.changePlus(lighting::withBrightness(lighting_.plus(), message));
}

void CvZpsGV2::messageFromSocketHelper_Music_12LED(const QVariantMap &message) {
    if (const auto frame = lighting::plusFrameIn(message)) {
        lighting_.showFrame(*frame);
    }
}

void CvZpsGV2::messageFromSocketHelper_Fan_Sync(const QVariantMap &message) {
    messageFromSocketHelper_Music_12LED(message);
}

} // namespace zpsg::app
