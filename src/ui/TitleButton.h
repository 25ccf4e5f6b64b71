// A button of the title bar: a vector sign that answers to the pointer, the press and the keyboard's focus.
#pragma once

#include "ui/Icons.h"

#include <QAbstractButton>

namespace zpsg::ui {

class TitleButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `hover` is the surface under the sign while the pointer is on it.
    TitleButton(Icon icon, const QColor &hover, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    Icon icon_;
    QColor hover_;
};

} // namespace zpsg::ui
