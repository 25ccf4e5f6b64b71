// A small switch between a few views: one segment for each, the chosen one raised and in bold.
#pragma once

#include <QWidget>

#include <vector>

namespace zpsg::ui {

/// Tab reaches the chosen segment, arrow keys choose another one.
class SegmentedControl : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    /// The segments' texts; the same number of them each time, after the first.
    void setTexts(const QStringList &texts);
    [[nodiscard]] int current() const;
    /// Nothing happens for a segment that does not exist.
    void setCurrent(int index);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// Another segment is the chosen one now.
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Segment;
    std::vector<Segment *> segments_;
};

} // namespace zpsg::ui
