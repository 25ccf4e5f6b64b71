// A switch with its name and a word on what it does, on a surface of its own.
#pragma once

#include <QWidget>

class QLabel;

namespace zpsg::ui {

class ToggleSwitch;

/// A click anywhere on the card throws the switch.
class WarningCard : public QWidget {
    Q_OBJECT

public:
    explicit WarningCard(QWidget *parent = nullptr);

    void setTexts(const QString &name, const QString &effect);
    /// Without a signal.
    void setOn(bool on);
    [[nodiscard]] ToggleSwitch *toggle() const { return toggle_; }
    void applyScale(qreal scale);

signals:
    /// The user has thrown the switch.
    void thrown(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *name_;
    QLabel *effect_;
    ToggleSwitch *toggle_;
};

} // namespace zpsg::ui
