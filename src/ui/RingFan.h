// The fan that carries the lights, seen from the front, and where on it they are.
#pragma once

#include "lighting/LightingState.h"

#include <QPointF>

#include <cstddef>
#include <vector>

class QPainter;

namespace zpsg::ui {

/// Lights at equal distances on a circle, the first at the top, the others clockwise.
struct LedRing {
    std::size_t first = 0; ///< its first light's place in a frame
    std::size_t count = 0;
    qreal radius = 0.0; ///< of the circle, in radii of the fan
};

/// In the order of a frame. The single-colour ring is one light, a tube.
[[nodiscard]] std::vector<LedRing> ringsOf(lighting::RingKind kind);
[[nodiscard]] std::size_t ledCountOf(lighting::RingKind kind);

/// From the fan's centre to this light, in radii of the fan.
[[nodiscard]] QPointF ledPlace(const LedRing &ring, std::size_t led);

/// Of a lamp, or half the width of a tube, in radii of the fan.
[[nodiscard]] qreal lampRadius(lighting::RingKind kind);
/// How far a lamp's light is seen on the fan, in radii of the fan.
inline constexpr qreal kGlowReach = 0.46;
inline constexpr qreal kHubRadius = 0.27;
/// Room that the light beyond the fan's edge needs, in radii of the fan.
inline constexpr qreal kFanSpill = 0.12;

/// Dark: what is seen when no light is on. Surface: how much light each part gives back, in greys.
enum class FanLook { Dark, Surface };

/// In a painter whose origin is the fan's centre and whose unit is its radius.
void paintFan(QPainter &painter, lighting::RingKind kind, FanLook look);

} // namespace zpsg::ui
