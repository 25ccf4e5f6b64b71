// What a tree of widgets paints in letters: every piece of text, where it stands, whose it is, and what is
// wrong with it.
//
// Each visible widget is rendered for itself onto a device that draws nothing and takes down every text that
// reaches its paint engine: labels, buttons, tables, custom painting and the axes of plots alike. What does
// not come as text is not seen: letters within a pixmap or an image (icons, caches), letters drawn as a path,
// and whatever another window shows, be it a menu or a tip. Nor is it known whether a text is hidden behind
// something opaque: only what stands below a widget that covers the whole of it counts as hidden.
#pragma once

#include <QRectF>
#include <QStringList>

#include <vector>

class QWidget;

namespace zpsg::test {

/// Neighbouring pieces of one line in one font are one text, so that digits drawn one by one are a figure.
struct PaintedText {
    QString text;
    const QWidget *widget;
    QRectF ink;   ///< what the letters cover; in coordinates of the tree's root, like all here
    QRectF clip;  ///< what can be seen: of the widget and all above it, and of the painter's own clip
    qreal pixels; ///< height of the font
};

class TextProbe {
public:
    /// The root has to be visible, with its layouts settled; it need not be on a screen.
    explicit TextProbe(QWidget &root);

    [[nodiscard]] const std::vector<PaintedText> &texts() const { return texts_; }

    /// One line for each text that is cut off or elided, that overlaps another, or that nobody can read. A
    /// text that goes on where a scroll bar leads to is not cut off. `names` are the object names of widgets
    /// that may elide what they show: names and paths, which have no longest.
    [[nodiscard]] QStringList faults(const QStringList &names = {}) const;

private:
    void collect(QWidget &widget);

    QWidget &root_;
    std::vector<PaintedText> texts_;
};

} // namespace zpsg::test
