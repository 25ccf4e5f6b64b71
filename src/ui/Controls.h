// What the pages are put together from: the card, the head of a page, the sign of an empty place, and labels.
#pragma once

#include "ui/Icons.h"
#include "ui/Style.h"

#include <QLabel>
#include <QWidget>

namespace zpsg::ui {

/// Of the controls in a row, in a window of the usual size.
inline constexpr qreal kControlHeight = 28.0;

/// Around the card of `widget`, while it has the focus.
void drawFocus(QPainter &painter, const QWidget &widget);

/// The surface that other controls stand on.
class Card : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// A page's title, and below it a line on what the page is for. Without a line it is not there.
class PageHead final : public QWidget {
    Q_OBJECT

public:
    explicit PageHead(QWidget *parent = nullptr);

    void setTexts(const QString &title, const QString &hint);
    [[nodiscard]] QLabel *hint() const { return hint_; }
    void applyScale(qreal scale);

private:
    QLabel *title_;
    QLabel *hint_;
};

/// Stands where there is nothing to show: a sign, what is the matter, and what will change it.
class EmptyState final : public QWidget {
    Q_OBJECT

public:
    EmptyState(Icon icon, QRgb ink, QWidget *parent = nullptr);

    void setTexts(const QString &title, const QString &text);
    void applyScale(qreal scale);

private:
    QWidget *sign_;
    QLabel *title_;
    QLabel *text_;
};

/// One line that is cut in its middle, with the whole as its tip, where there is no room.
class ElidedLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
};

} // namespace zpsg::ui
