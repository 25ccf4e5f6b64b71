#include "ui/TrendView.h"

#include "ui/Figures.h"
#include "ui/Style.h"
#include "ui/TrendPlot.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace zpsg::ui {

namespace colour = style::colour;

TrendView::TrendView(QWidget *parent)
    : Readout(parent), plot_(new TrendPlot(this)), empty_(new QLabel(this)) {
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    empty_->setAttribute(Qt::WA_TransparentForMouseEvents);
    empty_->setProperty("tone", QStringLiteral("tertiary"));
    empty_->hide();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TrendView::setReserved(int pixels) {
    if (pixels != reserved_) {
        reserved_ = pixels;
        updateCaptionLine();
    }
}

void TrendView::refresh() {
    if (isVisible()) {
        replot();
    }
}

void TrendView::updateCaptionLine() { update(style::CardLayout(*this).captionLine.toAlignedRect()); }

void TrendView::setEmptyText(const QString &text) { empty_->setText(text); }

void TrendView::showEmptyText(bool shown) {
    empty_->setVisible(shown);
    plot_->setVisible(!shown);
}

QRect TrendView::room() const {
    const style::CardLayout card(*this);
    const int left = qRound(card.margin);
    const int gap = qRound(style::space::kS * card.scale);
    const int top = qRound(card.captionLine.bottom()) + gap;
    return {left, top, width() - 2 * left, height() - top - gap};
}

QList<double> TrendView::levels(double top) const {
    const qreal label = style::type::kSmall * style::windowScale(*this) * 1.3;
    const qreal high = plotPlace(room()).height() - label - style::space::kS;
    if (high >= 4.0 * label) {
        return quarters(top);
    }
    return high >= 2.0 * label ? QList<double>{0.0, 0.5 * top, top} : QList<double>{0.0, top};
}

void TrendView::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    replot();
}

void TrendView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const style::CardLayout card(*this);
    plot_->setScale(card.scale);
    const QRect place = plotPlace(room());
    plot_->setGeometry(place);
    empty_->setFont(style::font(style::type::kBody * card.scale));
    empty_->setGeometry(place);
    layOut(card.scale);
    refresh();
}

void TrendView::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refresh();
        update();
    } else if (event->type() == QEvent::EnabledChange) {
        refresh();
        update();
    }
}

void TrendView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    style::paintCard(painter, *this);
    const style::CardLayout card(*this);
    const QRectF line = card.captionLine.adjusted(0.0, 0.0, -reserved_, 0.0);
    const QString caption = captionText();
    const QFont captionFont = style::font(card.captionPixels, QFont::Medium);
    painter.setFont(captionFont);
    painter.setPen(style::tone(isEnabled() ? colour::kTextSecondary : colour::kStale));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, caption);
    const QString summary = summaryText();
    const qreal space =
        line.width() - QFontMetricsF(captionFont).horizontalAdvance(caption) - style::space::kXl;
    painter.setPen(style::tone(colour::kTextTertiary));
    painter.setFont(fittingFont(style::font(style::type::kLabel * card.scale), summary, space));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, summary);
}

} // namespace zpsg::ui
