// The receiving end of a title's socket, on the event loop.
#pragma once

#include "platform/WindowMessage.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

namespace zpsg::platform {

/// Accepts connections of this user's processes, hands each one's message to the handler and answers. No
/// client can hold up the loop or the others for long: reads never block, a client that has not sent its
/// message after kClientPatience is dropped, and at most kMostClients are open while the rest waits in the
/// kernel's queue.
class TitleReceiver : public QObject {
public:
    static constexpr int kMostClients = 16;
    static constexpr int kClientPatience = 1000; ///< milliseconds

    /// `listener` stays the caller's and must outlive this. The handler may destroy this object.
    TitleReceiver(int listener, MessageHandler handler);

private:
    class Client;

    void acceptAll();
    void pauseAccepting();

    QSocketNotifier incoming_;
    QTimer resume_;
    MessageHandler handler_;
    int open_ = 0;
};

} // namespace zpsg::platform
