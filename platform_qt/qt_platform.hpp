#pragma once

#include "platform/platform.hpp"
#include "platform_linux/com_table.hpp"
#include "platform_linux/disk_files.hpp"
#include "platform_linux/machine_clock.hpp"
#include "platform_qt/ini_settings.hpp"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace brinewright {

struct Qt_Platform_Options {
    std::string Settings_File = Default_Settings_File();
    std::map<int, std::string> Com_Devices; // take the place of the kept table for this run, and are not kept
    std::optional<std::uint64_t> Seed;      // of the random draws; none: another one each time
    Device_Roots Devices;
};

// The program on the operating system, in real time. Needs a QCoreApplication. Links that it made must not
// outlive it.
class Qt_Platform final : public Platform {
  public:
    explicit Qt_Platform(Qt_Platform_Options Chosen);

    Clock& Time() override { return Machine; }
    Files& Disk() override { return Its_Files; }
    App_Settings& Settings() override { return Its_Settings; }
    std::unique_ptr<Serial_Port> Make_Serial_Port(int Com_Number) override;
    std::unique_ptr<TCP_Listener> Make_TCP_Listener() override;
    std::unique_ptr<UDP_Socket> Make_UDP_Socket() override;
    Joystick& Stick() override { return *Its_Joystick; }
    std::string Device_Of(int Com_Number) override { return Com_Device(Com_Number); }
    std::string Local_IP() const override;
    void Quit() override; // also before the event loop has started: then it ends at its start

    // The device behind a COM number, empty when there is none. A number without a device makes it look for
    // devices that were plugged in meanwhile.
    std::string Com_Device(int Com_Number);

    std::unique_ptr<Joystick> Its_Joystick; // the machine's, or one that plays a script

  private:
    void Look_For_Devices();

    Qt_Platform_Options Options;
    Machine_Clock Machine;
    Disk_Files Its_Files;
    Ini_Settings Its_Settings;
    Com_Table Devices;
};

} // namespace brinewright
