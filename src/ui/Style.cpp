#include "ui/Style.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace zpsg::ui::style {
namespace {

QString css(QRgb rgba) {
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(qRed(rgba))
        .arg(qGreen(rgba))
        .arg(qBlue(rgba))
        .arg(qAlpha(rgba));
}

constexpr QSize kUsualWindow{1100, 720};
/// In which everything has room at a scale of 1.
constexpr QSize kLeastWindow{960, 620};

bool &largeText() {
    static bool large = false;
    return large;
}

} // namespace

void setLargeText(bool large) { largeText() = large; }

QFont font(qreal pixels, QFont::Weight weight) {
    static const QStringList families{QStringLiteral("Inter"), QStringLiteral("Segoe UI"),
                                      QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")};
    QFont result;
    result.setFamilies(families);
    result.setPixelSize(std::max(1, qRound(pixels)));
    result.setWeight(weight);
    return result;
}

QFont monospace(qreal pixels) {
    static const QStringList families{QStringLiteral("Cascadia Mono"), QStringLiteral("Consolas"),
                                      QStringLiteral("Noto Sans Mono"), QStringLiteral("DejaVu Sans Mono")};
    QFont result;
    result.setFamilies(families);
    result.setStyleHint(QFont::Monospace);
    result.setPixelSize(std::max(1, qRound(pixels)));
    return result;
}

QColor tone(QRgb rgba, qreal opacity) {
    QColor result = QColor::fromRgba(rgba);
    result.setAlphaF(result.alphaF() * opacity);
    return result;
}

QString sheet() {
    return QStringLiteral(
               "#centralMain { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgb(30,30,30),"
               " stop:1 black); border: 1px solid rgb(184,184,183); }"
               "QLabel { color: %1; }"
               "QLabel[tone=\"secondary\"] { color: %2; }"
               "QLabel[tone=\"tertiary\"] { color: %3; }"
               "QLabel#lblRemedy { color: %1; background: rgba(0,0,0,110); border: 1px solid %4;"
               " border-radius: 6px; padding: 6px 10px; selection-background-color: %5; }"
               "QLabel#lblDemo { color: %6; border: 1px solid %6; border-radius: 11px; padding: 2px 11px 3px "
               "11px; }"
               "QPushButton { color: %1; background: rgba(255,255,255,18); border: 1px solid "
               "rgba(255,255,255,40);"
               " border-radius: 6px; padding: 5px 14px; }"
               "QPushButton:hover { background: rgba(255,255,255,32); }"
               "QPushButton:pressed { background: rgba(255,255,255,10); }"
               "QPushButton:focus { border-color: %7; }"
               "QPushButton:disabled { color: %8; background: transparent;"
               " border-color: rgba(255,255,255,22); }"
               "QPushButton[slim=\"true\"] { padding: 0 10px; }"
               "QPushButton[primary=\"true\"] { background: %5; border-color: rgba(255,255,255,52); }"
               "QPushButton[primary=\"true\"]:hover { background: rgb(27,100,190); }"
               "QPushButton[primary=\"true\"]:pressed { background: rgb(22,86,164); }"
               "QPushButton[primary=\"true\"]:focus { border-color: %7; }"
               "QPushButton[primary=\"true\"]:disabled { background: transparent;"
               " border-color: rgba(255,255,255,22); }"
               "QLabel[tone=\"caution\"] { color: %6; }"
               "QLabel[figure=\"true\"]:disabled { color: %8; }"
               "QLineEdit[entry=\"true\"] { color: %1; background: rgba(255,255,255,18); border: 1px solid"
               " rgba(255,255,255,40); border-radius: 6px; padding: 0 8px; selection-background-color: %5;"
               " lineedit-password-character: 8226; }"
               "QLineEdit[entry=\"true\"]:focus { border-color: %7; }"
               "QLineEdit[entry=\"true\"]:disabled { color: %8; background: transparent;"
               " border-color: rgba(255,255,255,22); }"
               "QComboBox { color: %1; background: rgba(255,255,255,18); border: 1px solid"
               " rgba(255,255,255,40); border-radius: 6px; padding: 0 4px; }"
               "QComboBox:hover { background: rgba(255,255,255,32); }"
               "QComboBox:focus { border-color: %7; }"
               "QComboBox:disabled { background: transparent; border-color: rgba(255,255,255,22); }"
               "QComboBox { combobox-popup: 0; }" // a list below, no menu above
               "QComboBox::drop-down { border: none; width: 0; }"
               "QComboBox QAbstractItemView { background: rgb(44,48,53); outline: none;"
               " border: 1px solid rgb(80,86,92); padding: 4px; }"
               // where the desktop has no dialog of its own
               "QFileDialog { background: rgb(36,39,43); }"
               "QFileDialog QAbstractItemView, QFileDialog QLineEdit { color: %1; background: rgb(24,26,29);"
               " selection-background-color: %5; }"
               "QFileDialog QHeaderView::section { color: %2; background: rgb(36,39,43); border: none; }"
               "QFileDialog QToolButton { background: %2; }"
               "QTableView { background: transparent; border: none; outline: none;"
               " selection-background-color: transparent; }"
               "QHeaderView { background: transparent; border: none; }"
               "QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }"
               "QScrollBar::handle:vertical { background: rgba(255,255,255,56); border-radius: 4px;"
               " margin: 0 2px; min-height: 36px; }"
               "QScrollBar::handle:vertical:hover { background: rgba(255,255,255,96); }"
               "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
               "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }"
               "QToolTip { color: %1; background: rgb(44,48,53); border: 1px solid rgb(80,86,92); padding: "
               "4px 6px; }")
        .arg(css(colour::kText), css(colour::kTextSecondary), css(colour::kTextTertiary),
             css(colour::kCardEdge), css(colour::kAccentDeep), css(colour::kCaution), css(colour::kAccent),
             css(colour::kStale));
}

void paintCard(QPainter &painter, const QWidget &card) {
    const qreal radius = kCardRadius * windowScale(card);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(tone(colour::kCardEdge), 1.0));
    painter.setBrush(tone(colour::kCard));
    painter.drawRoundedRect(QRectF(card.rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

qreal windowScale(const QWidget &widget) {
    const QSize window = widget.window()->size();
    const QSizeF usual = largeText() ? QSizeF(kLeastWindow) : QSizeF(kUsualWindow);
    const qreal fit = std::min(window.width() / usual.width(), window.height() / usual.height());
    return std::floor(std::clamp(fit, 1.0, 3.0) * 8.0) / 8.0;
}

qreal enlargement(const QWidget &widget, qreal usualWidth, qreal usualHeight) {
    return std::clamp(std::min(widget.width() / usualWidth, widget.height() / usualHeight), 0.8, 3.0);
}

CardLayout::CardLayout(const QWidget &card)
    : scale(windowScale(card))
    , margin(space::kM * scale)
    , captionPixels(type::kBody * scale)
    , captionLine(margin, margin - 2.0 * scale, card.width() - 2.0 * margin, captionPixels * 1.5) {}

} // namespace zpsg::ui::style
