#pragma once

#include "platform/platform.hpp"
#include "platform/timer_queue.hpp"

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brinewright {

// Time that passes only when it is told to, and in waits.
class Virtual_Clock : public Clock {
  public:
    explicit Virtual_Clock(std::int64_t Start_Local_us = 0) : Local_Start_us(Start_Local_us) {}
    std::int64_t Wide_us() override { return Passed_us; }
    std::int64_t Local_us() override { return Local_Start_us + Passed_us; }
    void Spin_us(std::int64_t Duration_us) override { Passed_us += Duration_us + 1; }
    void Advance_To(std::int64_t Wide_Time_us) {
        if (Wide_Time_us > Passed_us) Passed_us = Wide_Time_us;
    }

    std::int64_t Local_Start_us;

  private:
    std::int64_t Passed_us = 0;
};

// Links that keep what is sent instead of sending it, as long as Keep is set; virtual time leaves no traffic
// on real links. The far end is played by whoever holds the object.
struct Memory_Links {
    bool Keep = false;
    // Link ("COM 3", "TCP 0", "UDP 239.192.0.1:60001") and text.
    std::vector<std::pair<std::string, std::string>> Sent;
    std::string Failing_Open;      // a link whose next opening fails
    std::set<std::string> Busy;    // links that another program holds
    std::set<std::string> Refused; // links that this user has no right to
};

class Memory_Files : public Files {
  public:
    std::map<std::string, std::string> Content;
    bool Exists(const std::string& Path) const override { return Content.contains(Path); }
    std::string Read(const std::string& Path, std::size_t Limit_Bytes) const override;
    void Replace(const std::string& Path, std::string_view Bytes) override {
        Content[Path] = std::string(Bytes);
    }
    void Make_Folder(const std::string&) override {}
};

class Memory_Settings : public App_Settings {
  public:
    std::map<std::string, std::string> Values;
    std::string Get(const std::string& Key, const std::string& Default) const override;
    void Set(const std::string& Key, const std::string& Value) override { Values[Key] = Value; }
};

// The program in virtual time: the virtual clock and links in memory. Disk and settings are lent by the
// caller: real ones for a run of the program, memory for tests.
class Virtual_Platform : public Platform {
  public:
    Virtual_Platform(Files& Its_Disk, App_Settings& Its_Settings, std::int64_t Start_Local_us = 0)
        : Machine_Clock(Start_Local_us), Its_Files(Its_Disk), Its_App_Settings(Its_Settings) {}

    Clock& Time() override { return Machine_Clock; }
    Files& Disk() override { return Its_Files; }
    App_Settings& Settings() override { return Its_App_Settings; }
    std::unique_ptr<Serial_Port> Make_Serial_Port(int Com_Number) override;
    std::unique_ptr<TCP_Listener> Make_TCP_Listener() override;
    std::unique_ptr<UDP_Socket> Make_UDP_Socket() override;
    Joystick& Stick() override { return *Its_Joystick; }
    std::string Device_Of(int) override { return {}; }
    std::string Local_IP() const override { return "127.0.0.1"; }
    void Quit() override { Quitting = true; }

    // Lets time pass up to Wide_Time_us with every timer of Queue that comes due, or until Quit.
    void Run_Until(Timer_Queue& Queue, std::int64_t Wide_Time_us);

    Virtual_Clock Machine_Clock;
    Memory_Links Links;
    std::unique_ptr<Joystick> Its_Joystick = std::make_unique<No_Joystick>(); // or one that plays a script
    bool Quitting = false;

  private:
    Files& Its_Files;
    App_Settings& Its_App_Settings;
};

} // namespace brinewright
