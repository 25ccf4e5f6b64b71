// What makes a widget a pop-up inside its parent: it covers the parent, keeps the focus, and goes again.
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace zpsg::ui {

class FanOverlay : public QObject {
    Q_OBJECT

public:
    /// `cover` is laid over its whole parent; `card` is what of it the pop-up is. Owned by the cover.
    FanOverlay(QWidget *cover, QWidget *card);

    /// Shows the cover and gives the focus to `first`.
    void open(QWidget *first);
    /// Hides it; the focus returns to where it was.
    void close();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Escape, or a press beside the card.
    void dismissed();
    /// The parent's size, and with it the cover's, is another one.
    void resized();

private:
    void coverParent();
    /// The Tab key must not reach what is covered.
    void keepFocus(QWidget *before, QWidget *now);

    QWidget *cover_;
    QWidget *card_;
    QPointer<QWidget> first_;
    QPointer<QWidget> before_; ///< had the focus
};

} // namespace zpsg::ui
