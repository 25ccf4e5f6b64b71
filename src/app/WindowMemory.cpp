#include "app/WindowMemory.h"

#include "ui/MainView.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>

namespace zpsg::app {
namespace {

/// After the last change, so that dragging an edge is one change.
constexpr std::chrono::seconds kSettles{2};

} // namespace

WindowMemory::WindowMemory(QWidget &window, ui::MainView &view, Settings &settings, QObject *parent)
    : QObject(parent), window_(window), view_(view), settings_(settings) {
    restore();
    settled_.setSingleShot(true);
    settled_.setInterval(kSettles);
    connect(&settled_, &QTimer::timeout, this, &WindowMemory::save);
    connect(&view_, &ui::MainView::pageShown, &settled_, qOverload<>(&QTimer::start));
    window_.installEventFilter(this);
}

WindowMemory::~WindowMemory() { save(); }

void WindowMemory::restore() {
    QSize size(settings_.integer(Setting::WindowWidth), settings_.integer(Setting::WindowHeight));
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        size = size.boundedTo(screen->availableSize());
    }
    window_.resize(size.expandedTo(ui::MainView::kMinimumSize));
    view_.showPage(static_cast<ui::MainView::Page>(settings_.integer(Setting::WindowPage)));
}

void WindowMemory::save() {
    settled_.stop();
    const int page = static_cast<int>(view_.page());
    const QSize size = window_.size();
    if (size.width() != settings_.integer(Setting::WindowWidth) ||
        size.height() != settings_.integer(Setting::WindowHeight) ||
        page != settings_.integer(Setting::WindowPage)) {
        settings_.write({{Setting::WindowWidth, size.width()},
                         {Setting::WindowHeight, size.height()},
                         {Setting::WindowPage, page}});
    }
}

bool WindowMemory::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize && window_.isVisible()) {
        settled_.start();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zpsg::app
