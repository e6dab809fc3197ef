#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

// What a serial port tells by On_Comm: data has arrived, or what went wrong on the line.
enum class Comm_Event : std::int16_t {
    Receive = 2,
    Break = 1001,
    Framing = 1004,
    Overrun = 1006,
    Receive_Overflow = 1008,
    Parity = 1009,
};

// One serial port. Its callbacks come from the event loop, never from inside one of its own operations.
class Serial_Port {
  public:
    virtual ~Serial_Port() = default;

    std::function<void(Comm_Event)> On_Comm;

    // Settings as "4800,n,8,1": baud rate, parity letter n, e or o, data bits, stop bits. Throws
    // Run_Time_Error with the system's text when the port does not exist, Device_Busy when it is taken and
    // Access_Refused when it may not be opened.
    virtual void Open(const std::string& Settings) = 0;
    // Opens a closed port and closes it again, to learn whether it is there; throws as Open does. Where it
    // can be done, the line's settings and what waits in it are left as they are: somebody may be using it
    // unlocked.
    virtual void Try() {
        Open("4800,n,8,1");
        Close();
    }
    virtual void Close() = 0;
    virtual bool Is_Open() const = 0;
    // Never blocks. Throws Run_Time_Error when the port is closed or the device has vanished. A text that
    // would wait more than about 2 s on the line is skipped whole, and false comes back.
    virtual bool Output(std::string_view Text) = 0;
    // Takes what has been received since the last call, at most the 1024 bytes that are kept.
    virtual std::string Input() = 0;
};

// One accepted TCP connection. What the peer sends is read and thrown away.
class TCP_Connection {
  public:
    virtual ~TCP_Connection() = default;

    std::function<void()> On_Close; // the peer closed, vanished or reset; comes once, from the event loop

    // Never blocks and never grows without bound: a text that does not fit behind what a slow reader still
    // has to take is skipped whole, counted, and false comes back.
    virtual bool Send(std::string_view Text) = 0;
    virtual void Close() = 0;
    virtual std::string Remote_IP() const = 0;
    virtual std::uint64_t Skipped_Count() const = 0;
};

// The one listening socket of the TCP server.
class TCP_Listener {
  public:
    virtual ~TCP_Listener() = default;

    std::function<void(std::unique_ptr<TCP_Connection>)> On_Connection; // from the event loop

    // Throws Run_Time_Error with the system's text, for instance when the port is taken.
    virtual void Listen(std::int32_t Port) = 0;
    virtual bool Is_Listening() const = 0;
    virtual void Close() = 0;
};

// A serial port made of software, of some other program on this machine.
class Virtual_Port {
  public:
    virtual ~Virtual_Port() = default;

    bool Created = false;
    std::int16_t ComPort = 0;

    virtual void DataToPort(std::string_view Text) = 0;
};

// A UDP socket that sends to one host, to a multicast group or to the broadcast address.
class UDP_Socket {
  public:
    virtual ~UDP_Socket() = default;

    std::function<void()> On_Data_Arrival; // from the event loop, once per datagram

    // Remote_Host is an IPv4 address; 224.0.0.0 to 239.255.255.255 is a multicast group, which is sent to
    // with the TTL and on the interface of the application settings. Throws Run_Time_Error with the system's
    // text, for instance when no route leads there.
    virtual void Open(const std::string& Remote_Host, std::int32_t Remote_Port) = 0;
    // Opens it for receiving on Local_Port (1 to 65535) of every interface. Throws Run_Time_Error with the
    // system's text, for instance when the port is taken.
    virtual void Bind(std::int32_t Local_Port) = 0;
    virtual bool Is_Open() const = 0;
    virtual void Close() = 0;
    // Throws Run_Time_Error with the system's text. Never blocks: a text for which the system has no room now
    // is skipped whole, and false comes back.
    virtual bool Send(std::string_view Text) = 0;
    // The oldest datagram that is still kept, empty when there is none.
    virtual std::string Receive() = 0;
};

} // namespace brinewright
