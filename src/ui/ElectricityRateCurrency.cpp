#include "ui/ElectricityRateCurrency.h"

#include "ui/Controls.h"
#include "ui/ElectricityRateText.h"
#include "ui/Figures.h"
#include "ui/Style.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// In a window of the usual size, pixels.
constexpr qreal kWidth = 92.0;
constexpr int kArrow = 24;

QString sheet(qreal scale) {
    return QStringLiteral("QComboBox { padding: 0 0 0 4px; }"
                          "QComboBox::drop-down { border: none; width: %1px; }"
                          "QComboBox QLineEdit { background: transparent; border: none; padding: 0;"
                          " color: rgb(243,245,247); selection-background-color: rgb(30,110,204); }"
                          "QComboBox QAbstractItemView { color: rgb(243,245,247); }"
                          "QComboBox QAbstractItemView::item { min-height: %2px; padding: 0 6px; }"
                          "QComboBox QAbstractItemView::item:selected { background: rgb(30,110,204); }")
        .arg(qRound(kArrow * scale))
        .arg(qRound(24.0 * scale));
}

} // namespace

ElectricityRateCurrency::ElectricityRateCurrency(QWidget *parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(12);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[A-Za-z]{0,3}")), this));
    lineEdit()->setMaxLength(3);
    connect(this, &QComboBox::currentTextChanged, this, &ElectricityRateCurrency::changed);
}

void ElectricityRateCurrency::setCode(const QString &code) {
    const QSignalBlocker quiet(this);
    QStringList codes = commonCurrencies();
    const QString wanted = code.isEmpty() ? codes.constFirst() : code.toUpper();
    if (!codes.contains(wanted)) {
        codes.prepend(wanted);
    }
    clear();
    addItems(codes);
    setCurrentText(wanted);
    setCurrentIndex(codes.indexOf(wanted));
}

QString ElectricityRateCurrency::code() const {
    const QString typed = currentText().trimmed().toUpper();
    return typed.size() == 3 ? typed : QString();
}

QString ElectricityRateCurrency::fault() const {
    return code().isEmpty() ? qtTrId("RATE_STR_FAULT_CURRENCY").arg(commonCurrencies().constFirst())
                            : QString();
}

void ElectricityRateCurrency::applyScale(qreal scale) {
    const QString wanted = sheet(scale);
    if (wanted != styleSheet()) {
        setStyleSheet(wanted);
    }
    setFont(style::font(style::type::kBody * scale));
    lineEdit()->setFont(font()); // a style sheet keeps the one from the other
    view()->setFont(font());
    setFixedSize(qRound(kWidth * scale), qRound(kControlHeight * scale));
}

void ElectricityRateCurrency::paintEvent(QPaintEvent *event) {
    QComboBox::paintEvent(event);
    const qreal scale = style::windowScale(*this);
    const qreal side = 3.6 * scale;
    const QPointF tip(width() - kArrow * scale / 2.0, height() / 2.0 + side / 2.0);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(style::tone(colour::kTextSecondary), 1.4 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({tip + QPointF(-side, -side), tip, tip + QPointF(side, -side)}));
}

// One that the pointer only happens to be on must not change while the user scrolls.
void ElectricityRateCurrency::wheelEvent(QWheelEvent *event) { event->ignore(); }

} // namespace zpsg::ui
