#include "ui/FanModeLook.h"

#include <QtGlobal>

#include <cstddef>

namespace zpsg::ui {
namespace {

const fan::FanModeRow &rowOf(fan::FanMode mode) { return fan::kFanModes.at(static_cast<std::size_t>(mode)); }

} // namespace

QString nameOf(fan::FanMode mode) {
    const fan::FanModeRow &row = rowOf(mode);
    return row.textKey != nullptr ? qtTrId(row.textKey) : QString::fromLatin1(row.name);
}

QString modeText(fan::FanMode mode, int customPercent) {
    return mode == fan::FanMode::Custom ? QStringLiteral("%1, %2\u00A0%").arg(nameOf(mode)).arg(customPercent)
                                        : nameOf(mode);
}

QColor inkOf(fan::FanMode mode) {
    switch (mode) {
    case fan::FanMode::Silent:
        return {148, 177, 144};
    case fan::FanMode::Performance:
        return {200, 63, 134};
    case fan::FanMode::ZeroFan:
        return {128, 128, 117};
    case fan::FanMode::Custom:
        break;
    }
    return {92, 164, 200};
}

QString buttonStyle(fan::FanMode mode, bool chosen) {
    const QColor ink = inkOf(mode);
    const QString rgb = QStringLiteral("rgb(%1, %2, %3)").arg(ink.red()).arg(ink.green()).arg(ink.blue());
    return (chosen ? QStringLiteral("QPushButton{color: rgb(0, 0, 0);background:%1;border-radius: 13px;}")
                   : QStringLiteral("QPushButton{border: 1px solid %1;color: %1;border-radius: 13px;}"))
        .arg(rgb);
}

} // namespace zpsg::ui
