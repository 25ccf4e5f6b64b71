#include "platform/Terminal.h"

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zpsg::platform {

void attachToTerminal() {} // every program here has its parent's

bool isTerminal(std::FILE *stream) { return isatty(fileno(stream)) == 1; }

bool prepareForData(std::FILE *stream) {
    std::signal(SIGPIPE, SIG_IGN);
    const int descriptor = fileno(stream);
    struct stat about {};
    const int flags = fcntl(descriptor, F_GETFL);
    // A process that is started with the stream closed gets its number for the next thing it opens. That is
    // an event queue or the like, which has no file type, or a file to read from.
    return flags >= 0 && (flags & O_ACCMODE) != O_RDONLY && fstat(descriptor, &about) == 0 &&
           (about.st_mode & S_IFMT) != 0;
}

} // namespace zpsg::platform
