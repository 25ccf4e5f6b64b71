// Host look-up by the interface that both systems have, for the file that has included its headers.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace zpsg::platform {

inline std::vector<std::string> addressTexts(const std::string &name) {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    if (getaddrinfo(name.c_str(), nullptr, &hints, &found) != 0) {
        return {};
    }
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(found, &freeaddrinfo);
    std::vector<std::string> addresses;
    for (const addrinfo *entry = found; entry != nullptr; entry = entry->ai_next) {
        std::array<char, NI_MAXHOST> text{};
        if (getnameinfo(entry->ai_addr, static_cast<socklen_t>(entry->ai_addrlen), text.data(), text.size(),
                        nullptr, 0, NI_NUMERICHOST) == 0) {
            addresses.emplace_back(text.data());
        }
    }
    return addresses;
}

} // namespace zpsg::platform
