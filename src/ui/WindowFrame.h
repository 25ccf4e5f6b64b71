// Edges by which a frameless window is resized.
#pragma once

#include <QObject>
#include <QVector>

class QWidget;

namespace zpsg::ui {

/// Lays thin invisible grips over the edges and corners of `host`, which fills its window, and keeps them
/// there. The host owns this object.
class WindowFrame : public QObject {
    Q_OBJECT

public:
    /// Thickness of an edge, and the length of a corner along it, in device-independent pixels.
    static constexpr int kThickness = 5;
    static constexpr int kCorner = 14;

    explicit WindowFrame(QWidget *host);

    [[nodiscard]] const QVector<QWidget *> &grips() const { return grips_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *host_;
    QVector<QWidget *> grips_;
};

} // namespace zpsg::ui
