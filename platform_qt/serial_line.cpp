#include "platform_qt/serial_line.hpp"

#include "platform/run_time_error.hpp"
#include "platform_linux/serial_settings.hpp"
#include "platform_linux/system_error.hpp"

#include <fcntl.h>
#include <linux/serial.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Receive_Buffer_Bytes = 1024;
constexpr std::size_t Read_Bytes =
    512; // less than the buffer, so that a handler that reads in time loses nothing
constexpr double Output_Limit_s = 2; // of line time
constexpr double Closing_Limit_s = 0.25;

std::optional<Line_Error_Counts> Read_Counters(const Unique_Fd& Device) {
    serial_icounter_struct Counters{};
    if (::ioctl(Device.Get(), TIOCGICOUNT, &Counters) != 0) return std::nullopt;
    const auto Count = [](int Value) { return static_cast<std::uint32_t>(Value); };
    return Line_Error_Counts{Count(Counters.brk), Count(Counters.frame), Count(Counters.parity),
                             Count(Counters.overrun), Count(Counters.buf_overrun)};
}

std::size_t Waiting_In_Driver(const Unique_Fd& Device) {
    int Bytes = 0;
    if (::ioctl(Device.Get(), TIOCOUTQ, &Bytes) != 0 || Bytes < 0) return 0;
    return static_cast<std::size_t>(Bytes);
}

// Opens and locks the device; nothing about its line has changed yet.
Unique_Fd Lock_Device(const std::string& Path, termios& Mode) {
    Unique_Fd Device(::open(Path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    if (!Device) Throw_System_Error(errno);
    if (::tcgetattr(Device.Get(), &Mode) != 0) Throw_System_Error(errno); // no terminal, so no serial port
    if (::flock(Device.Get(), LOCK_EX | LOCK_NB) != 0)
        Throw_System_Error(errno == EWOULDBLOCK ? EBUSY : errno);
    // The exclusive mode of another program does not keep the superuser out, so it is asked for.
    int Exclusive = 0;
    if (::ioctl(Device.Get(), TIOCGEXCL, &Exclusive) == 0 && Exclusive != 0) Throw_System_Error(EBUSY);
    return Device;
}

Unique_Fd Open_Device(const std::string& Path, const Serial_Settings& Settings) {
    termios Mode{};
    Unique_Fd Device = Lock_Device(Path, Mode);
    // The lock keeps out the programs that look for it, the exclusive mode the others.
    ::ioctl(Device.Get(), TIOCEXCL);
    Set_Line_Mode(Mode, Settings);
    if (::tcsetattr(Device.Get(), TCSANOW, &Mode) != 0) {
        const int Why = errno;
        ::ioctl(Device.Get(), TIOCNXCL); // a pseudo-terminal keeps it beyond the closing
        Throw_System_Error(Why);
    }
    ::tcflush(Device.Get(), TCIFLUSH); // what came in before, at whatever speed
    return Device;
}

// Up to the whole of Text; none when the device is gone.
std::optional<std::size_t> Write_Some(const Unique_Fd& Device, std::string_view Text) {
    std::size_t Written_Bytes = 0;
    while (Written_Bytes < Text.size()) {
        const ssize_t Count = ::write(Device.Get(), Text.data() + Written_Bytes, Text.size() - Written_Bytes);
        if (Count > 0) {
            Written_Bytes += static_cast<std::size_t>(Count);
        } else if (Count == 0 || errno == EAGAIN) {
            break;
        } else if (errno != EINTR) {
            return std::nullopt;
        }
    }
    return Written_Bytes;
}

} // namespace

Termios_Serial_Port::Termios_Serial_Port(std::string Port_Name, std::function<std::string()> Find_Device)
    : Name(std::move(Port_Name)), Device_Path(std::move(Find_Device)) {}

Termios_Serial_Port::~Termios_Serial_Port() { Close(); }

void Termios_Serial_Port::Open(const std::string& Settings) {
    Close();
    const Serial_Settings Wanted = Parse_Serial_Settings(Settings);
    const std::string Path = Required_Path();
    auto Fresh = std::make_shared<Opening>();
    Fresh->Device = Open_Device(Path, Wanted);
    Fresh->Bytes_Per_Second = Bytes_Per_Second(Wanted);
    Fresh->Filter.Parity_Checked = Wanted.Parity != 'n';
    Fresh->Counted = Read_Counters(Fresh->Device);
    Fresh->Read_Watch = Watch_Fd(Fresh->Device.Get(), QSocketNotifier::Read, [this] { Read_Line(); });
    Opened = std::move(Fresh);
}

std::string Termios_Serial_Port::Required_Path() const {
    std::string Path = Device_Path();
    if (Path.empty()) throw Run_Time_Error("No device is assigned to " + Name);
    return Path;
}

void Termios_Serial_Port::Try() {
    termios Mode{};
    Lock_Device(Required_Path(), Mode);
}

void Termios_Serial_Port::Close() {
    Vanished = false;
    Received.clear();
    if (!Opened) return;
    const Unique_Fd& Device = Opened->Device;
    // The system waits in close() until the line has taken everything. A short tail may go out, so that no
    // sentence is cut; more than that is thrown away.
    const double Tail_s = static_cast<double>(Waiting_In_Driver(Device)) / Opened->Bytes_Per_Second;
    if (Tail_s > Closing_Limit_s) ::tcflush(Device.Get(), TCOFLUSH);
    ::ioctl(Device.Get(), TIOCNXCL);
    Opened.reset();
}

void Termios_Serial_Port::Vanish() {
    Close();
    Vanished = true;
}

bool Termios_Serial_Port::Output(std::string_view Text) {
    if (Vanished) throw Run_Time_Error("Device unavailable");
    if (!Opened) throw Run_Time_Error("Port not open");
    const std::size_t Ahead_Bytes = Opened->Waiting.size() + Waiting_In_Driver(Opened->Device);
    const double Wait_s = static_cast<double>(Ahead_Bytes + Text.size()) / Opened->Bytes_Per_Second;
    if (Ahead_Bytes != 0 && Wait_s > Output_Limit_s) return false;
    Opened->Waiting += Text;
    if (Opened->Waiting.size() == Text.size()) Write_Waiting(); // else it is the watch's turn
    if (Vanished) throw Run_Time_Error("Device unavailable");
    return true;
}

void Termios_Serial_Port::Write_Waiting() {
    Opening& Port = *Opened;
    const auto Written_Bytes = Write_Some(Port.Device, Port.Waiting);
    if (!Written_Bytes) return Vanish();
    Port.Waiting.erase(0, *Written_Bytes);
    if (!Port.Waiting.empty() && !Port.Write_Watch) {
        Port.Write_Watch = Watch_Fd(Port.Device.Get(), QSocketNotifier::Write, [this] { Write_Waiting(); });
    }
    if (Port.Write_Watch) Port.Write_Watch->setEnabled(!Port.Waiting.empty());
}

std::string Termios_Serial_Port::Input() { return std::exchange(Received, {}); }

void Termios_Serial_Port::Read_Line() {
    std::array<char, Read_Bytes> Chunk;
    const ssize_t Count = ::read(Opened->Device.Get(), Chunk.data(), Chunk.size());
    if (Count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (Count <= 0) return Vanish();
    Line_Error_Counts Counted_New;
    if (Opened->Counted) {
        const Line_Error_Counts Now = Read_Counters(Opened->Device).value_or(*Opened->Counted);
        Counted_New = Counted_Since(Now, std::exchange(*Opened->Counted, Now));
    }
    const auto Items =
        Filter_Line(Opened->Filter, {Chunk.data(), static_cast<std::size_t>(Count)}, Counted_New);
    for (const Line_Item& Item : Items) {
        const bool Goes_On = Item.Event == Comm_Event::Receive ? Take_Data(Item.Data) : Tell(Item.Event);
        if (!Goes_On) return;
    }
}

bool Termios_Serial_Port::Take_Data(const std::string& Data) {
    const std::size_t Room_Bytes = Receive_Buffer_Bytes - Received.size();
    Received.append(Data, 0, Room_Bytes);
    if (Data.size() > Room_Bytes && !Tell(Comm_Event::Receive_Overflow)) return false;
    return Tell(Comm_Event::Receive);
}

bool Termios_Serial_Port::Tell(Comm_Event Event) {
    const std::weak_ptr<Opening> Still = Opened;
    if (const auto Listener = On_Comm) Listener(Event);
    return !Still.expired();
}

} // namespace brinewright
