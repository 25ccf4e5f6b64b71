// On the about page: there is a newer version of the program, what is new in it, and the way to it.
#pragma once

#include "ui/Controls.h"

class QBoxLayout;
class QPushButton;

namespace zpsg::ui {

struct UpdateNews {
    QString version; ///< empty: there is nothing new
    QString notes;   ///< plain text; may be empty
    QString address; ///< of the page that the button leads to
};

class UpdateNotice final : public Card {
    Q_OBJECT

public:
    explicit UpdateNotice(QWidget *parent);

    void showNews(const UpdateNews &news);
    void retranslate();
    void applyScale(qreal scale);

signals:
    void pageRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    UpdateNews news_;
    QLabel *title_;
    QLabel *running_;
    QLabel *notes_;
    QPushButton *open_;
    QBoxLayout *row_;
    QBoxLayout *words_;
};

} // namespace zpsg::ui
