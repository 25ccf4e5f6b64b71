#include "ui/HexEntry.h"

#include "ui/Controls.h"
#include "ui/Style.h"

#include <QEvent>
#include <QRegularExpression>

#include <optional>

namespace zpsg::ui {
namespace {

std::optional<QColor> parsed(const QString &text) {
    static const QRegularExpression form(QStringLiteral("^\\s*#?([0-9A-Fa-f]{6})\\s*$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    return QColor(QLatin1Char('#') + match.captured(1));
}

} // namespace

HexEntry::HexEntry(QWidget *parent) : QLineEdit(parent) {
    setProperty("entry", true);
    setMaxLength(16);
    setText(colour_.name().toUpper());
    connect(this, &QLineEdit::textEdited, this, &HexEntry::edited);
    connect(this, &QLineEdit::returnPressed, this, &HexEntry::finished);
}

void HexEntry::setColour(const QColor &colour) {
    const bool same = colour.rgb() == colour_.rgb();
    colour_ = QColor::fromRgb(colour.rgb());
    if (!same && parsed(text()) != colour_) {
        setText(colour_.name().toUpper());
        setFaulty(false);
    }
}

void HexEntry::edited() {
    setFaulty(false);
    const auto colour = parsed(text());
    if (colour && *colour != colour_) {
        colour_ = *colour;
        emit colourEntered(colour_);
    }
}

void HexEntry::finished() {
    setFaulty(!parsed(text()));
    if (!faulty_) {
        setText(colour_.name().toUpper());
    }
    selectAll();
}

void HexEntry::focusOutEvent(QFocusEvent *event) {
    QLineEdit::focusOutEvent(event);
    setFaulty(!parsed(text()));
    setText(colour_.name().toUpper());
}

void HexEntry::changeEvent(QEvent *event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setFaulty(false);
    }
}

void HexEntry::setFaulty(bool faulty) {
    if (faulty != faulty_) {
        faulty_ = faulty;
        emit faultyChanged(faulty);
    }
}

void HexEntry::applyScale(qreal scale) {
    setFont(style::monospace(style::type::kBody * scale));
    setFixedHeight(qRound(kControlHeight * scale));
    setFixedWidth(qRound(QFontMetricsF(font()).horizontalAdvance(QStringLiteral("#DDDDDD")) + 28.0 * scale));
}

} // namespace zpsg::ui
