// A polite request of the system to end: SIGINT, SIGTERM and SIGHUP, or the console's close events.
#pragma once

#include <functional>

namespace zpsg::platform {

/// Calls `handler` on the event loop's thread at each request, from now on. A second SIGINT or SIGTERM
/// (Ctrl+C on Windows) before the handler has returned from the first ends the process at once, with exit
/// code 128 plus the signal's number. A hangup never does that, because a closing session sends several;
/// under nohup hangups stay ignored. Needs an application object; call once per process.
void onExitRequest(std::function<void()> handler);

} // namespace zpsg::platform
