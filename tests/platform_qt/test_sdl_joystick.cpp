#include "platform/virtual_platform.hpp"
#include "platform_linux/sdl_joystick.hpp"
#include "support.hpp"

#include <SDL2/SDL.h>
#include <dlfcn.h>

#include <filesystem>
#include <fstream>

using namespace brinewright;

namespace {

// SDL with a controller that the test moves. The stick loads the same library.
class Virtual_Controller {
  public:
    Virtual_Controller(int Axes, int Buttons) {
        SDL<decltype(::SDL_SetHint)>("SDL_SetHint")(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        EXPECT_EQ(SDL<decltype(::SDL_InitSubSystem)>("SDL_InitSubSystem")(SDL_INIT_JOYSTICK), 0);
        Index = SDL<decltype(::SDL_JoystickAttachVirtual)>("SDL_JoystickAttachVirtual")(
            SDL_JOYSTICK_TYPE_GAMECONTROLLER, Axes, Buttons, 0);
        EXPECT_EQ(Index, 0);
        Handle = SDL<decltype(::SDL_JoystickOpen)>("SDL_JoystickOpen")(Index);
        EXPECT_NE(Handle, nullptr);
    }
    ~Virtual_Controller() {
        SDL<decltype(::SDL_JoystickClose)>("SDL_JoystickClose")(Handle);
        Unplug();
        SDL<decltype(::SDL_QuitSubSystem)>("SDL_QuitSubSystem")(SDL_INIT_JOYSTICK);
    }
    Virtual_Controller(const Virtual_Controller&) = delete;
    Virtual_Controller& operator=(const Virtual_Controller&) = delete;

    void Set_Axis(int Axis, int Value) {
        EXPECT_EQ(SDL<decltype(::SDL_JoystickSetVirtualAxis)>("SDL_JoystickSetVirtualAxis")(
                      Handle, Axis, static_cast<Sint16>(Value)),
                  0);
    }
    void Move(int X, int Y) {
        Set_Axis(0, X);
        Set_Axis(1, Y);
    }
    void Press(int Button, bool Down) {
        EXPECT_EQ(SDL<decltype(::SDL_JoystickSetVirtualButton)>("SDL_JoystickSetVirtualButton")(
                      Handle, Button, Down ? 1 : 0),
                  0);
    }
    void Unplug() {
        if (Index >= 0) SDL<decltype(::SDL_JoystickDetachVirtual)>("SDL_JoystickDetachVirtual")(Index);
        Index = -1;
    }

  private:
    template <class Function>
    static Function* SDL(const char* Name) {
        static void* const Library = ::dlopen("libSDL2-2.0.so.0", RTLD_LAZY | RTLD_LOCAL);
        auto* Found = reinterpret_cast<Function*>(::dlsym(Library, Name));
        if (Found == nullptr) throw Run_Time_Error(std::string("SDL2 without ") + Name);
        return Found;
    }

    int Index = -1;
    ::SDL_Joystick* Handle = nullptr;
};

bool SDL_Is_Loaded() { return ::dlopen("libSDL2-2.0.so.0", RTLD_LAZY | RTLD_NOLOAD) != nullptr; }

struct Machine {
    Scratch_Folder Devices;
    Virtual_Clock Time;
    void Add_Device(const std::string& Name = "event0") const { std::ofstream(Devices / Name) << ""; }
    void Pass_ms(std::int64_t Duration_ms) { Time.Advance_To(Time.Wide_us() + Duration_ms * 1000); }
};

} // namespace

TEST(SDL_Stick_, Without_an_input_device_nothing_is_loaded) {
    if (SDL_Is_Loaded())
        GTEST_SKIP() << "another test of this process has loaded it; ctest gives each its own";
    Machine World;
    SDL_Stick Nowhere(World.Time, World.Devices / "missing"), Stick(World.Time, World.Devices.Path);
    World.Add_Device("mice");
    for (int Reading = 0; Reading < 5; ++Reading, World.Pass_ms(2000)) {
        EXPECT_EQ(Nowhere.Read(), std::nullopt);
        EXPECT_EQ(Stick.Read(), std::nullopt);
    }
    EXPECT_FALSE(SDL_Is_Loaded());
}

TEST(SDL_Stick_, Axes_and_buttons_are_those_of_the_controller) {
    Machine World;
    World.Add_Device();
    Virtual_Controller Controller(3, 34);
    SDL_Stick Stick(World.Time, World.Devices.Path);
    EXPECT_EQ(Stick.Read(), (Joystick_Reading{32768, 32768, 0}));
    Controller.Move(-32768, 32767);
    Controller.Press(0, true);
    Controller.Press(5, true);
    Controller.Press(31, true);
    Controller.Press(33, true); // one more than fits
    EXPECT_EQ(Stick.Read(), (Joystick_Reading{0, 65535, 0x80000021}));
    Controller.Move(1, -1);
    Controller.Press(0, false);
    EXPECT_EQ(Stick.Read(), (Joystick_Reading{32769, 32767, 0x80000020}));
}

TEST(SDL_Stick_, A_controller_without_a_second_axis_rests_there) {
    Machine World;
    World.Add_Device("js0");
    Virtual_Controller Controller(1, 1);
    SDL_Stick Stick(World.Time, World.Devices.Path);
    Controller.Set_Axis(0, -100);
    EXPECT_EQ(Stick.Read(), (Joystick_Reading{32668, 32768, 0}));
}

TEST(SDL_Stick_, A_controller_may_come_and_go_and_is_looked_for_every_2_s_at_most) {
    Machine World;
    SDL_Stick Stick(World.Time, World.Devices.Path);
    EXPECT_EQ(Stick.Read(), std::nullopt);
    World.Add_Device();
    {
        Virtual_Controller Controller(2, 1);
        World.Pass_ms(1900);
        EXPECT_EQ(Stick.Read(), std::nullopt) << "not looked for yet";
        World.Pass_ms(100);
        EXPECT_TRUE(Stick.Read().has_value());
        Controller.Unplug();
        EXPECT_EQ(Stick.Read(), std::nullopt);
        World.Pass_ms(5000);
        EXPECT_EQ(Stick.Read(), std::nullopt);
    }
    Virtual_Controller Another(2, 1);
    Another.Move(-32768, 0);
    EXPECT_EQ(Stick.Read(), std::nullopt) << "looked for a moment ago";
    World.Pass_ms(2000);
    EXPECT_EQ(Stick.Read(), (Joystick_Reading{0, 32768, 0}));
}
