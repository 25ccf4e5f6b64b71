// A line on how something is, with a sign before it; wraps, and is not there while it has nothing to say.
#pragma once

#include <QWidget>

class QLabel;

namespace zpsg::ui {

class SettingsStatusLine final : public QWidget {
    Q_OBJECT

public:
    enum class Sign { None, Info, Good, Caution, Problem };

    explicit SettingsStatusLine(QWidget *parent);

    void showText(const QString &text, Sign sign);
    /// Its text can be marked and copied, and Tab stops at it.
    void setSelectable();
    [[nodiscard]] QLabel *label() const { return label_; }
    void applyScale(qreal scale);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();

    QLabel *label_;
    Sign sign_ = Sign::None;
    qreal scale_ = 1.0;
};

} // namespace zpsg::ui
