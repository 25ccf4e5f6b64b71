// A slider for a level in percent.
#pragma once

#include <QSlider>

namespace zpsg::ui {

/// 0 to 100, drawn in the window's style. A click on the track goes to that place.
class LevelSlider final : public QSlider {
    Q_OBJECT

public:
    explicit LevelSlider(QWidget *parent = nullptr);

    /// Without a signal.
    void showLevel(int percent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user has set it.
    void levelChosen(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] qreal knob() const;
    [[nodiscard]] int levelAt(qreal x) const;
};

} // namespace zpsg::ui
