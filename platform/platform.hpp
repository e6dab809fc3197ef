#pragma once

#include "platform/clock.hpp"
#include "platform/joystick.hpp"
#include "platform/link_objects.hpp"
#include "platform/random_source.hpp"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

// Small named values that belong to the user and not to a setup: the main window's place, the table of serial
// devices, multicast TTL and interface.
class App_Settings {
  public:
    virtual ~App_Settings() = default;
    virtual std::string Get(const std::string& Key, const std::string& Default) const = 0;
    virtual void Set(const std::string& Key, const std::string& Value) = 0;
};

// Whole files and folders. Every failure is a Run_Time_Error with the system's text.
class Files {
  public:
    virtual ~Files() = default;
    virtual bool Exists(const std::string& Path) const = 0; // a folder of that name exists too
    // Throws as well when the file holds more than Limit_Bytes.
    virtual std::string Read(const std::string& Path, std::size_t Limit_Bytes) const = 0;
    // Writes to a temporary name in the same folder and renames, so that a failure leaves the old file whole.
    virtual void Replace(const std::string& Path, std::string_view Bytes) = 0;
    virtual void Make_Folder(const std::string& Path) = 0; // with its parents; no failure when it exists
};

// Everything that the logic needs of the world around it. One implementation stands on the operating system,
// one (Virtual_Platform) lives in memory and in virtual time.
class Platform {
  public:
    virtual ~Platform() = default;

    Random_Source Random;

    virtual Clock& Time() = 0;
    virtual Files& Disk() = 0;
    virtual App_Settings& Settings() = 0;
    virtual std::unique_ptr<Serial_Port> Make_Serial_Port(int Com_Number) = 0; // 1 to 16
    virtual std::unique_ptr<TCP_Listener> Make_TCP_Listener() = 0;
    virtual std::unique_ptr<UDP_Socket> Make_UDP_Socket() = 0;
    virtual Joystick& Stick() = 0;
    // The device behind a COM number, for the user to read; empty when there is none or it has no name.
    virtual std::string Device_Of(int Com_Number) = 0;
    virtual std::string Local_IP() const = 0; // dotted IPv4 address of this machine
    virtual void Quit() = 0;                  // ends the event loop after the present event
};

} // namespace brinewright
