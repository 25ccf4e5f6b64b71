// The way from page to page: a slim rail at the window's left edge, one button a page.
#pragma once

#include "ui/Icons.h"

#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace zpsg::ui {

/// Tab reaches the button of the current page, Up and Down go through the pages, Ctrl+1 and on choose one
/// from anywhere in the window. There is room for seven pages in the least window.
class NavigationRail : public QWidget {
    Q_OBJECT

public:
    explicit NavigationRail(QWidget *parent = nullptr);

    /// A page's button below those that are there. `textKey` is the translation key of its name and has to
    /// outlive the rail. Returns the page's number: 0, 1 ... The first page is current.
    int addPage(Icon icon, const char *textKey);
    /// Marks the page's button without a signal.
    void setCurrent(int page);
    [[nodiscard]] int current() const { return current_; }
    /// A number at the page's sign, "9+" from ten on; 0 takes it away.
    void setBadge(int page, int count);
    /// A dot at the page's sign. `textKey` is the translation key of what it says, with %1 for the page's
    /// name, and has to outlive the rail; null takes the dot away.
    void setNotice(int page, const char *textKey);
    /// To be called when the window's size has changed: the rail may stay as high as it was and yet have to
    /// become wider.
    void fitToWindow();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user asks for a page; not sent for the current one.
    void pageChosen(int page);

protected:
    void changeEvent(QEvent *event) override;

private:
    class Button;
    void choose(int page);

    std::vector<Button *> buttons_;
    QVBoxLayout *layout_;
    int current_ = -1;
    qreal scale_ = 0.0; ///< of the window, as applied
};

} // namespace zpsg::ui
