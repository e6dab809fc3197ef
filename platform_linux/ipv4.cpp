#include "platform_linux/ipv4.hpp"

#include "platform/run_time_error.hpp"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>

#include <array>

namespace brinewright {

std::string IPv4_Text(in_addr Address) {
    std::array<char, INET_ADDRSTRLEN> Text{};
    ::inet_ntop(AF_INET, &Address, Text.data(), Text.size());
    return Text.data();
}

std::optional<in_addr> Parse_IPv4(const std::string& Text) {
    in_addr Address{};
    if (Text.find('\0') != std::string::npos || ::inet_pton(AF_INET, Text.c_str(), &Address) != 1) {
        return std::nullopt;
    }
    return Address;
}

sockaddr_in IPv4_Address(in_addr Address, std::int32_t Port) {
    sockaddr_in Whole{};
    Whole.sin_family = AF_INET;
    Whole.sin_port = htons(static_cast<std::uint16_t>(Port));
    Whole.sin_addr = Address;
    return Whole;
}

bool Is_Multicast(in_addr Address) { return IN_MULTICAST(ntohl(Address.s_addr)); }

void Require_Port(std::int32_t Port) {
    if (Port >= 1 && Port <= 65535) return;
    throw Run_Time_Error("Port number " + std::to_string(Port) + " is not in the range 1 to 65535.");
}

std::string First_Local_IPv4() {
    std::string Found = "127.0.0.1";
    ifaddrs* All = nullptr;
    if (::getifaddrs(&All) != 0) return Found;
    for (const ifaddrs* Each = All; Each != nullptr; Each = Each->ifa_next) {
        const bool Wanted = Each->ifa_addr != nullptr && Each->ifa_addr->sa_family == AF_INET &&
                            (Each->ifa_flags & IFF_UP) != 0 && (Each->ifa_flags & IFF_LOOPBACK) == 0;
        if (!Wanted) continue;
        Found = IPv4_Text(reinterpret_cast<const sockaddr_in*>(Each->ifa_addr)->sin_addr);
        break;
    }
    ::freeifaddrs(All);
    return Found;
}

} // namespace brinewright
