// The settings page's fields for text: one to write in, and one to copy from.
#pragma once

#include <QLineEdit>

namespace zpsg::ui {

/// While it has no focus, the middle of its text gives way where there is no room.
class SettingsLine : public QLineEdit {
    Q_OBJECT

public:
    explicit SettingsLine(QWidget *parent);

    void applyScale(qreal scale);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRectF room() const;

    qreal scale_ = 1.0;
};

class SettingsEntry final : public SettingsLine {
    Q_OBJECT

public:
    explicit SettingsEntry(QWidget *parent);

    /// A red edge. The words that say what is wrong stand elsewhere.
    void setFaulty(bool faulty);

signals:
    /// The focus has gone elsewhere in the window.
    void left();

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool faulty_ = false;
};

/// Text that can be marked and copied.
class SettingsCopyLine final : public SettingsLine {
    Q_OBJECT

public:
    explicit SettingsCopyLine(QWidget *parent);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace zpsg::ui
