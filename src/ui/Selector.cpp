#include "ui/Selector.h"

#include "ui/Controls.h"
#include "ui/Style.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QStylePainter>

#include <algorithm>
#include <cmath>

namespace zpsg::ui {
namespace {

namespace colour = style::colour;

/// All in a window of the usual size.
constexpr qreal kChevron = 8.0;
constexpr qreal kStepWidth = 24.0;
constexpr qreal kRow = 24.0;
/// Beside the text of a closed list: its edge, and what says that it opens.
constexpr qreal kBefore = 10.0;
constexpr qreal kAfter = 22.0;

/// `step`: -1 points up, +1 down.
void drawChevron(QPainter &painter, const QPointF &centre, qreal side, int step, const QColor &ink) {
    const qreal depth = 0.22 * side * step;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 0.18 * side, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({centre + QPointF(-0.42 * side, -depth), centre + QPointF(0.0, depth),
                                    centre + QPointF(0.42 * side, -depth)}));
}

/// The rows of the open list; a line divides the one that leads back from the entries.
class Rows : public QStyledItemDelegate {
public:
    explicit Rows(Selector *selector) : QStyledItemDelegate(selector), selector_(*selector) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem & /*option*/,
                                 const QModelIndex &index) const override {
        const qreal scale = style::windowScale(selector_);
        const qreal words = QFontMetricsF(selector_.font()).horizontalAdvance(index.data().toString());
        return QSizeF(words + 20.0 * scale, kRow * scale).toSize();
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override {
        const qreal scale = style::windowScale(selector_);
        const bool back = index.row() >= selector_.entries();
        const bool marked = option.state.testFlag(QStyle::State_Selected);
        const QRectF row(option.rect);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (marked) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(style::tone(colour::kAccentDeep));
            painter->drawRoundedRect(row, 4.0 * scale, 4.0 * scale);
        }
        if (back) {
            painter->setPen(QPen(style::tone(colour::kText, 0.2), 1.0));
            painter->drawLine(row.topLeft(), row.topRight());
        }
        painter->setFont(selector_.font());
        painter->setPen(style::tone(back && !marked ? colour::kTextSecondary : colour::kText));
        const QRectF words = row.adjusted(6.0 * scale, 0.0, -6.0 * scale, 0.0);
        painter->drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                          QFontMetricsF(selector_.font())
                              .elidedText(index.data().toString(), Qt::ElideRight, words.width()));
        painter->restore();
    }

private:
    const Selector &selector_;
};

} // namespace

Selector::Selector(QWidget *parent) : QComboBox(parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(5);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setItemDelegate(new Rows(this));
    setMaxVisibleItems(24); // the whole list of effects
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &Selector::choose);
}

void Selector::setEntries(const QStringList &texts) {
    const QSignalBlocker quiet(this);
    clear();
    addItems(texts);
    entries_ = texts.size();
    setCurrentIndex(entry_);
    updateGeometry();
}

void Selector::setBackEntry(const QString &text) {
    const QSignalBlocker quiet(this);
    addItem(QStringLiteral("\u2039  ") + text);
}

void Selector::showEntry(int index) {
    if (index >= 0 && index < entries_) {
        entry_ = index;
        setCurrentIndex(index);
    }
}

void Selector::choose(int index) {
    if (index < 0 || index >= entries_ || index == entry_) {
        setCurrentIndex(entry_); // the row that leads back
        return;
    }
    entry_ = index;
    setCurrentIndex(index);
    emit entryChosen(index);
}

void Selector::step(int by) {
    if (entries_ > 0) {
        choose(((entry_ + by) % entries_ + entries_) % entries_);
    }
}

void Selector::keyPressEvent(QKeyEvent *event) {
    const bool plain = !event->modifiers().testFlag(Qt::AltModifier);
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (plain) {
            const int to = entry_ + (event->key() == Qt::Key_Up ? -1 : 1);
            if (to >= 0 && to < entries_) {
                choose(to);
            }
            return;
        }
        break;
    case Qt::Key_Home:
        choose(0);
        return;
    case Qt::Key_End:
        choose(entries_ - 1); // not the row that leads back
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        showPopup();
        return;
    default:
        break;
    }
    QComboBox::keyPressEvent(event);
}

// One that the pointer only happens to be on must not change while the user scrolls.
void Selector::wheelEvent(QWheelEvent *event) { event->ignore(); }

void Selector::paintEvent(QPaintEvent * /*event*/) {
    const qreal scale = style::windowScale(*this);
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = QString();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRectF words = QRectF(rect()).adjusted(kBefore * scale, 0.0, -kAfter * scale, 0.0);
    painter.setPen(style::tone(isEnabled() ? colour::kText : colour::kStale));
    painter.setFont(font());
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font()).elidedText(currentText(), Qt::ElideRight, words.width()));
    drawChevron(painter, {width() - 13.0 * scale, height() / 2.0}, kChevron * scale, 1,
                style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
}

QSize Selector::minimumSizeHint() const {
    const QFontMetricsF metrics(font());
    qreal widest = 0.0;
    for (int i = 0; i < entries_; ++i) {
        widest = std::max(widest, metrics.horizontalAdvance(itemText(i)));
    }
    const qreal edges = (kBefore + kAfter) * style::windowScale(*this);
    return {static_cast<int>(std::ceil(widest + edges)), QComboBox::minimumSizeHint().height()};
}

void Selector::applyScale(qreal scale) {
    setFont(style::font(style::type::kBody * scale));
    setFixedHeight(qRound(kControlHeight * scale));
    updateGeometry();
}

UpDownButton::UpDownButton(int step, QWidget *parent) : QPushButton(parent), step_(step) {
    setProperty("slim", true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize UpDownButton::sizeHint() const {
    return (QSizeF(kStepWidth, kControlHeight) * style::windowScale(*this)).toSize();
}

void UpDownButton::paintEvent(QPaintEvent *event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    drawChevron(painter, QRectF(rect()).center(), 1.15 * kChevron * style::windowScale(*this), step_,
                style::tone(isEnabled() ? colour::kText : colour::kStale));
}

StepSelector::StepSelector(QWidget *parent)
    : QWidget(parent)
    , list_(new Selector(this))
    , up_(new UpDownButton(-1, this))
    , down_(new UpDownButton(1, this)) {
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(list_, 1);
    row->addWidget(up_);
    row->addWidget(down_);
    connect(up_, &QPushButton::clicked, list_, [this] { list_->step(-1); });
    connect(down_, &QPushButton::clicked, list_, [this] { list_->step(1); });
}

void StepSelector::retranslate(const QString &name) {
    list_->setAccessibleName(name);
    for (const auto &[button, text] :
         {std::pair(up_, qtTrId("LIGHTING_PREVIOUS")), std::pair(down_, qtTrId("LIGHTING_NEXT"))}) {
        button->setAccessibleName(QStringLiteral("%1: %2").arg(name, text));
        button->setToolTip(text);
    }
}

void StepSelector::applyScale(qreal scale) {
    layout()->setSpacing(qRound(3.0 * scale));
    list_->applyScale(scale);
    for (UpDownButton *button : {up_, down_}) {
        button->setFixedSize(button->sizeHint());
    }
}

} // namespace zpsg::ui
