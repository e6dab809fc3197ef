#include "platform_qt/qt_platform.hpp"

#include "platform_linux/ipv4.hpp"
#include "platform_linux/sdl_joystick.hpp"
#include "platform_qt/serial_line.hpp"
#include "platform_qt/tcp_server.hpp"
#include "platform_qt/udp_link.hpp"

#include <QCoreApplication>
#include <QThread>

#include <random>
#include <utility>

namespace brinewright {

namespace {

std::uint64_t Fresh_Seed() {
    std::random_device Source;
    return static_cast<std::uint64_t>(Source()) << 32 | Source();
}

} // namespace

Qt_Platform::Qt_Platform(Qt_Platform_Options Chosen)
    : Options(std::move(Chosen)), Its_Settings(Options.Settings_File), Devices(Load_Com_Table(Its_Settings)) {
    Random.Seed(Options.Seed ? *Options.Seed : Fresh_Seed());
    Its_Joystick = std::make_unique<SDL_Stick>(Machine);
    Look_For_Devices();
}

void Qt_Platform::Look_For_Devices() {
    if (Assign_Devices(Devices, Find_Serial_Devices(Options.Devices))) Save_Com_Table(Devices, Its_Settings);
}

std::string Qt_Platform::Com_Device(int Com_Number) {
    if (const auto Chosen = Options.Com_Devices.find(Com_Number); Chosen != Options.Com_Devices.end()) {
        return Chosen->second;
    }
    if (Devices[Com_Number].empty()) Look_For_Devices();
    return Devices[Com_Number];
}

std::unique_ptr<Serial_Port> Qt_Platform::Make_Serial_Port(int Com_Number) {
    Com_Table::Checked(Com_Number);
    return std::make_unique<Termios_Serial_Port>("COM " + std::to_string(Com_Number),
                                                 [this, Com_Number] { return Com_Device(Com_Number); });
}

std::unique_ptr<TCP_Listener> Qt_Platform::Make_TCP_Listener() {
    return std::make_unique<Socket_TCP_Listener>();
}

std::unique_ptr<UDP_Socket> Qt_Platform::Make_UDP_Socket() {
    return std::make_unique<Socket_UDP>(Its_Settings);
}

std::string Qt_Platform::Local_IP() const { return First_Local_IPv4(); }

void Qt_Platform::Quit() {
    // exit() rather than quit(), which would ask the windows first.
    if (QThread::currentThread()->loopLevel() > 0) {
        QCoreApplication::exit(0);
    } else {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    }
}

} // namespace brinewright
