// A drop-down list in the window's style, and one with a step up and down beside it.
#pragma once

#include <QComboBox>
#include <QPushButton>

namespace zpsg::ui {

class Selector final : public QComboBox {
    Q_OBJECT

public:
    explicit Selector(QWidget *parent = nullptr);

    /// The entries; the current one keeps its place.
    void setEntries(const QStringList &texts);
    /// A last row that leaves the list as it was.
    void setBackEntry(const QString &text);
    /// Without a signal; nothing happens for an entry that does not exist.
    void showEntry(int index);
    [[nodiscard]] int entry() const { return entry_; }
    [[nodiscard]] int entries() const { return entries_; }
    /// As if the user had chosen the entry so far away; wraps at the ends.
    void step(int by);
    void applyScale(qreal scale);
    /// As wide as the widest entry needs.
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user has chosen another entry.
    void entryChosen(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void choose(int index);

    int entries_ = 0;
    int entry_ = 0;
};

/// A small button with an arrow that points up (-1) or down (+1).
class UpDownButton final : public QPushButton {
    Q_OBJECT

public:
    UpDownButton(int step, QWidget *parent);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int step_;
};

/// The list, and buttons for the entry before and the one after it.
class StepSelector final : public QWidget {
    Q_OBJECT

public:
    explicit StepSelector(QWidget *parent = nullptr);

    [[nodiscard]] Selector *list() const { return list_; }
    [[nodiscard]] UpDownButton *up() const { return up_; }
    [[nodiscard]] UpDownButton *down() const { return down_; }
    /// What the list is called, for assistive programs.
    void retranslate(const QString &name);
    void applyScale(qreal scale);

private:
    Selector *list_;
    UpDownButton *up_;
    UpDownButton *down_;
};

} // namespace zpsg::ui
