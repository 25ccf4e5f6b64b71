#include "platform/linux/TitlePaths.h"

#include "platform/linux/Log.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace zpsg::platform {
namespace {

constexpr std::string_view kSuffixOfSocket = ".sock";

bool isOwnDirectory(const char *path) {
    struct stat info {};
    return stat(path, &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
           (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool fits(const std::string &directory, const std::string &name) {
    // One byte for the slash, one for the terminating zero.
    return directory.size() + 1 + name.size() + kSuffixOfSocket.size() + 1 <= sizeof(sockaddr_un::sun_path) &&
           name.size() + kSuffixOfSocket.size() <= NAME_MAX;
}

TitlePaths pathsIn(const std::string &directory, const std::string &name) {
    const std::string stem = directory + '/' + name;
    return {stem + ".lock", stem + std::string(kSuffixOfSocket)};
}

} // namespace

bool ensurePrivateDirectory(const std::string &path) {
    if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        qCDebug(lcPlatform, "%s: %s", path.c_str(), std::strerror(errno));
        return false;
    }
    struct stat info {};
    if (lstat(path.c_str(), &info) != 0 || !S_ISDIR(info.st_mode) || info.st_uid != geteuid() ||
        (info.st_mode & ALLPERMS) != S_IRWXU) {
        qCDebug(lcPlatform, "%s: not a directory that belongs to this user alone", path.c_str());
        return false;
    }
    return true;
}

std::string titleFileName(const std::string &title) {
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string name;
    for (const char c : title) {
        if (kPlain.find(c) != std::string_view::npos) {
            name += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        name += '%';
        name += kDigits[byte >> 4U];
        name += kDigits[byte & 0x0FU];
    }
    return name;
}

std::optional<TitlePaths> titlePaths(const std::string &title) {
    const std::string name = titleFileName(title);
    const char *runtime = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
    if (runtime != nullptr && *runtime == '/' && isOwnDirectory(runtime) && fits(runtime, name)) {
        return pathsIn(runtime, name);
    }
    const std::string fallback = "/tmp/zpsg-" + std::to_string(geteuid());
    if (!fits(fallback, name)) {
        qCDebug(lcPlatform, "the title \"%s\" is too long for a socket", title.c_str());
        return std::nullopt;
    }
    if (!ensurePrivateDirectory(fallback)) {
        return std::nullopt;
    }
    return pathsIn(fallback, name);
}

} // namespace zpsg::platform
