// How the window looks: colours named by what they mean, one spacing scale, one type scale, the style sheet.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;
class QWidget;

namespace zpsg::ui::style {

/// Meanings, not hues. None of them is the only carrier of what it means: a word, a sign or a shape goes with
/// it.
namespace colour {
inline constexpr QRgb kWindowTop = qRgb(30, 30, 30);
inline constexpr QRgb kWindowBottom = qRgb(0, 0, 0);
inline constexpr QRgb kWindowEdge = qRgb(184, 184, 183);
inline constexpr QRgb kCard = qRgba(255, 255, 255, 12);
inline constexpr QRgb kCardEdge = qRgba(255, 255, 255, 22);
inline constexpr QRgb kText = qRgb(243, 245, 247);
inline constexpr QRgb kTextSecondary = qRgb(172, 180, 189);
/// 4.5:1 on a card, the least that small text may have.
inline constexpr QRgb kTextTertiary = qRgb(136, 145, 155);
/// Values that are not current, and everything that is disabled.
inline constexpr QRgb kStale = qRgb(118, 125, 133);
inline constexpr QRgb kTrack = qRgb(47, 52, 58);
inline constexpr QRgb kGrid = qRgba(255, 255, 255, 18);
inline constexpr QRgb kAccent = qRgb(61, 202, 242);
inline constexpr QRgb kAccentDeep = qRgb(30, 110, 204);
inline constexpr QRgb kGood = qRgb(86, 211, 143);
inline constexpr QRgb kCaution = qRgb(255, 193, 77);
inline constexpr QRgb kDanger = qRgb(255, 112, 102);
} // namespace colour

/// Distances, in device-independent pixels.
namespace space {
inline constexpr int kXs = 4;
inline constexpr int kS = 8;
inline constexpr int kM = 12;
inline constexpr int kL = 16;
inline constexpr int kXl = 24;
} // namespace space

/// Text heights in device-independent pixels, for widgets at their usual size.
namespace type {
inline constexpr int kSmall = 11;
inline constexpr int kLabel = 12;
inline constexpr int kBody = 13; ///< captions of cards as well
inline constexpr int kTitle = 14;
} // namespace type

inline constexpr int kCardRadius = 10;

/// The program's type face at this height.
[[nodiscard]] QFont font(qreal pixels, QFont::Weight weight = QFont::Normal);
/// Fixed pitch, for commands that are to be copied.
[[nodiscard]] QFont monospace(qreal pixels);
/// A colour with its alpha, which QColor's constructor from a QRgb drops.
[[nodiscard]] QColor tone(QRgb rgba, qreal opacity = 1.0);

/// The whole window's sheet; the central widget is "#centralMain".
[[nodiscard]] QString sheet();

/// The surface that a group of figures stands on: all of `card`.
void paintCard(QPainter &painter, const QWidget &card);

/// Text as large as the window has room for, instead of some room between the parts. For the whole program;
/// what is on the screen takes it with its next resize.
void setLargeText(bool large);

/// How much larger than in a window of the usual size captions, margins and axis labels are: the same for the
/// whole window, so that they agree with each other. 1 to 3 in steps of an eighth.
[[nodiscard]] qreal windowScale(const QWidget &widget);

/// How much larger than usual a widget of this size may draw its figures: 1 at `usual`, between 0.8 and 3.
[[nodiscard]] qreal enlargement(const QWidget &widget, qreal usualWidth, qreal usualHeight);

/// A card's caption and the room inside its margins, for a widget that is a card.
struct CardLayout {
    explicit CardLayout(const QWidget &card);
    qreal scale;
    qreal margin;
    qreal captionPixels;
    QRectF captionLine; ///< one line of text, from margin to margin
};

} // namespace zpsg::ui::style
