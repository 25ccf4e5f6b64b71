#include "ui/WindowFrame.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace zpsg::ui {
namespace {

Qt::CursorShape cursorFor(Qt::Edges edges) {
    if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge)) {
        return Qt::SizeBDiagCursor;
    }
    return (edges & (Qt::LeftEdge | Qt::RightEdge)) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

class Grip : public QWidget {
public:
    Grip(Qt::Edges edges, QWidget *parent) : QWidget(parent), edges_(edges) { setCursor(cursorFor(edges)); }

    void place(const QRect &host) {
        constexpr int kThin = WindowFrame::kThickness;
        constexpr int kLong = WindowFrame::kCorner;
        const bool corner =
            (edges_ & (Qt::LeftEdge | Qt::RightEdge)) && (edges_ & (Qt::TopEdge | Qt::BottomEdge));
        QRect area = host;
        if (edges_ & Qt::LeftEdge) {
            area.setWidth(corner ? kLong : kThin);
        } else if (edges_ & Qt::RightEdge) {
            area.setLeft(host.right() + 1 - (corner ? kLong : kThin));
        }
        if (edges_ & Qt::TopEdge) {
            area.setHeight(kThin);
        } else if (edges_ & Qt::BottomEdge) {
            area.setTop(host.bottom() + 1 - kThin);
        }
        setGeometry(area);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override {
        QWindow *handle = window()->windowHandle();
        if (event->button() == Qt::LeftButton && handle != nullptr) {
            handle->startSystemResize(edges_);
        }
    }

private:
    Qt::Edges edges_;
};

} // namespace

WindowFrame::WindowFrame(QWidget *host) : QObject(host), host_(host) {
    // Corners last: they lie above the edges.
    for (const Qt::Edges edges :
         {Qt::Edges(Qt::LeftEdge), Qt::Edges(Qt::RightEdge), Qt::Edges(Qt::TopEdge),
          Qt::Edges(Qt::BottomEdge), Qt::TopEdge | Qt::LeftEdge, Qt::TopEdge | Qt::RightEdge,
          Qt::BottomEdge | Qt::LeftEdge, Qt::BottomEdge | Qt::RightEdge}) {
        grips_ << new Grip(edges, host);
    }
    host->installEventFilter(this);
    place();
}

void WindowFrame::place() {
    for (QWidget *grip : qAsConst(grips_)) {
        static_cast<Grip *>(grip)->place(host_->rect());
        grip->raise();
    }
}

bool WindowFrame::eventFilter(QObject *watched, QEvent *event) {
    if (watched == host_ && (event->type() == QEvent::Resize || event->type() == QEvent::Show)) {
        place();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zpsg::ui
