#pragma once

#include "platform/link_objects.hpp"
#include "platform_linux/serial_line_filter.hpp"
#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace brinewright {

// A serial port on the system's terminal interface.
class Termios_Serial_Port final : public Serial_Port {
  public:
    // Find_Device gives the device's path at each opening; an empty path means that the port has no device.
    // Port_Name is for messages ("COM 5").
    Termios_Serial_Port(std::string Port_Name, std::function<std::string()> Find_Device);
    ~Termios_Serial_Port() override;

    void Open(const std::string& Settings) override;
    void Try() override; // touches neither the line's settings nor what waits in it
    void Close() override;
    bool Is_Open() const override { return Opened != nullptr; }
    bool Output(std::string_view Text) override;
    std::string Input() override;

  private:
    // What lasts from an opening to its closing. A callback may close the port and open it again; a weak
    // pointer to this tells.
    struct Opening {
        Unique_Fd Device;
        double Bytes_Per_Second = 0;
        Serial_Line_Filter Filter;
        std::optional<Line_Error_Counts> Counted; // none: the driver keeps no counters
        std::string Waiting;                      // output that the driver has not taken yet
        std::unique_ptr<QSocketNotifier> Read_Watch, Write_Watch;
    };

    std::string Required_Path() const;
    void Read_Line();
    bool Tell(Comm_Event Event); // false: the callback closed the port
    bool Take_Data(const std::string& Data);
    void Write_Waiting();
    void Vanish();

    std::string Name;
    std::function<std::string()> Device_Path;
    std::shared_ptr<Opening> Opened;
    bool Vanished = false;
    std::string Received;
};

} // namespace brinewright
