#pragma once

#include "platform/clock.hpp"
#include "platform/joystick.hpp"

#include <cstdint>
#include <memory>
#include <string>

namespace brinewright {

// The first game controller of the machine, through SDL. Its library comes with dozens of others, so it is
// loaded only when there is an input device that this user may read: without one, nothing is loaded and a
// reading costs next to nothing. While no controller is found it is looked for every 2 s at most. Where SDL
// is not installed there is no controller.
class SDL_Stick final : public Joystick {
  public:
    explicit SDL_Stick(Clock& Its_Clock, std::string Folder_Of_Devices = "/dev/input");
    ~SDL_Stick() override;
    SDL_Stick(const SDL_Stick&) = delete;
    SDL_Stick& operator=(const SDL_Stick&) = delete;

    std::optional<Joystick_Reading> Read() override;

  private:
    struct Session; // SDL in use, and the controller that is open
    bool Find_Controller();

    Clock& Time;
    std::string Device_Folder;
    std::unique_ptr<Session> SDL;
    std::optional<std::int64_t> Looked_us;
};

} // namespace brinewright
