#pragma once

#include <netinet/in.h>

#include <cstdint>
#include <optional>
#include <string>

namespace brinewright {

std::string IPv4_Text(in_addr Address);
std::optional<in_addr> Parse_IPv4(const std::string& Text); // four decimal numbers, nothing else
sockaddr_in IPv4_Address(in_addr Address, std::int32_t Port);
bool Is_Multicast(in_addr Address); // 224.0.0.0 to 239.255.255.255

// Throws Run_Time_Error unless Port is 1 to 65535.
void Require_Port(std::int32_t Port);

// The first address of this machine that is not a loopback one, 127.0.0.1 when there is none.
std::string First_Local_IPv4();

} // namespace brinewright
