#include "ui/MainView.h"

#include "ui/DashboardPage.h"
#include "ui/Style.h"
#include "ui/TitleBar.h"
#include "ui/WindowFrame.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace zpsg::ui {

MainView::MainView(QWidget *parent)
    : QWidget(parent)
    , titleBar_(new TitleBar(this))
    , pages_(new QStackedWidget(this))
    , dashboard_(new DashboardPage(pages_)) {
    setObjectName(QStringLiteral("centralMain"));
    setAttribute(Qt::WA_StyledBackground);
    setFont(style::font(style::type::kBody));
    setMinimumSize(kMinimumSize);
    pages_->addWidget(dashboard_);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1); // the edge
    layout->setSpacing(0);
    layout->addWidget(titleBar_);
    layout->addWidget(pages_, 1);

    // The window opens with no control marked; the first Tab marks one.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();

    new WindowFrame(this);
    setStyleSheet(style::sheet());
}

void MainView::setMainEnabled(bool enabled) { dashboard_->setContentEnabled(enabled); }

} // namespace zpsg::ui
