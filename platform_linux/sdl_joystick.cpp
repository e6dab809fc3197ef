#include "platform_linux/sdl_joystick.hpp"

#include <SDL2/SDL.h>
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace brinewright {

namespace {

constexpr std::int64_t Search_Period_us = 2'000'000;
constexpr std::int32_t Axis_Centre = 32768; // SDL counts its axes from -32768

// The functions of SDL that are used, under its own names.
struct SDL_Library {
    decltype(&::SDL_SetHint) SetHint = nullptr;
    decltype(&::SDL_InitSubSystem) InitSubSystem = nullptr;
    decltype(&::SDL_QuitSubSystem) QuitSubSystem = nullptr;
    decltype(&::SDL_JoystickEventState) JoystickEventState = nullptr;
    decltype(&::SDL_JoystickUpdate) JoystickUpdate = nullptr;
    decltype(&::SDL_FlushEvents) FlushEvents = nullptr;
    decltype(&::SDL_NumJoysticks) NumJoysticks = nullptr;
    decltype(&::SDL_JoystickOpen) JoystickOpen = nullptr;
    decltype(&::SDL_JoystickClose) JoystickClose = nullptr;
    decltype(&::SDL_JoystickGetAttached) JoystickGetAttached = nullptr;
    decltype(&::SDL_JoystickGetAxis) JoystickGetAxis = nullptr;
    decltype(&::SDL_JoystickNumButtons) JoystickNumButtons = nullptr;
    decltype(&::SDL_JoystickGetButton) JoystickGetButton = nullptr;
};

template <class Function>
bool Resolve(void* Library, const char* Name, Function& Place) {
    Place = reinterpret_cast<Function>(::dlsym(Library, Name));
    return Place != nullptr;
}

bool Load(SDL_Library& L) {
    void* Library = ::dlopen("libSDL2-2.0.so.0", RTLD_LAZY | RTLD_LOCAL); // stays loaded: SDL expects it
    return Library != nullptr && Resolve(Library, "SDL_SetHint", L.SetHint) &&
           Resolve(Library, "SDL_InitSubSystem", L.InitSubSystem) &&
           Resolve(Library, "SDL_QuitSubSystem", L.QuitSubSystem) &&
           Resolve(Library, "SDL_JoystickEventState", L.JoystickEventState) &&
           Resolve(Library, "SDL_JoystickUpdate", L.JoystickUpdate) &&
           Resolve(Library, "SDL_FlushEvents", L.FlushEvents) &&
           Resolve(Library, "SDL_NumJoysticks", L.NumJoysticks) &&
           Resolve(Library, "SDL_JoystickOpen", L.JoystickOpen) &&
           Resolve(Library, "SDL_JoystickClose", L.JoystickClose) &&
           Resolve(Library, "SDL_JoystickGetAttached", L.JoystickGetAttached) &&
           Resolve(Library, "SDL_JoystickGetAxis", L.JoystickGetAxis) &&
           Resolve(Library, "SDL_JoystickNumButtons", L.JoystickNumButtons) &&
           Resolve(Library, "SDL_JoystickGetButton", L.JoystickGetButton);
}

// Whether SDL could find anything: it, too, sees only devices that the user may read.
bool Has_Readable_Device(const std::string& Folder) {
    std::error_code Failure;
    for (std::filesystem::directory_iterator Entry(Folder, Failure), End; !Failure && Entry != End;
         Entry.increment(Failure)) {
        const std::string Name = Entry->path().filename().string();
        if ((Name.starts_with("event") || Name.starts_with("js")) &&
            ::access(Entry->path().c_str(), R_OK) == 0)
            return true;
    }
    return false;
}

} // namespace

struct SDL_Stick::Session {
    SDL_Library Library;
    bool Is_Running = false;
    ::SDL_Joystick* Controller = nullptr;

    Session() {
        if (!Load(Library)) return;
        Library.SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // Ctrl-C is the program's
        Library.SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
        Library.SetHint(SDL_HINT_JOYSTICK_HIDAPI, "0"); // the kernel's drivers are enough
        // The simulator knows no dead zone, so that a worn stick would never rest without its own.
        Library.SetHint(SDL_HINT_LINUX_JOYSTICK_DEADZONES, "1");
        Is_Running = Library.InitSubSystem(SDL_INIT_JOYSTICK) == 0;
        if (Is_Running) Library.JoystickEventState(SDL_IGNORE); // it is polled
    }
    ~Session() {
        Close();
        if (Is_Running) Library.QuitSubSystem(SDL_INIT_JOYSTICK);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void Close() {
        if (Controller != nullptr) Library.JoystickClose(Controller);
        Controller = nullptr;
    }
    void Update() {
        Library.JoystickUpdate();
        Library.FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT); // nobody takes them, and they would add up
    }
    void Open_First() {
        if (!Is_Running) return;
        Update();
        if (Library.NumJoysticks() > 0) Controller = Library.JoystickOpen(0);
    }
    Joystick_Reading Read() const {
        Joystick_Reading Reading;
        Reading.X = Library.JoystickGetAxis(Controller, 0) + Axis_Centre;
        Reading.Y = Library.JoystickGetAxis(Controller, 1) + Axis_Centre;
        const int Count = std::min(Library.JoystickNumButtons(Controller), 32);
        for (int Button = 0; Button < Count; ++Button)
            if (Library.JoystickGetButton(Controller, Button) != 0) Reading.Buttons |= 1U << Button;
        return Reading;
    }
};

SDL_Stick::SDL_Stick(Clock& Its_Clock, std::string Folder_Of_Devices)
    : Time(Its_Clock), Device_Folder(std::move(Folder_Of_Devices)) {}

SDL_Stick::~SDL_Stick() = default;

std::optional<Joystick_Reading> SDL_Stick::Read() {
    if (SDL && SDL->Controller != nullptr) {
        SDL->Update();
        if (SDL->Library.JoystickGetAttached(SDL->Controller) == SDL_TRUE) return SDL->Read();
        SDL->Close(); // unplugged
    }
    if (!Find_Controller()) return std::nullopt;
    SDL->Update(); // its first positions
    return SDL->Read();
}

bool SDL_Stick::Find_Controller() {
    const std::int64_t Now_us = Time.Wide_us();
    if (Looked_us && Now_us - *Looked_us < Search_Period_us) return false;
    Looked_us = Now_us;
    if (!SDL) {
        if (!Has_Readable_Device(Device_Folder)) return false;
        SDL = std::make_unique<Session>();
    }
    SDL->Open_First();
    return SDL->Controller != nullptr;
}

} // namespace brinewright
