// The frameless window's title bar.
#pragma once

#include <QPoint>
#include <QWidget>

class QAbstractButton;
class QLabel;

namespace zpsg::ui {

/// Moves its window when dragged. A double click does nothing: the window has no maximised state.
class TitleBar : public QWidget {
    Q_OBJECT

public:
    explicit TitleBar(QWidget *parent = nullptr);

    void setVersionText(const QString &text);
    /// Whether closing leaves the program in the tray; without one it is minimised, and the button says so.
    void setTrayAvailable(bool available);

signals:
    /// The button was pressed and let go on it; letting go beside it takes the press back.
    void minimiseReleased();
    void closeReleased();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslate();
    void applyScale();
    void takeWindowIcon();

    QLabel *icon_;
    QLabel *title_;
    QLabel *version_;
    QAbstractButton *minimise_;
    QAbstractButton *close_;
    QPoint pressedAt_;
    bool pressed_ = false;
    bool trayAvailable_ = true;
    qreal scale_ = 0.0; ///< of the window, as applied
};

} // namespace zpsg::ui
