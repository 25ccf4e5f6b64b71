// What an MQTT setting may be.
#pragma once

#include "ui/SettingField.h"

#include <QString>

namespace zpsg::ui {

inline constexpr int kLastPort = 65535;

/// The number of a port, 1 to 65535, or 0.
[[nodiscard]] int portNumber(const QString &text);

/// What is wrong with this text in this field, in the user's language; empty when nothing is.
[[nodiscard]] QString mqttFault(SettingField field, const QString &text);

} // namespace zpsg::ui
