// Finds another process's window by its title, sends it numbered messages, and holds this process's own
// title. On Windows these are the window functions themselves. On Linux a title is a socket and a lock per
// user, so that the same contract works on X11, on Wayland and with no display at all.
#pragma once

#include "platform/WindowMessage.h"

#include <chrono>
#include <memory>
#include <string>

namespace zpsg::platform {

/// How a message sent to a window ended.
enum class Delivery {
    NoWindow,   ///< no window bears the title; the message is lost, which is no error
    Handled,    ///< the window answered that it acted on the message
    NotHandled, ///< the window answered that it does not act on it
    NoAnswer,   ///< a window is there but did not answer in time (it may still act later)
};

/// Whether a window (or, on Linux, the process that holds the title) exists. `title` is UTF-8.
bool windowExists(const std::string &title);

/// Sends one message and waits at most `patience` for the answer. Never throws.
/// A title whose holder is still starting counts as there: the wait covers its start-up. Not for a title
/// whose messages the calling thread itself delivers: it would wait for itself.
Delivery sendToWindow(const std::string &title, const WindowMessage &message,
                      std::chrono::milliseconds patience = std::chrono::seconds(5));

/// The exclusive right to a title. Held from before the window exists until destruction; the system releases
/// it when the process dies in whatever way, so there is never a stale one.
class TitleClaim {
public:
    virtual ~TitleClaim() = default;
    TitleClaim(const TitleClaim &) = delete;
    TitleClaim &operator=(const TitleClaim &) = delete;

    /// Hands incoming messages to `handler` on the event loop's thread, beginning with those that arrived
    /// since the claim was made. The handler may destroy the claim. Needs an application object; call on the
    /// loop's thread and destroy the claim there. On Windows messages arrive through the window itself and
    /// this does nothing.
    virtual void deliverTo(MessageHandler handler) = 0;

    /// Takes the title, or gives null when another living process (or claim) has it. Of any number of
    /// simultaneous calls exactly one succeeds. Null while windowExists() says no means that the system
    /// refused altogether (a warning says why), e.g. because there is no directory to trust with the socket.
    /// Needs no application object.
    static std::unique_ptr<TitleClaim> tryTake(const std::string &title);

protected:
    TitleClaim() = default;
};

} // namespace zpsg::platform
