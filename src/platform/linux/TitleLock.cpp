#include "platform/linux/TitleLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace zpsg::platform {
namespace {

// The XDG rules let a cleaner remove old files of the runtime directory unless they are sticky.
constexpr mode_t kKeptByCleaners = S_ISVTX | S_IRUSR | S_IWUSR;

// Locks of the open file description, because unlike flock they can be looked at without being taken, and
// unlike plain fcntl locks they exclude a second claim in the same process.
struct flock wholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

bool namesTheSameFile(const std::string &path, int fd) {
    struct stat byName {};
    struct stat byDescriptor {};
    return lstat(path.c_str(), &byName) == 0 && fstat(fd, &byDescriptor) == 0 &&
           byName.st_dev == byDescriptor.st_dev && byName.st_ino == byDescriptor.st_ino;
}

} // namespace

FileDescriptor takeTitleLock(const std::string &path) {
    for (;;) {
        FileDescriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
        if (!file) {
            return file;
        }
        struct flock lock = wholeFile();
        if (fcntl(file.get(), F_OFD_SETLK, &lock) != 0) {
            if (errno == EACCES) {
                errno = EAGAIN; // both mean that the lock is taken
            }
            const int reason = errno;
            file = FileDescriptor();
            errno = reason;
            return file;
        }
        // Somebody may have removed the file between the two calls; a lock on it would exclude nobody.
        if (namesTheSameFile(path, file.get())) {
            fchmod(file.get(), kKeptByCleaners);
            return file;
        }
    }
}

bool titleLockHeld(const std::string &path) {
    const FileDescriptor file(open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
    struct flock lock = wholeFile();
    return file && fcntl(file.get(), F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

} // namespace zpsg::platform
