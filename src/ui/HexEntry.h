// A colour as text: #RRGGBB.
#pragma once

#include <QColor>
#include <QLineEdit>

namespace zpsg::ui {

/// Six digits are taken as they are typed, with the # or without it. Anything else leaves the colour what it
/// was.
class HexEntry final : public QLineEdit {
    Q_OBJECT

public:
    explicit HexEntry(QWidget *parent = nullptr);

    /// Without a signal. What is being typed stays when it says the same.
    void setColour(const QColor &colour);
    [[nodiscard]] bool isFaulty() const { return faulty_; }
    void applyScale(qreal scale);

signals:
    void colourEntered(const QColor &colour);
    /// What was entered is no colour; or, again, nothing is wrong.
    void faultyChanged(bool faulty);

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void edited();
    void finished();
    void setFaulty(bool faulty);

    QColor colour_{Qt::black};
    bool faulty_ = false;
};

} // namespace zpsg::ui
